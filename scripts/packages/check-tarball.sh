#!/usr/bin/env bash
# Unpacks the tarball and runs its program on a virtual display where the system's own Qt, ICU and all else that the
# tarball brings cannot be read: check-tarball.sh TARBALL [SCREENSHOT_DIR]
set -euo pipefail

tarball=$(realpath "$1")
here=$(cd "$(dirname "$0")/../.." && pwd)
shots=${2:-$here/tour/tarball}
. "$here/scripts/screen.sh"
. "$here/scripts/packages/window.sh"

kivu=0
Finish() {
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

place="$work/Jörg & Söhne"
mkdir "$place"
tar -xf "$tarball" -C "$place"
program_dir=$(echo "$place"/Kivu-*)
for file in Kivu qt.conf lib/libQt6Core.so.6 plugins/platforms/libqxcb.so licences/libqt6core6.txt LICENSE; do
  [ -s "$program_dir/$file" ] || Fail "the tarball lacks $file"
done
"$here/scripts/packages/dead-links.sh" "$program_dir" || Fail "a document leads to none in the tarball"
[ "$(find "$program_dir" -name '*.so*' -newermt '@'"$(date +%s)" | wc -l)" -eq 0 ] || Fail "its times are those of its making"

as=(unshare -m)
[ "$(id -u)" -eq 0 ] || as=(unshare -Urm)
alone=("${as[@]}" "$here/scripts/packages/run-alone.sh" "$program_dir")
mkdir -p "$work/home"
mkdir -m 700 "$work/run"
StartScreen
if "${as[@]}" true 2>/dev/null; then
  echo "The tarball's program where the system's Qt is hidden:"
else
  echo "The tarball's program; nothing can be mounted here: THE SYSTEM'S QT IS NOT HIDDEN."
  alone=("$program_dir/Kivu")
fi
# None of the tree's variables: only what a desktop gives.
env -i PATH="$PATH" TMPDIR="$work" HOME="$work/home" XDG_RUNTIME_DIR="$work/run" DISPLAY="$DISPLAY" LANG=C.UTF-8 \
  "${alone[@]}" 2>"$work/kivu.log" &
kivu=$!
ExpectWindow start "its window"

# Of Qt and ICU it has its own, and it leaves no variable for the emulators.
! grep -E '/lib(Qt6|icu)' "/proc/$kivu/maps" | grep -vF "$program_dir/" || Fail "a library of the system's is in use"
grep -qF "$program_dir/lib/libQt6Core.so.6" "/proc/$kivu/maps" || Fail "its own Qt is not in use"
! tr '\0' '\n' <"/proc/$kivu/environ" | grep '^LD_' || Fail "it runs by a variable"
# What lies in a directory of the user's own keeps its data there.
[ -d "$program_dir/Config" ] || Fail "it keeps its data elsewhere"
EndKivu
kivu=0
echo "The tarball holds what it needs."
