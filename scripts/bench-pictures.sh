#!/usr/bin/env bash
# The picture tools against their peers:
#
#   scripts/bench-pictures.sh [N]        (default 5 pictures of 12 megapixels; the
#                                         issue's full figure is N = 50)
#
# 1. bench/jpeg_compare: our JPEG encoder beside cjpeg given our own
#    quantisation tables (-optimize -dct float -sample 2x2), and plain
#    cjpeg -quality 75: time, size without COM segments, PSNR.
# 2. The resize job (tarnwick-cli resize --percent 25) on the same pictures,
#    beside ImageMagick's `convert -resize 25%` and `vipsthumbnail` when they
#    are installed (they are not part of install-deps).
# Uses the release build (build/release), configuring and building it when
# needed. The pictures go to a temporary folder that is removed at the end.
set -euo pipefail
n="${1:-5}"
root="$(cd "$(dirname "$0")/.." && pwd)"
build="$root/build/release"
cmake --preset release -DTW_BUILD_BENCH=ON -S "$root" >/dev/null
cmake --build --preset release --target jpeg_compare tarnwick-cli >/dev/null
work="$(mktemp -d "${TMPDIR:-/tmp}/tarnwick-pictures-XXXXXX")"
trap 'rm -rf "$work"' EXIT
export XDG_CONFIG_HOME="$work/config" XDG_DATA_HOME="$work/data"

"$build/bench/jpeg_compare" "$n" "$work/pictures"

seconds() {
  local start end
  start=$(date +%s.%N)
  "$@" >/dev/null 2>&1
  end=$(date +%s.%N)
  awk -v a="$end" -v b="$start" 'BEGIN { printf "%.2f", a - b }'
}

echo
echo "Resizing the $n pictures to 25 % (JPEG, quality 75):"
mkdir -p "$work/ours" "$work/magick" "$work/vips"
"$build/app/cli/tarnwick-cli" options set Options ReadySound 0 >/dev/null
printf '%-36s %8s s\n' "tarnwick-cli resize --percent 25" \
  "$(seconds "$build/app/cli/tarnwick-cli" resize "$work"/pictures/photo*.bmp --percent 25 --dest "$work/ours")"
if convert -version 2>/dev/null | grep -q ImageMagick; then
  magick_all() { for f in "$work"/pictures/photo*.bmp; do convert "$f" -resize 25% -quality 75 "$work/magick/$(basename "$f" .bmp).jpg"; done; }
  printf '%-36s %8s s\n' "convert -resize 25%" "$(seconds magick_all)"
else
  echo "convert (ImageMagick) is not installed"
fi
if command -v vipsthumbnail >/dev/null; then
  vips_all() { for f in "$work"/pictures/photo*.bmp; do vipsthumbnail "$f" --size 1000 -o "$work/vips/%s.jpg[Q=75]"; done; }
  printf '%-36s %8s s\n' "vipsthumbnail --size 1000" "$(seconds vips_all)"
else
  echo "vipsthumbnail (libvips-tools) is not installed"
fi
