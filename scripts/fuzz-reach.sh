#!/usr/bin/env bash
# Which of our functions a fuzz target reaches, from the inputs it has:
#
#   scripts/fuzz-reach.sh [TARGET...]        (default: every target)
#
# Runs each libFuzzer target of build/fuzz once over its committed seeds and
# its campaign corpus (build/fuzz/campaign/<target>/corpus, when a campaign
# ran) with -print_coverage=1, and prints the functions of src/ it reached
# with the edges covered of their total, largest first, and a total line.
# Build the targets first (make fuzz, or make fuzz-run).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
bin="$root/build/fuzz/fuzz"
[[ -d "$bin" ]] || { echo "no fuzz build: run 'make fuzz' first" >&2; exit 2; }
targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
  for source in "$root"/fuzz/*_fuzz.cpp; do targets+=("$(basename "$source" .cpp)"); done
fi
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT
for target in "${targets[@]}"; do
  inputs=("$root/fuzz/corpus/$target")
  campaign="$root/build/fuzz/campaign/$target/corpus"
  [[ -d "$campaign" ]] && inputs+=("$campaign")
  (cd "$scratch" && "$bin/$target" -runs=0 -print_coverage=1 "${inputs[@]}" 2>&1) |
    sed -n 's/^COVERED_FUNC: hits: [0-9]* edges: \([0-9]*\)\/\([0-9]*\) \(.*\) .*\/\(src\/[^:]*\):.*/\1 \2 \4 \3/p' |
    sort -k1,1nr |
    awk -v target="$target" '
      {
        covered += $1; total += $2; count++
        if (count <= 8) {
          name = $0; sub(/^[0-9]+ [0-9]+ [^ ]+ /, "", name)
          gsub(/\(anonymous namespace\)::/, "", name); sub(/\(.*/, "", name)
          top[count] = sprintf("  %4d/%-4d %s  %s", $1, $2, substr(name, 1, 70), $3)
        }
      }
      END {
        printf "%s: %d functions of src/ reached, %d of their %d edges\n", target, count, covered, total
        for (i = 1; i <= count && i <= 8; i++) print top[i]
      }'
done
