#!/usr/bin/env bash
# Builds Kivu.exe for Windows on Debian: build/windows/program/Kivu.exe, one file that needs nothing beside it, and
# build/windows/Kivu-<version>-windows.zip to be unpacked anywhere.
set -euo pipefail
cd "$(dirname "$0")/.."

. scripts/windows/prepare.sh
cmake --build --preset windows --target Kivu

program=build/windows/program/Kivu.exe
scripts/windows/check-program.sh "$program"

version="$(sed -n 's/^project(Kivu VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)"
package="build/windows/Kivu-$version-windows.zip"
folder=build/windows/package/Kivu
rm -rf build/windows/package "$package"
mkdir -p "$folder/Config" "$folder/docs" "$folder/Skins"
cp "$program" "$folder/"
cp LICENSE "$folder/LICENSE.txt"
cp README.md "$folder/README.md"
cp docs/*.md docs/*.png "$folder/docs/"
cp -R assets/skins/* "$folder/Skins/"
(cd build/windows/package && zip -qr "../$(basename "$package")" Kivu)
echo "$package"
