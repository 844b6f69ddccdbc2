#!/usr/bin/env bash
# Builds the libraries that Windows programs of this tree are linked with, static, from Debian's source packages:
# Qt, and for the tests libpng. Prints the directory they lie in. It is kept under ~/.cache/kivu, named after the
# versions and options, and made again when missing (12 to 15 minutes on two cores).
set -euo pipefail
cd "$(dirname "$0")/../.."

root="$PWD"
cache="${KIVU_CACHE:-$HOME/.cache/kivu}"
qt_version="$(dpkg-query -W -f '${Version}' qt6-base-dev)"
png_version="$(dpkg-query -W -f '${Version}' libpng-dev)"

# Off: what the launcher does not use, pen tablets (the header is not in the package) and DirectWrite 3 (a static
# program with it does not link with MinGW).
qt_options=(
  -DBUILD_SHARED_LIBS=OFF
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF
  -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_printsupport=OFF -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF
  -DINPUT_opengl=no -DFEATURE_dynamicgl=OFF
  -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_network=OFF
  -DFEATURE_tabletevent=OFF -DFEATURE_directwrite3=OFF
  -DFEATURE_system_jpeg=OFF -DFEATURE_system_png=OFF -DFEATURE_system_zlib=OFF
)
zlib=/usr/x86_64-w64-mingw32
png_options=(-DPNG_SHARED=OFF -DPNG_TESTS=OFF
             "-DZLIB_LIBRARY=$zlib/lib/libz.a" "-DZLIB_INCLUDE_DIR=$zlib/include")

key="$(printf '%s\n' "$qt_version" "$png_version" "${qt_options[@]}" "${png_options[@]}" |
       cat - cmake/mingw.cmake | sha256sum | cut -c1-16)"
prefix="$cache/windows-libraries-$key"
if [ -e "$prefix/complete" ]; then
  echo "$prefix"
  exit 0
fi

# A build that was broken off goes on where it stood.
work="$prefix.work"

# build NAME VERSION OPTIONS...: fetch, configure, build and install one library.
build() {
  local name="$1" version="$2" source
  shift 2
  echo "Building $name $version for Windows"
  if [ ! -e "$work/$name/source" ]; then
    rm -rf "${work:?}/$name"
    source="$(scripts/fetch-source.sh "$name" "$version" "$work/$name")"
    mv "$source" "$work/$name/source"
  fi
  step() {
    "$@" >"$work/log" 2>&1 || { tail -n 60 "$work/log"; exit 1; }
  }
  step cmake -S "$work/$name/source" -B "$work/$name/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw.cmake" \
    -DCMAKE_BUILD_TYPE=MinSizeRel -DCMAKE_INSTALL_PREFIX="$prefix" "$@"
  step ninja -C "$work/$name/build"
  step ninja -C "$work/$name/build" install
}

{
  build libpng1.6 "$png_version" "${png_options[@]}"
  build qt6-base "$qt_version" "${qt_options[@]}" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQt6HostInfo_DIR=/usr/lib/x86_64-linux-gnu/cmake/Qt6HostInfo
  touch "$prefix/complete"
  rm -rf "$work"
} >&2

echo "$prefix"
