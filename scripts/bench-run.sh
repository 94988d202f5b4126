#!/usr/bin/env bash
# How close is a rename run to the file system's own speed?
#
#   scripts/bench-run.sh [N]        (default N = 20000)
#
# Makes N empty files in a fresh folder (under $TMPDIR, /tmp by default) and
# gives each the prefix "p_", three times for each contender, and prints the
# best time of each:
#   bare loop      bench/bare_rename: readdir and renameat2, nothing else
#   tarnwick off   tarnwick-cli run with log and undo batch off
#   tarnwick on    tarnwick-cli run with log and undo batch on
#   perl rename    the Perl `rename` tool (Debian's file-rename), if installed
# and the ratios to the bare loop. Tarnwick's times include its start, the
# fill of the file list and the run. Uses the release build (build/release),
# configuring and building it when needed. Also prints the system calls per
# file of a run (strace -c), when strace is installed.
set -euo pipefail
n="${1:-20000}"
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build/release"
if [[ ! -x "$build/app/cli/tarnwick-cli" || ! -x "$build/bench/bare_rename" ]]; then
  cmake --preset release -DTW_BUILD_BENCH=ON -S "$root" >/dev/null
  cmake --build --preset release --target tarnwick-cli bare_rename >/dev/null
fi
cli="$build/app/cli/tarnwick-cli"
bare="$build/bench/bare_rename"

work="$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-bench-XXXXXX")"
trap 'rm -rf "$work"' EXIT
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data"

make_files() {
  rm -rf "$work/f"
  mkdir "$work/f"
  (cd "$work/f" && seq -f 'f%06g.txt' 1 "$n" | xargs touch)
}

# Seconds, with milliseconds, of the best of three runs of "$@" on fresh files.
best_of_three() {
  local best=""
  for _ in 1 2 3; do
    make_files
    sync
    local start end took
    start=$(date +%s.%N)
    "$@" >/dev/null 2>&1
    end=$(date +%s.%N)
    took=$(awk -v a="$end" -v b="$start" 'BEGIN { printf "%.3f", a - b }')
    if [[ -z "$best" ]] || awk -v a="$took" -v b="$best" 'BEGIN { exit !(a < b) }'; then
      best="$took"
    fi
  done
  echo "$best"
}

tarnwick_run() {
  "$cli" run --folder "$work/f" --set chkPrefix=1 --set txtPrefix=p_
}

set_log_undo() {
  "$cli" options set Options WriteLogFile "$1" >/dev/null
  "$cli" options set Options WriteUndoList "$1" >/dev/null
  "$cli" options set Options ReadySound 0 >/dev/null
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }

echo "Renaming $n empty files (best of three), $(uname -sr), $(stat -f -c %T "$work")"
t_bare=$(best_of_three "$bare" "$work/f")
set_log_undo 0
t_off=$(best_of_three tarnwick_run)
set_log_undo 1
t_on=$(best_of_three tarnwick_run)
printf '%-28s %8s s\n' "bare renameat2 loop" "$t_bare"
printf '%-28s %8s s   %sx the bare loop\n' "tarnwick, log and undo off" "$t_off" "$(ratio "$t_off" "$t_bare")"
printf '%-28s %8s s   %sx the bare loop\n' "tarnwick, log and undo on" "$t_on" "$(ratio "$t_on" "$t_bare")"
if command -v rename >/dev/null && rename --version 2>&1 | grep -q 'File::Rename'; then
  perl_rename() { (cd "$work/f" && find . -maxdepth 1 -name 'f*.txt' -print0 | xargs -0 rename 's|^\./|./p_|'); }
  t_perl=$(best_of_three perl_rename)
  printf '%-28s %8s s   %sx the bare loop\n' "perl rename" "$t_perl" "$(ratio "$t_perl" "$t_bare")"
fi

# System calls of the fill alone (tarnwick-cli list) and of a whole run; the
# difference is the run's own share.
syscalls() {
  strace -f -c -o "$work/trace" "$@" >/dev/null 2>&1
  awk '$NF == "total" { print $(NF-2) }' "$work/trace"
}
if command -v strace >/dev/null; then
  make_files
  fill=$(syscalls "$cli" list "$work/f")
  printf 'system calls per file, fill (tarnwick-cli list): %s\n' "$(ratio "$fill" "$n")"
  for on in 0 1; do
    set_log_undo "$on"
    make_files
    all=$(syscalls "$cli" run --folder "$work/f" --set chkPrefix=1 --set txtPrefix=p_)
    printf 'system calls per file, run with log and undo %s: %s (and the fill)\n' \
      "$([[ $on == 1 ]] && echo on || echo off)" "$(ratio "$((all - fill))" "$n")"
  done
fi
