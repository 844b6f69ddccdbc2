#!/usr/bin/env bash
# Builds Qt's static libraries for Windows from Debian's source package and prints where they lie. The result is
# kept under ~/.cache/kivu, named after the package's version and the options, and built again when missing
# (12 to 15 minutes on two cores).
set -euo pipefail
cd "$(dirname "$0")/.."

root="$PWD"
cache="${KIVU_CACHE:-$HOME/.cache/kivu}"
version="$(dpkg-query -W -f '${Version}' qt6-base-dev)"

# Off: what the launcher does not use, pen tablets (the header is not in the package) and DirectWrite 3 (a static
# program with it does not link with MinGW).
options=(
  -DCMAKE_BUILD_TYPE=MinSizeRel
  -DBUILD_SHARED_LIBS=OFF
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF
  -DFEATURE_sql=OFF -DFEATURE_dbus=OFF -DFEATURE_printsupport=OFF -DFEATURE_opengl=OFF -DFEATURE_vulkan=OFF
  -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF -DFEATURE_network=OFF
  -DFEATURE_tabletevent=OFF -DFEATURE_directwrite3=OFF
  -DFEATURE_system_jpeg=OFF -DFEATURE_system_png=OFF
)

key="$(printf '%s\n' "$version" "${options[@]}" | cat - cmake/mingw.cmake | sha256sum | cut -c1-12)"
prefix="$cache/qt-windows-${version//[^0-9A-Za-z.]/-}-$key"
if [ -e "$prefix/complete" ]; then
  echo "$prefix"
  exit 0
fi

{
  work="$(mktemp -d)"
  trap 'rm -rf "$work"' EXIT

  echo "Fetching the source of qt6-base $version"
  # The machine's own package sources, as source packages and in lists of our own: its set-up stays untouched.
  mkdir -p "$work/sources.d" "$work/lists/partial" "$work/archives/partial"
  for file in /etc/apt/sources.list.d/*.sources; do
    [ -e "$file" ] && sed 's/^Types:.*/Types: deb-src/' "$file" >"$work/sources.d/$(basename "$file")"
  done
  if [ -s /etc/apt/sources.list ]; then
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$work/sources.d/main.list"
  fi
  apt=(-qq -o "Dir::Etc::sourcelist=/dev/null" -o "Dir::Etc::sourceparts=$work/sources.d"
       -o "Dir::State::lists=$work/lists" -o "Dir::Cache::archives=$work/archives"
       -o "Dir::Cache::srcpkgcache=" -o "Dir::Cache::pkgcache=" -o "APT::Sandbox::User=$(id -un)")
  apt-get "${apt[@]}" update
  (cd "$work" && apt-get "${apt[@]}" source "qt6-base=$version")
  source="$(find "$work" -maxdepth 1 -type d -name 'qt6-base-*')"

  echo "Building Qt for Windows"
  cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw.cmake" \
    -DCMAKE_INSTALL_PREFIX="$prefix.part" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQt6HostInfo_DIR=/usr/lib/x86_64-linux-gnu/cmake/Qt6HostInfo "${options[@]}" >"$work/configure.log" 2>&1 ||
    { tail -n 40 "$work/configure.log"; exit 1; }
  ninja -C "$work/build" >"$work/build.log" 2>&1 || { tail -n 60 "$work/build.log"; exit 1; }
  rm -rf "$prefix.part" "$prefix"
  ninja -C "$work/build" install >"$work/install.log" 2>&1 || { tail -n 20 "$work/install.log"; exit 1; }
  touch "$prefix.part/complete"
  mv "$prefix.part" "$prefix"
} >&2

echo "$prefix"
