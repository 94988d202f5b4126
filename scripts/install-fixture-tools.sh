#!/usr/bin/env bash
# Installs the real tools that make and check the media fixtures and serve as
# peers in the media benchmarks. The tests never need them: the fixtures they
# read are committed under tests/fixtures/ with a manifest of what the tools
# reported. Idempotent, like install-deps.sh.
set -euo pipefail

packages=(
  ffmpeg lame python3 python3-mutagen libimage-exiftool-perl exiv2
  libjpeg-turbo-progs
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "install-fixture-tools: installing ${missing[*]}"
sudo_cmd=()
[ "$(id -u)" -ne 0 ] && sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
