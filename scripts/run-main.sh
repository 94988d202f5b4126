#!/usr/bin/env bash
# `make run`: Tarnwick's main job. The desktop window is not built yet, so
# this runs the unattended demonstration on a generated sample folder.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
# With a display: the desktop window on the home folder.
if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
  exec "$root/build/release/app/gui/tarnwick" "$HOME"
fi
cli="$root/build/release/app/cli/tarnwick-cli"
demo="$(mktemp -d /tmp/tarnwick-demo-XXXXXX)"
export XDG_CONFIG_HOME="$demo/config" XDG_DATA_HOME="$demo/data"

echo "== Tarnwick demo (the desktop window is not built yet; this is the unattended demo)"
"$cli" --version
echo "== Options live in $XDG_CONFIG_HOME/Oakhollow/Tarnwick.ini for this demo"
"$cli" options set Options DateFormat dd.mm.yyyy
"$cli" options set Options IllegalCharReplacer " "
echo "DateFormat = $("$cli" options get Options DateFormat)"
"$cli" options list Options
echo "== Demo folder kept at $demo"
