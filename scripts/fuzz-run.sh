#!/usr/bin/env bash
# A fuzzing campaign over every target of fuzz/:
#
#   make fuzz-run [SECONDS=600] [TARGETS="id3_fuzz exif_fuzz"]
#   scripts/fuzz-run.sh SECONDS [TARGET...]
#
# Builds the libFuzzer preset (clang, libraries instrumented for coverage,
# AddressSanitizer and UndefinedBehaviorSanitizer) and runs each target in
# turn for SECONDS, in a folder of its own under build/fuzz/campaign/ with
# HOME and the XDG folders pointing into it, starting from the committed
# seeds of fuzz/corpus/<target>/. New inputs go to the campaign's corpus, not
# to the committed one (merge them in by hand with -merge=1 when they are
# worth keeping). A crash, a leak, a hang (10 s for one input) or a sanitizer
# report leaves its input under build/fuzz/findings/. At the end a table:
# target, executions per second, coverage (edges), features, new inputs,
# findings. Exit status 1 when anything was found.
set -euo pipefail
seconds="${1:-600}"
shift || true
root="$(cd "$(dirname "$0")/.." && pwd)"
cd "$root"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz >/dev/null
bin="$root/build/fuzz/fuzz"
campaign="$root/build/fuzz/campaign"
findings="$root/build/fuzz/findings"
mkdir -p "$campaign" "$findings"

targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
  for source in fuzz/*_fuzz.cpp; do targets+=("$(basename "$source" .cpp)"); done
fi

rows=()
found_any=0
for target in "${targets[@]}"; do
  work="$campaign/$target"
  rm -rf "$work/home"
  mkdir -p "$work/corpus" "$work/home/config" "$work/home/data"
  log="$work/run.log"
  before=$(ls "$findings" | grep -c "^$target-" || true)
  echo "fuzzing $target for ${seconds} s ..." >&2
  set +e
  (cd "$work" && HOME="$work/home" XDG_CONFIG_HOME="$work/home/config" \
     XDG_DATA_HOME="$work/home/data" \
     "$bin/$target" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
       -print_final_stats=1 -artifact_prefix="$findings/$target-" \
       "$work/corpus" "$root/fuzz/corpus/$target" >"$log" 2>&1)
  set -e
  after=$(ls "$findings" | grep -c "^$target-" || true)
  new_findings=$((after - before))
  [[ $new_findings -gt 0 ]] && found_any=1
  last=$(grep -E '^#[0-9]+' "$log" | tail -n 1)
  cov=$(sed -n 's/.* cov: \([0-9]*\).*/\1/p' <<<"$last")
  ft=$(sed -n 's/.* ft: \([0-9]*\).*/\1/p' <<<"$last")
  speed=$(sed -n 's/^stat::average_exec_per_sec: *//p' "$log" | tail -n 1)
  added=$(sed -n 's/^stat::new_units_added: *//p' "$log" | tail -n 1)
  rows+=("$(printf '%-24s %10s %8s %8s %8s %9s' "$target" "${speed:--}" "${cov:--}" \
    "${ft:--}" "${added:--}" "$new_findings")")
done

printf '%-24s %10s %8s %8s %8s %9s\n' "target" "exec/s" "cov" "ft" "new" "findings"
printf '%s\n' "${rows[@]}"
if [[ $found_any -ne 0 ]]; then
  echo "Findings are in $findings (one file per input; run the target on it to see the report)." >&2
  exit 1
fi
