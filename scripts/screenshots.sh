#!/usr/bin/env bash
# Makes the pictures in docs/ anew: the real program on a virtual display, in the look that it has now.
#
#     scripts/screenshots.sh [KIVU]
#
# KIVU is the program (build/release/program/Kivu). Needs the packages that scripts/install-packages.sh installs for
# "screen" and "run".
set -euo pipefail

here=$(cd "$(dirname "$0")/.." && pwd)
program=$(realpath "${1:-$here/build/release/program/Kivu}")
TOUR_SIZE=1600x1000
shots=$(mktemp -d)
. "$here/scripts/screen.sh"

kivu=0
Finish() {
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  StopScreen
  rm -rf "$shots"
}
trap Finish EXIT

export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=xcb LANG=C.UTF-8
mkdir -p "$work/config"
mkdir -m 700 "$work/run"
StartScreen

# Dress [SKIN]: DOSBox in a skin that ships, or in none.
Dress() {
  rm -rf "$work/demo/Config/DOSBox/Skin"
  [ $# -eq 0 ] || cp -R "$here/assets/skins/$1" "$work/demo/Config/DOSBox/Skin"
}

# Open WIDTH HEIGHT ROW: the program in a window of so many pixels, with DOSBox and the title of that row chosen.
Open() {
  printf '[Settings]\r\nWindowX=%d\r\nWindowY=%d\r\nWindowTop=450\r\nWindowLeft=450\r\n' \
    $(($1 * 15)) $(($2 * 15)) >"$work/demo/Config/Kivu.ini"
  "$work/demo/Kivu" 2>"$work/kivu.log" &
  kivu=$!
  Until 30 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
  sleep 1
  # DOSBox is the second row, behind Disk Box.
  Click 110 52
  sleep 0.5
  Click 100 96
  xdotool key Down Return
  sleep 1
  xdotool key Right
  for _ in $(seq "$3"); do xdotool key Down; done
}
FindWindow() {
  window=$(xdotool search --onlyvisible --pid "$kivu" 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}

# Take NAME: the window with its round corners, nothing around it.
Take() {
  # Where no row lights up below it.
  xdotool mousemove 1590 990
  Shot "$1" "$1"
  local place
  place=$(xdotool getwindowgeometry --shell "$window")
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$place"
  convert "$last" -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage \
    \( -size "${WIDTH}x$HEIGHT" xc:none -fill white -draw "roundrectangle 0,0 $((WIDTH - 1)),$((HEIGHT - 1)) 30,30" \) \
    -compose CopyOpacity -composite "$shots/$1.png"
}

Close() {
  kill "$kivu"
  wait "$kivu" 2>/dev/null || true
  kivu=0
}

"$here/demo/build.sh" "$work/demo" >/dev/null
cp "$program" "$work/demo/Kivu"
# Its title is its path, which is that of a directory for now.
sed -i '/Hi\.x/d' "$work/demo/Config/DOSBox/Kivu_Cache.txt"

# Rows with pictures: 1 is Brick Bay, 7 Moon Miner, 13 Star Drift.
Dress
Open 1280 800 1
Take window
Close
row=13
for skin in Bernstein Papier Nachtwald; do
  Dress "$skin"
  Open 1024 700 "$row"
  Take "$skin"
  Close
  row=$((row == 13 ? 1 : 7))
done

# Few colours make small files, and nobody sees them missing.
convert "$shots/window.png" -resize 1280x -define png:compression-level=9 -strip "$here/docs/screenshot.png"
convert "$shots/Bernstein.png" "$shots/Papier.png" "$shots/Nachtwald.png" -resize 620x -background none -splice 12x0 +append \
  -chop 12x0 -define png:compression-level=9 -strip "$here/docs/skins.png"
ls -l "$here/docs/screenshot.png" "$here/docs/skins.png"
