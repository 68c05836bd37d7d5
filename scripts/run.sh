#!/usr/bin/env bash
# Installs what is missing, builds the editor and starts it; arguments go to the editor.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
bash "$here/scripts/install-deps.sh"
cmake -S "$here" -B "$here/build" -G Ninja -DTESSARINE_BENCH=OFF >/dev/null
cmake --build "$here/build" -j2 --target tessarine
exec "$here/build/src/tessarine" "$@"
