# Shared by the tool benchmarks (bench-copy.sh, bench-file-tools.sh): the
# release tarnwick-cli, a scratch folder with its own options, and timing.
# Sourced, not run. Sets: root, cli, work.
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$root/build/release"
if [[ ! -x "$build/app/cli/tarnwick-cli" ]]; then
  cmake --preset release -DTW_BUILD_BENCH=ON -S "$root" >/dev/null
  cmake --build --preset release --target tarnwick-cli >/dev/null
fi
cli="$build/app/cli/tarnwick-cli"

work="$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-bench-XXXXXX")"
trap 'rm -rf "$work"' EXIT
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data"
"$cli" options set Options WriteLogFile 0 >/dev/null
"$cli" options set Options WriteUndoList 0 >/dev/null

seconds() {
  local start end
  start=$(date +%s.%N)
  "$@" >/dev/null 2>&1
  end=$(date +%s.%N)
  awk -v a="$end" -v b="$start" 'BEGIN { printf "%.3f", a - b }'
}

# best_of_three PREPARE COMMAND...: PREPARE runs before each try, untimed.
best_of_three() {
  local prepare="$1" best="" took
  shift
  for _ in 1 2 3; do
    "$prepare"
    sync
    took=$(seconds "$@")
    if [[ -z "$best" ]] || awk -v a="$took" -v b="$best" 'BEGIN { exit !(a < b) }'; then
      best="$took"
    fi
  done
  echo "$best"
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }
