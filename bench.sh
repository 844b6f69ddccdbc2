#!/usr/bin/env bash
# Builds the benchmarks and prints each as a ratio against a yardstick of the same run.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh build run screen bench
KIVU_SSE2_LIBPNG="$(scripts/sse2-libpng.sh)" || echo "Without a libpng that has SSE2 filters." >&2
export KIVU_SSE2_LIBPNG
cmake --preset bench >/dev/null
cmake --build --preset bench
exec bench/run.sh build/bench "$@"
