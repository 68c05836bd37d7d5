#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests (widget tests offscreen).
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
bash "$here/scripts/install-deps.sh"
cmake -S "$here" -B "$here/build" -G Ninja >/dev/null
cmake --build "$here/build" -j2
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$here/build" --output-on-failure -j2 --timeout 300
