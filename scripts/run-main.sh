#!/usr/bin/env bash
# `make run`: Tarnwick's main job. With a display, the desktop window on the
# home folder. Without one, the unattended
# run "tarnwick SETTINGS.twr -d" on a generated sample folder, showing the
# folder before and after, the undo batch, and the undo itself. The demo
# folder's name holds no "-d": the command line drops every "-d" it holds.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
# With a display: the desktop window on the home folder.
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec "$root/build/release/app/gui/tarnwick" "$HOME"
fi
bin="$root/build/release/app"
cli="$bin/cli/tarnwick-cli"
tarnwick="$bin/gui/tarnwick"

demo="$(mktemp -d /tmp/tarnwick_demo.XXXXXX)"
export XDG_CONFIG_HOME="$demo/config" XDG_DATA_HOME="$demo/data"
photos="$demo/Holiday photos"
mkdir -p "$photos"

say() { printf '\n== %s\n' "$*"; }
show_folder() { (cd "$photos" && ls -1); }

# A small folder as a camera and a music player leave it: mixed case, blanks,
# one picture with EXIF and one MP3 with ID3 tags from the test fixtures.
for n in 0041 0042 0043; do printf 'jpeg %s' "$n" > "$photos/IMG_$n.JPG"; done
printf 'notes' > "$photos/packing list.txt"
cp "$root/tests/fixtures/exif/full_intel.jpg" "$photos/DSC_7001.jpg"
cp "$root/tests/fixtures/mp3/v23_latin1.mp3" "$photos/track01.mp3"
touch -d '2026-07-14 09:30:00' "$photos"/*

say "$("$cli" --version | head -n 1): unattended demo (no display found)"
echo "Sample folder: $photos"
echo "Options, log and undo batches of this demo live under $demo"

say "Before"
"$cli" list "$photos" --tsv | cut -f1,2,4,9

settings="$demo/holiday.twr"
"$cli" settings write "$settings" \
  --set chkPrefix=1 --set 'txtPrefix={{yyyy-mm-dd}}_' \
  --set chkNumbers=1 --set optNumber=1 --set txtStartNumber=001 --set txtLimiter=_ \
  --set chkReplace=1 --set txtSearchString=IMG_ --set 'txtReplaceString=' \
  --save-path "$photos"
say "Settings file $settings (what the save button writes), unscrambled:"
"$cli" settings show "$settings"

say "What a test run would do (tarnwick-cli preview)"
"$cli" preview "$settings"

say "tarnwick $settings -d"
"$tarnwick" "$settings" -d && echo "exit status 0"

say "After"
show_folder

batch="$XDG_DATA_HOME/Oakhollow/Tarnwick/Undo Files/UndoBatch.bat"
say "Undo batch $batch"
tr -d '\r' < "$batch"

say "Log"
tr -d '\r' < "$XDG_DATA_HOME/Oakhollow/Tarnwick/Log Files/Tarnwick.log" | sed '/^$/d'

say "tarnwick-cli undo (takes the run back)"
"$cli" undo "$batch"
show_folder

say "Demo folder kept at $demo"
