#!/usr/bin/env bash
# How close are split, merge, checksums and secure delete to coreutils?
#
#   scripts/bench-file-tools.sh [--quick]
#
# In a fresh folder under $TMPDIR (/tmp by default):
#   split of a 2 GB file into 100 MB pieces   tarnwick-cli split     vs  split -b 100M
#   merge of those pieces back                tarnwick-cli merge     vs  cat (and cat + sync)
#   MD5 of 1,000 files of 2 MB                tarnwick-cli checksum  vs  md5sum
#   SHA-256 of the same files                 tarnwick-cli checksum  vs  sha256sum
#   secure delete of 100 MB, 1 pass           tarnwick-cli shred     vs  shred -n 1 -u
# Each figure is the best of three from a warm page cache. A merge into a
# new file that keeps its sources is not flushed (as cat's); one that
# replaces a file or deletes its sources is, so cat is also given followed
# by `sync`. One pass of Tarnwick's shredder
# is four sweeps (0/255/255, then random), each flushed; shred -n 1 writes
# one random sweep: the bytes written are given beside the times.
# --quick: a 256 MB file, 200 files of 2 MB and 20 MB to shred.
set -euo pipefail
source "$(dirname "$0")/bench-common.sh"
big_mb=2048 piece_mb=100 files=1000 shred_mb=100
if [[ "${1:-}" == "--quick" ]]; then big_mb=256 piece_mb=32 files=200 shred_mb=20; fi

mkdir "$work/big" "$work/many"
head -c $((big_mb * 1048576)) /dev/urandom >"$work/big/big.bin"
for i in $(seq 1 "$files"); do head -c 2097152 /dev/urandom >"$work/many/f$i.bin"; done

fresh_pieces() { rm -rf "$work/p"; mkdir "$work/p"; }
split_ours() { "$cli" split "$work/big/big.bin" --size "$piece_mb" --unit megabytes --dest "$work/p"; }
split_peer() { split -b "${piece_mb}M" "$work/big/big.bin" "$work/p/big.bin_"; }
split_tw=$(best_of_three fresh_pieces split_ours)
split_cu=$(best_of_three fresh_pieces split_peer)

fresh_joined() { rm -f "$work/joined.bin"; }
merge_ours() { "$cli" merge "$work/joined.bin" --from-list "$work/p" --sort; }
merge_peer() { cat "$work"/p/* >"$work/joined.bin"; }
merge_peer_sync() { merge_peer && sync; }
merge_tw=$(best_of_three fresh_joined merge_ours)
merge_cu=$(best_of_three fresh_joined merge_peer)
merge_cu_sync=$(best_of_three fresh_joined merge_peer_sync)
cmp -s "$work/joined.bin" "$work/big/big.bin" || { echo "merge gave other bytes" >&2; exit 1; }
rm -rf "$work/p" "$work/joined.bin" "$work/big"

nothing() { :; }
md5_tw=$(best_of_three nothing "$cli" checksum md5 --from-list "$work/many" --format coreutils)
md5_cu=$(best_of_three nothing md5sum "$work"/many/*)
sha_tw=$(best_of_three nothing "$cli" checksum sha256 --from-list "$work/many" --format coreutils)
sha_cu=$(best_of_three nothing sha256sum "$work"/many/*)
rm -rf "$work/many"

victim() { rm -rf "$work/s"; mkdir "$work/s"; head -c $((shred_mb * 1048576)) /dev/urandom >"$work/s/v.bin"; }
shred_tw=$(best_of_three victim "$cli" shred "$work/s/v.bin" --passes 1 --yes)
shred_cu=$(best_of_three victim shred -n 1 -u "$work/s/v.bin")

printf '%-38s %9s %9s %9s %7s %7s\n' "job" "tarnwick" "peer" "peer+sync" "ratio" "ratio+s"
printf '%-38s %9s %9s %9s %7s %7s\n' "split $big_mb MB into $piece_mb MB pieces" "$split_tw" \
  "$split_cu" "-" "$(ratio "$split_tw" "$split_cu")" "-"
printf '%-38s %9s %9s %9s %7s %7s\n' "merge the pieces back" "$merge_tw" "$merge_cu" \
  "$merge_cu_sync" "$(ratio "$merge_tw" "$merge_cu")" "$(ratio "$merge_tw" "$merge_cu_sync")"
printf '%-38s %9s %9s %9s %7s %7s\n' "MD5 of $files files of 2 MB" "$md5_tw" "$md5_cu" "-" \
  "$(ratio "$md5_tw" "$md5_cu")" "-"
printf '%-38s %9s %9s %9s %7s %7s\n' "SHA-256 of $files files of 2 MB" "$sha_tw" "$sha_cu" "-" \
  "$(ratio "$sha_tw" "$sha_cu")" "-"
printf '%-38s %9s %9s %9s %7s %7s\n' "shred $shred_mb MB, 1 pass" "$shred_tw" "$shred_cu" "-" \
  "$(ratio "$shred_tw" "$shred_cu")" "-"
echo "bytes written by the shred: tarnwick $((shred_mb * 4)) MB (4 sweeps), shred -n 1 $shred_mb MB"
