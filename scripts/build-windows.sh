#!/usr/bin/env bash
# Builds Kivu.exe for Windows on Debian: build/windows/program/Kivu.exe, one file that needs nothing beside it, and
# build/windows/Kivu-<version>-windows.zip to be unpacked anywhere. scripts/build-installer.sh makes an installer of it.
set -euo pipefail
cd "$(dirname "$0")/.."

. scripts/release.sh
. scripts/windows/prepare.sh
cmake --build --preset windows --target Kivu

program=build/windows/program/Kivu.exe
scripts/windows/check-program.sh "$program"

package="build/windows/Kivu-$version-windows.zip"
folder=build/windows/package/Kivu
rm -rf build/windows/package "$package"
mkdir -p "$folder/Config" "$folder/docs" "$folder/Skins"
cp "$program" "$folder/"
cp LICENSE "$folder/LICENSE.txt"
cp README.md CHANGELOG.md "$folder/"
cp -R docs/book docs/{install,profiles,skins}.md docs/*.sh "$folder/docs/"
cp -R assets/skins/* "$folder/Skins/"
# The same files give the same bytes.
SetTimes "$folder"
(cd build/windows/package && find Kivu | sort | zip -qX "../$(basename "$package")" -@)
echo "$package"
