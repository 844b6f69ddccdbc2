#!/usr/bin/env bash
# Builds Kivu and starts it on the demo collection. Without a display it takes a tour of itself on a
# virtual one and leaves screenshots in tour/.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh build run
cmake --preset release >/dev/null
cmake --build --preset release

program_dir=$PWD/build/release/program
[ -d "$program_dir/Config" ] || demo/build.sh "$program_dir"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$program_dir/Kivu" "$@"
fi
scripts/install-packages.sh screen
cmake --build --preset release --target try_colors
exec scripts/tour.sh "$program_dir"
