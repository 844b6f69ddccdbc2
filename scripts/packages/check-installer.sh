#!/usr/bin/env bash
# Installs Kivu for Windows by its installer under Wine, starts it, and removes it again:
#
#     scripts/packages/check-installer.sh INSTALLER [SCREENSHOT_DIR]
#
# By what lies there, and never by how a program ends: an installer that does nothing ends well, too.
set -euo pipefail

installer=$(realpath "$1")
here=$(cd "$(dirname "$0")/../.." && pwd)
shots=${2:-$here/tour/installer}
. "$here/scripts/screen.sh"
. "$here/scripts/packages/window.sh"
. "$here/scripts/packages/wine.sh"
cp "$installer" "$work/kivu-install.exe"

[ "$(sed -n 1p "$here/packaging/windows/kivu.nsi")" = "Target amd64-unicode" ] || Fail "the stub may be one of 32 bits"
file "$installer" | grep -q 'PE32+ .*x86-64' || Fail "the installer is none of 64 bits"

StartWindows
user=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Local)
place=$user/Programs/Kivu
link=$(dirname "$user")/Roaming/Microsoft/Windows/'Start Menu'/Programs/Kivu.lnk
key='HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall\Kivu'

# The uninstaller goes on by a copy of itself.
Working() { pgrep -f '[\\/]kivu-install\.exe|Uninstall\.exe|nsu.*\.exe|[AU][un]_[A-Z]?\.exe'; }
Idle() { ! Working; }
Install() {
  timeout 120 wine "$work/kivu-install.exe" /S >"$work/kivu.log" 2>&1 || true
  Until 60 Idle || Fail "the installer does not end"
}
Uninstall() { timeout 120 wine "$place/Uninstall.exe" /S >"$work/kivu.log" 2>&1 || true; }
FilesOf() { (cd "$1" && find . -type f | sort); }
Registered() { wine reg query "$key" /v "$1" 2>/dev/null | grep -qF "$2"; }

echo "The installer under Wine:"
# Kivu's own calls are those of Windows 10.
winecfg -v win81
Install
[ ! -e "$place" ] || Fail "it installs on a Windows that is too old"
winecfg -v win10
# Where another program lies: its uninstaller may have the same name.
mkdir -p "$place"
echo theirs >"$place/Uninstall.exe"
Install
[ "$(FilesOf "$place")" = ./Uninstall.exe ] && grep -qx theirs "$place/Uninstall.exe" ||
  Fail "it takes another program's uninstaller for its own"
rm -r "$place"
Install
for file in Kivu.exe Uninstall.exe LICENSE.txt README.md CHANGELOG.md docs/book/README.md Skins/Papier/Skin.ini; do
  [ -s "$place/$file" ] || Fail "it has not laid down $file"
done
[ -d "$place/Config" ] || Fail "there is no place for profiles"
[ -s "$link" ] || Fail "the start menu has no entry"
Registered DisplayVersion "$(sed -n 's/^project(Kivu VERSION \([0-9.]*\).*/\1/p' "$here/CMakeLists.txt")" ||
  Fail "the system's list of programs does not name it"

# As the start menu does it.
wine start /unix "$link" >"$work/kivu.log" 2>&1 &
ExpectWindow start "the installed program, by its start menu entry"
[ -d "$place/Config" ] || Fail "it has no Config"

# Neither replaced nor removed while it runs.
rm "$place/docs/book/README.md"
FilesOf "$place" >"$work/before"
Install
Uninstall
Until 60 Idle || Fail "the uninstaller does not end"
FilesOf "$place" | diff "$work/before" - || Fail "the running program was touched"
FindKivu || Fail "the running program has gone"
EndKivu
AllEnded

# Over an older one: what the user has made stays.
mkdir -p "$place/Config/Amiga" "$place/Skins/Mine"
echo mine | tee "$place/Config/Amiga/Kivu.ini" >"$place/Skins/Mine/Skin.ini"
FilesOf "$place/Config" >"$work/profiles"
Install
[ -s "$place/docs/book/README.md" ] || Fail "a second run lays down nothing"
FilesOf "$place/Config" | diff "$work/profiles" - || Fail "a second run has touched the profiles"
Registered UninstallString Uninstall.exe || Fail "a second run is not registered"

Uninstall
Removed() { [ ! -e "$place/Kivu.exe" ] && [ ! -e "$place/Uninstall.exe" ] && [ ! -e "$link" ]; }
Until 60 Removed || Fail "the program was not removed"
Until 60 Idle || Fail "the uninstaller does not end"
{
  sed 's|^\.|./Config|' "$work/profiles"
  echo ./Skins/Mine/Skin.ini
} >"$work/kept"
FilesOf "$place" | diff "$work/kept" - || Fail "another than the user's files stayed, or one of them went"
! Registered UninstallString . || Fail "the system's list still names it"
echo "The installer lays down and removes what it must."
