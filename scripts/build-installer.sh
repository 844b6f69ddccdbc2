#!/usr/bin/env bash
# Makes the installer for Windows from what scripts/build-windows.sh has left in build/windows/package:
# build/windows/Kivu-<version>-windows-setup.exe
#
#     scripts/build-installer.sh [DIRECTORY [OUTPUT]]
#
# DIRECTORY holds the files to be installed (build/windows/package/Kivu).
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh installer
. scripts/release.sh
source="$(realpath "${1:-build/windows/package/Kivu}")"
output="$(realpath -m "${2:-build/windows/Kivu-$version-windows-setup.exe}")"

# Each file is named, to be laid down and to be removed: only a directory that has become empty goes with its files.
lists="$(mktemp -d)"
trap 'rm -rf "$lists"' EXIT
(
  cd "$source"
  find . -type d | sort | while IFS= read -r directory; do
    below="${directory#.}"
    printf 'SetOutPath "$INSTDIR%s"\n' "${below//\//\\}"
    find "$directory" -maxdepth 1 -type f -printf '%f\n' | sort | while IFS= read -r file; do
      printf 'File "%s"\n' "$source$below/$file"
    done
  done >"$lists/files.nsh"
  find . -depth -mindepth 1 -printf '%y %P\n' | while read -r kind path; do
    [ "$path" != Config ] || continue
    if [ "$kind" = d ]; then command=RMDir; else command=Delete; fi
    printf '%s "$INSTDIR\\%s"\n' "$command" "${path//\//\\}"
  done >"$lists/removal.nsh"
)
makensis -V2 -WX -INPUTCHARSET UTF8 "-DVERSION=$version" "-DSOURCE=$source" "-DLISTS=$lists" "-DTREE=$PWD" \
  "-DOUTPUT=$output" packaging/windows/kivu.nsi
echo "$output"
