#!/usr/bin/env bash
# Builds Kivu with its tests and runs them all. Arguments go to ctest (for example -R scanner).
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh build run screen test
cmake --preset "${KIVU_PRESET:-test}" >/dev/null
cmake --build --preset "${KIVU_PRESET:-test}"
demo/build.sh build/demo >/dev/null
ctest --preset "${KIVU_PRESET:-test}" -j "$(nproc)" "$@"
