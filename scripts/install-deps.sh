#!/usr/bin/env bash
# Installs the Debian packages that Tarnwick's build, tests and benchmarks need.
# rename: the Perl rename tool, a peer of the rename run's benchmark.
# strace: counts the system calls per file in scripts/bench-run.sh.
# fonts-dejavu-core: a font for the window's screenshots on machines without one.
# qt6-multimedia-dev: the desktop window plays the finish sound through Qt Multimedia.
# clang, libclang-rt-14-dev: libFuzzer for `make fuzz` and `make fuzz-run`.
# qt6-translations-l10n: Qt's own texts (Yes/No, file dialogues) in German.
# libjpeg-turbo-progs, imagemagick, libvips-tools: cjpeg, convert and
#   vipsthumbnail, the peers of the picture tools in scripts/bench-pictures.sh.
# libxml2-utils: xmllint, which the tests ask whether an XML export is well-formed.
# Idempotent: when everything is present it only checks and returns.
set -euo pipefail

packages=(
  build-essential g++ cmake ninja-build pkg-config ccache make git
  libgtest-dev libgmock-dev libbenchmark-dev
  libicu-dev libpcre2-dev libpugixml-dev libssl-dev uuid-dev
  libjpeg62-turbo-dev libpng-dev libtiff-dev libgif-dev
  python3
  rename strace libjpeg-turbo-progs imagemagick libvips-tools libxml2-utils
  qt6-base-dev qt6-multimedia-dev qt6-translations-l10n fonts-dejavu-core
  clang libclang-rt-14-dev
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
  sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
