#!/usr/bin/env bash
# Builds libpng from Debian's source package with its SSE2 filters, which Debian's own leaves out, with the flags of
# the benchmarks. Prints the path of the library. It is kept under ~/.cache/kivu, named after version and flags.
set -euo pipefail
cd "$(dirname "$0")/.."

version="$(dpkg-query -W -f '${Version}' libpng-dev)"
options=(-DCMAKE_BUILD_TYPE=Release -DPNG_INTEL_SSE=on -DPNG_STATIC=OFF -DPNG_TESTS=OFF -DPNG_EXECUTABLES=OFF)
key="$(printf '%s\n' "$version" "${options[@]}" | sha256sum | cut -c1-16)"
library="${KIVU_CACHE:-$HOME/.cache/kivu}/libpng-sse2-$key/libpng16.so"
if [ ! -e "$library" ]; then
  {
    echo "Building libpng $version with its SSE2 filters"
    work="$(mktemp -d)"
    trap 'rm -rf "$work"' EXIT
    source="$(scripts/fetch-source.sh libpng1.6 "$version" "$work/package")"
    cmake -S "$source" -B "$work/build" -G Ninja "${options[@]}"
    ninja -C "$work/build"
    mkdir -p "${library%/*}"
    cp -L "$work/build/libpng16.so" "$library.$$"
    mv "$library.$$" "$library"
  } >&2
fi
echo "$library"
