#!/usr/bin/env bash
# Installs the Debian packages Tessarine builds and runs with; skips what is present.
set -euo pipefail
pkgs=(build-essential cmake ninja-build ccache
      qt6-base-dev qt6-qpa-plugins libqscintilla2-qt6-dev
      libtidy-dev libhunspell-dev hunspell-en-us
      libgtest-dev libbenchmark-dev
      tango-icon-theme libqt6svg6 pkg-config
      clang libclang-rt-14-dev
      chromium python3 linkchecker)
missing=()
for p in "${pkgs[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0
sudo=""
[ "$(id -u)" -ne 0 ] && sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
