#!/usr/bin/env bash
# How close are the copy and move tools to cp and mv?
#
#   scripts/bench-copy.sh [--quick]
#
# In a fresh folder under $TMPDIR (/tmp by default), on one file system:
#   copy of 1,000 files of 1 MB     tarnwick-cli copy  vs  cp
#   copy of one file of 2 GB        tarnwick-cli copy  vs  cp
#   move of 20,000 small files      tarnwick-cli move  vs  mv
# Each figure is the best of three, the target folder emptied and the page
# cache dropped of nothing (both contenders read from the same warm cache).
# Tarnwick's copies are flushed to disk before they take their name (so a
# power cut never leaves a half file under the new name); cp does not flush,
# so its figure is given both plain and followed by `sync`.
# --quick: 200 files, a 256 MB file and 5,000 small files.
set -euo pipefail
source "$(dirname "$0")/bench-common.sh"
files=1000 big_mb=2048 small=20000
if [[ "${1:-}" == "--quick" ]]; then files=200 big_mb=256 small=5000; fi

fresh_target() { rm -rf "$work/t"; mkdir "$work/t"; }

mkdir "$work/many" "$work/big"
for i in $(seq 1 "$files"); do head -c 1048576 /dev/urandom >"$work/many/f$i.bin"; done
head -c $((big_mb * 1048576)) /dev/zero | tr '\0' 'x' >"$work/big/big.bin"

cp_sync() { cp "$@" && sync; }
many_cp=$(best_of_three fresh_target cp "$work"/many/*.bin "$work/t/")
many_cp_sync=$(best_of_three fresh_target cp_sync "$work"/many/*.bin "$work/t/")
many_tw=$(best_of_three fresh_target "$cli" copy "$work/t" --from-list "$work/many")
big_cp=$(best_of_three fresh_target cp "$work/big/big.bin" "$work/t/")
big_cp_sync=$(best_of_three fresh_target cp_sync "$work/big/big.bin" "$work/t/")
big_tw=$(best_of_three fresh_target "$cli" copy "$work/t" "$work/big/big.bin")
rm -rf "$work/many" "$work/big" "$work/t"

make_small() {
  rm -rf "$work/s" "$work/t"
  mkdir "$work/s" "$work/t"
  (cd "$work/s" && seq -f 's%06g.txt' 1 "$small" | xargs touch)
}
mv_all() { find "$work/s" -maxdepth 1 -type f -exec mv -t "$work/t" {} +; }
small_mv=$(best_of_three make_small mv_all)
small_tw=$(best_of_three make_small "$cli" move "$work/t" --from-list "$work/s")

printf '%-34s %9s %9s %9s %7s %7s\n' "job" "tarnwick" "peer" "peer+sync" "ratio" "ratio+s"
printf '%-34s %9s %9s %9s %7s %7s\n' "copy $files files of 1 MB" "$many_tw" "$many_cp" \
  "$many_cp_sync" "$(ratio "$many_tw" "$many_cp")" "$(ratio "$many_tw" "$many_cp_sync")"
printf '%-34s %9s %9s %9s %7s %7s\n' "copy one file of $big_mb MB" "$big_tw" "$big_cp" \
  "$big_cp_sync" "$(ratio "$big_tw" "$big_cp")" "$(ratio "$big_tw" "$big_cp_sync")"
printf '%-34s %9s %9s %9s %7s %7s\n' "move $small small files" "$small_tw" "$small_mv" "-" \
  "$(ratio "$small_tw" "$small_mv")" "-"
