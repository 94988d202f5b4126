#!/usr/bin/env bash
# Makes the EXIF and ASF fixtures under tests/fixtures/exif and
# tests/fixtures/asf with real tools, and the manifests of what those tools
# report. Needs the tools of scripts/install-fixture-tools.sh; the tests only
# read the committed results.
set -euo pipefail

root="$(cd "$(dirname "$0")/.." && pwd)"
exif_dir="$root/tests/fixtures/exif"
asf_dir="$root/tests/fixtures/asf"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT

for tool in exiftool exiv2 ffmpeg ffprobe cjpeg python3; do
  command -v "$tool" >/dev/null || { echo "make-exif-fixtures: $tool is missing (run scripts/install-fixture-tools.sh)" >&2; exit 1; }
done
mkdir -p "$exif_dir" "$asf_dir"

# A 16x16 picture without any metadata.
python3 - "$work/plain.ppm" <<'PY'
import sys
w = h = 16
pixels = bytes(((x * 16 + y * 3 + c * 80) % 256) for y in range(h) for x in range(w) for c in range(3))
open(sys.argv[1], "wb").write(b"P6\n%d %d\n255\n" % (w, h) + pixels)
PY
cjpeg -quality 40 "$work/plain.ppm" > "$work/plain.jpg"
cp "$work/plain.jpg" "$exif_dir/no_exif.jpg"

# Every tag of the reader's table that exiftool writes; the interoperability
# index makes the interoperability directory (and its offset tag).
full_tags=(
  -ImageDescription="Harbour at dusk" -Make="Oakhollow Optics" -Model="TW-16"
  -Orientation#=6 -XResolution#=72 -YResolution#=300/4 -ResolutionUnit#=2
  -Software="Tarnwick fixtures 1.0" -ModifyDate="2005:06:07 08:09:10"
  -WhitePoint#="0.3127 0.329" -PrimaryChromaticities#="0.64 0.33 0.3 0.6 0.15 0.06"
  -YCbCrCoefficients#="0.299 0.587 0.114" -YCbCrPositioning#=2
  -ReferenceBlackWhite#="0 255 128 255 128 255" -Copyright="Oakhollow 2004"
  -ExposureTime#=1/125 -FNumber#=2.8 -ExposureProgram#=2 -ISO#=200 -ExifVersion=0221
  -DateTimeOriginal="2004:04:12 11:38:00" -CreateDate="2004:04:13 12:39:01"
  -ComponentsConfiguration#="1 2 3 0" -CompressedBitsPerPixel#=2
  -ShutterSpeedValue=1/60 -ApertureValue#=4 -BrightnessValue#=8.25
  -ExposureCompensation#=1/3 -MaxApertureValue#=2.8 -SubjectDistance#=1.5
  -MeteringMode#=5 -LightSource#=1 -ExifIFD:Flash#=1 -FocalLength#=7.8 -UserComment="Seen from the pier"
  -SubSecTime=12 -SubSecTimeOriginal=34 -SubSecTimeDigitized=56 -FlashpixVersion=0100
  -ColorSpace#=1 -ExifImageWidth=16 -ExifImageHeight=16 -RelatedSoundFile="DSCN0001.WAV"
  -InteropIndex=R98 -FocalPlaneXResolution#=2048 -FocalPlaneYResolution#=1536
  -FocalPlaneResolutionUnit#=2 -ExposureIndex#=100 -SensingMethod#=2 -FileSource#=3
  -SceneType#=1 -CFAPattern#="2 2 0 1 1 2"
)

write_exif() {  # out byte-order tags...
  local out="$1" order="$2"
  shift 2
  cp "$work/plain.jpg" "$out"
  exiftool -q -q -overwrite_original -ExifByteOrder="$order" "$@" "$out"
}

write_exif "$exif_dir/full_intel.jpg" II "${full_tags[@]}"
write_exif "$exif_dir/full_motorola.jpg" MM "${full_tags[@]}"
# MakerNote: exiftool keeps no maker note it cannot parse, so exiv2 adds it
# (bytes "Hello", NUL, 1, 2, "Wor", a byte 200 and "ld").
for f in full_intel full_motorola; do
  exiv2 -M"set Exif.Photo.MakerNote Undefined 14 72 101 108 108 111 0 1 2 87 111 114 200 108 100" \
    "$exif_dir/$f.jpg"
done

# Negative rationals and a rational with a denominator of 0.
write_exif "$exif_dir/negative_motorola.jpg" MM -ExposureCompensation#=-1/3 \
  -BrightnessValue#=-2.5 -DateTimeOriginal="2010:12:31 23:59:58"
write_exif "$exif_dir/negative_intel.jpg" II -ExposureCompensation#=-1/3 \
  -BrightnessValue#=-2.5 -DateTimeOriginal="2010:12:31 23:59:58"
# Only the first directory: no EXIF directory at all.
write_exif "$exif_dir/ifd0_only.jpg" II -Make="Oakhollow Optics" -Model="TW-16"
exiftool -q -q -overwrite_original -ExifIFD:all= "$exif_dir/ifd0_only.jpg"

# EXIF behind 4096 bytes: a comment segment of 5000 bytes in front of it.
python3 - "$exif_dir/negative_intel.jpg" "$exif_dir/late_exif.jpg" <<'PY'
import sys
data = open(sys.argv[1], "rb").read()
comment = b"\xff\xfe" + (5002).to_bytes(2, "big") + b"x" * 5000
open(sys.argv[2], "wb").write(data[:2] + comment + data[2:])
PY

# The manifest: what exiftool reports of the first directory and the EXIF
# directory, as numbers (-n): file, group, tag number, name, value.
python3 - "$exif_dir" <<'PY'
import json, os, subprocess, sys
folder = sys.argv[1]
rows = []
for name in sorted(os.listdir(folder)):
    if not name.endswith(".jpg"):
        continue
    out = subprocess.run(["exiftool", "-j", "-D", "-n", "-G1", "-a", "-u", "-b",
                          os.path.join(folder, name)], capture_output=True, text=True).stdout
    data = json.loads(out)[0]
    order = data.get("File:ExifByteOrder", {})
    rows.append((name, "File", "-", "ExifByteOrder", order.get("val", "") if order else ""))
    for key, value in data.items():
        group, _, tag = key.partition(":")
        if group not in ("IFD0", "ExifIFD") or not isinstance(value, dict):
            continue
        shown = value["val"]
        if isinstance(shown, str) and shown.startswith("base64:"):
            continue
        rows.append((name, group, str(value["id"]), tag, str(shown).replace("\t", " ").replace("\n", " ")))
with open(os.path.join(folder, "manifest.tsv"), "w") as f:
    f.write("# made by scripts/make-exif-fixtures.sh with exiftool -j -D -n -G1\n")
    for row in rows:
        f.write("\t".join(row) + "\n")
PY

# ASF: a tenth of a second of sound, with the attributes ffmpeg writes (all
# of them as texts; the other types are tested on built bytes).
make_wma() {  # out codec metadata...
  local out="$1" codec="$2"
  shift 2
  ffmpeg -v error -y -f lavfi -i "sine=frequency=440:duration=0.1" -ac 1 -ar 8000 \
    -c:a "$codec" -b:a 32k "$@" "$out"
}
make_wma "$asf_dir/tagged.wma" wmav2 -metadata title="Harbour Song" -metadata author="Tarnwick Band" \
  -metadata album="Pier Sessions" -metadata year=2004 -metadata track=7 \
  -metadata copyright="Oakhollow 2004" -metadata comment="Recorded at dusk" \
  -metadata genre="Folk" -metadata "Custom Text"="free text" -metadata "MoodNumber"=42
make_wma "$asf_dir/plain.wma" wmav1 -map_metadata -1 -fflags +bitexact
make_wma "$asf_dir/umlauts.wma" wmav2 -metadata title="Grüße aus Köln" -metadata artist="Zoë"
python3 - "$asf_dir" <<'PY'
import json, os, subprocess, sys
folder = sys.argv[1]
with open(os.path.join(folder, "manifest.tsv"), "w") as f:
    f.write("# made by scripts/make-exif-fixtures.sh with ffprobe -show_format\n")
    for name in sorted(os.listdir(folder)):
        if not name.endswith(".wma"):
            continue
        out = subprocess.run(["ffprobe", "-v", "error", "-of", "json", "-show_format",
                              os.path.join(folder, name)], capture_output=True, text=True).stdout
        fmt = json.loads(out)["format"]
        f.write("\t".join((name, "duration", fmt.get("duration", ""))) + "\n")
        for key, value in sorted(fmt.get("tags", {}).items()):
            f.write("\t".join((name, key, value.replace("\t", " "))) + "\n")
PY
du -ch "$exif_dir" "$asf_dir" | tail -1
