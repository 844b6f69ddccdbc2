#!/usr/bin/env bash
# Builds the benchmarks and prints each as a ratio against a yardstick of the same run.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh build run screen bench
cmake --preset bench >/dev/null
cmake --build --preset bench
exec bench/run.sh build/bench "$@"
