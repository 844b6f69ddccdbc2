#!/usr/bin/env bash
# Unpacks the zip for Windows and runs its program under Wine: check-zip.sh ZIP [SCREENSHOT_DIR]
set -euo pipefail

zip=$(realpath "$1")
here=$(cd "$(dirname "$0")/../.." && pwd)
shots=${2:-$here/tour/zip}
. "$here/scripts/screen.sh"
. "$here/scripts/packages/window.sh"
. "$here/scripts/packages/wine.sh"

place="$work/Jörg & Söhne"
mkdir "$place"
unzip -q "$zip" -d "$place"
for file in Kivu.exe LICENSE.txt README.md CHANGELOG.md docs/book/README.md Skins/Papier/Skin.ini; do
  [ -s "$place/Kivu/$file" ] || Fail "the zip lacks $file"
done
"$here/scripts/packages/dead-links.sh" "$place/Kivu" || Fail "a document leads to none that is there"
[ "$(cd "$place" && echo *)" = Kivu ] || Fail "the zip spills more than its directory: $(ls "$place")"

StartWindows
echo "The zip's program under Wine:"
(cd "$place/Kivu" && exec wine Kivu.exe >"$work/kivu.log" 2>&1) &
kivu=$!
ExpectWindow start "its window"
EndKivu
AllEnded
# It keeps its data beside itself.
[ -s "$place/Kivu/Config/Kivu.ini" ] || Fail "its data lie elsewhere"
echo "The zip holds what it needs."
