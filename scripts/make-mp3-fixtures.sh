#!/usr/bin/env bash
# Makes the small MP3 and WAV fixtures under tests/fixtures/mp3/ with real
# tools (ffmpeg, lame, mutagen) and writes manifest.tsv with what those tools
# report about each file. With the path of a built tarnwick-cli as first
# argument it also writes tags with "tarnwick-cli tags --set" and checks them
# with mutagen and ffprobe (readback.tsv). The tests read only the committed
# files; they never need the tools. Run scripts/install-fixture-tools.sh first.
set -euo pipefail

root="$(cd "$(dirname "$0")/.." && pwd)"
out="$root/tests/fixtures/mp3"
cli="${1:-}"
python=/usr/bin/python3
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"

ff() { ffmpeg -hide_banner -loglevel error -y "$@"; }
sine() { ff -f lavfi -i "sine=frequency=440:duration=$1" -ar "$2" -ac "$3" "$4"; }

sine 0.3 22050 1 "$work/s22.wav"
sine 0.3 44100 2 "$work/s44.wav"

# Streams: CBR with an Info header, VBR with a Xing header, CBR without either.
lame --quiet --noreplaygain -b 128 "$work/s44.wav" "$out/lame_cbr.mp3"
lame --quiet --noreplaygain -V 6 "$work/s44.wav" "$out/lame_vbr.mp3"
lame --quiet --noreplaygain -b 32 -t "$work/s22.wav" "$out/lame_plain.mp3"
ff -i "$work/s22.wav" -c:a libmp3lame -b:a 32k -ar 16000 -ac 1 -id3v2_version 0 \
  -write_xing 0 "$out/ffmpeg_cbr.mp3"
ff -i "$work/s44.wav" -c:a libmp3lame -q:a 6 -id3v2_version 0 "$out/ffmpeg_vbr.mp3"
# ffmpeg's own version 2.3 tag.
ff -i "$work/s22.wav" -c:a libmp3lame -b:a 32k -id3v2_version 3 -metadata title="FF Title" \
  -metadata artist="FF Artist" -metadata album="FF Album" -metadata date=1999 \
  -metadata track=3 -metadata genre=Jazz "$out/ffmpeg_v23.mp3"

# Version 1 tags by lame, with and without a track number.
lame --quiet --noreplaygain -b 32 --id3v1-only --tt "Lame Title" --ta "Lame Artist" \
  --tl "Lame Album" --ty 2001 --tc "a comment" --tn 5 --tg Rock \
  "$work/s22.wav" "$out/v1_track.mp3"
lame --quiet --noreplaygain -b 32 --id3v1-only --tt "Plain Title" --ta "Plain Artist" \
  --tc "a comment that runs to thirty" --tg Blues "$work/s22.wav" "$out/v1_plain.mp3"

# A WAV file for the length column: 2.6 seconds of 8-bit mono at 8 kHz.
ff -f lavfi -i "sine=frequency=440:duration=2.6" -ar 8000 -ac 1 -c:a pcm_u8 "$out/tone.wav"

# Version 2 tags by mutagen and hand-made variants, and the manifest.
"$python" "$root/scripts/mp3_fixture_tags.py" "$out"

if [ -n "$cli" ]; then
  "$python" "$root/scripts/mp3_fixture_tags.py" --readback "$cli" "$out"
fi
du -cb "$out"/* | tail -1
