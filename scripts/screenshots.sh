#!/usr/bin/env bash
# Makes the pictures of the book anew: the real program on a virtual display, in the look that it has now, in both
# languages of the book.
#
#     scripts/screenshots.sh [KIVU [PAD]]
#
# KIVU is the program (build/release/program/Kivu), PAD the one with a game controller made up
# (build/test/tests/tour/program/Kivu); without that one its picture stays as it is. Leaves the pictures in
# docs/book/pictures/en and docs/book/pictures/de. Needs the packages that scripts/install-packages.sh installs for
# "screen" and "run", and user name spaces, so that the program finds itself in /home/me.
set -euo pipefail

here=$(cd "$(dirname "$0")/.." && pwd)
program=$(realpath "${1:-$here/build/release/program/Kivu}")
pad=$(realpath -m "${2:-$here/build/test/tests/tour/program/Kivu}")
TOUR_SIZE=1600x1000
shots=$(mktemp -d)
. "$here/scripts/screen.sh"

kivu=0
Finish() {
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  EndGame
  StopScreen
  rm -rf "$shots"
}
trap Finish EXIT

export XDG_RUNTIME_DIR=$work/run QT_QPA_PLATFORM=xcb TMPDIR=$work/tmp
mkdir -p "$work/home/me" "$TMPDIR"
mkdir -m 700 "$work/run"

# Start PROGRAM: it finds itself in /home/me, so that the paths in the pictures are those of a user, and speaks $language.
Start() {
  # shellcheck disable=SC2016
  env HOME=/home/me LANG=C.UTF-8 LC_MESSAGES="$language" unshare --map-root-user --mount \
    sh -c 'mount --bind "$1" /home && exec "$2"' sh "$work/home" "$1" 2>"$work/kivu.log" <"$work/input" &
  kivu=$!
  Until 30 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
  sleep 1.5
}
Windows() { xdotool search --onlyvisible --pid "$kivu" 2>/dev/null || true; }
FindWindow() {
  window=$(Windows | tail -n 1)
  [ -n "$window" ]
}
# The window that came up beside the main one.
FindOther() {
  other=$(Windows | grep -v "^$window$" | tail -n 1)
  [ -n "$other" ]
}
Close() {
  kill "$kivu"
  wait "$kivu" 2>/dev/null || true
  kivu=0
}
Running() { pgrep -f "^kivu-dosbox.sh .*$TMPDIR"; }
EndGame() { pkill -KILL -f "^kivu-dosbox.sh .*$TMPDIR" 2>/dev/null || true; }

# The collection as it comes, in a window of 1100 by 720 pixels, without skins.
Lay() {
  rm -rf "$home/Kivu"
  cp -R "$work/demo" "$home/Kivu"
  rm -rf "$home"/Kivu/Config/*/Skin
  printf '[Settings]\r\nWindowX=16500\r\nWindowY=10800\r\nWindowTop=450\r\nWindowLeft=450\r\n' \
    >"$home/Kivu/Config/Kivu.ini"
}
Profile() { sed -i "s/^$2=.*/$2=$3\r/" "$home/Kivu/Config/$1/Kivu.ini"; }

Open() { Start /home/me/Kivu/Kivu; }
# The drop-down takes the focus by a click, which opens the long list.
OpenChoice() {
  Click 110 52
  sleep 0.7
}
# Choose ROW: the emulator of that row in the open choice.
Choose() {
  Click 100 96
  Down $(($1 - 1))
  xdotool key Return
  sleep 1.5
}
Down() { for _ in $(seq 1 "$1"); do xdotool key Down; done; }

# Look NAME [WINDOW]: the window with its round corners, nothing around it.
Look() {
  local id=${2:-$window}
  # Where no row lights up below it.
  xdotool mousemove 1590 990
  Shot "$1" "$1"
  Cut "$last" "$id" "$shots/$1.png"
}
# Cut PICTURE WINDOW RESULT: what the window shows, with its corners cut off.
Cut() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getwindowgeometry --shell "$2")"
  convert "$1" -crop "${WIDTH}x$HEIGHT+$X+$Y" +repage \
    \( -size "${WIDTH}x$HEIGHT" xc:none -fill white -draw "roundrectangle 0,0 $((WIDTH - 1)),$((HEIGHT - 1)) 30,30" \) \
    -compose CopyOpacity -composite "$3"
}
# Store NAME: into the book. Few colours make small files, and nobody sees them missing.
Store() {
  convert "$shots/$1.png" -strip -dither FloydSteinberg -define dither:diffusion-amount=50% -colors 255 \
    -define png:compression-level=9 -define png:exclude-chunks=date,time "PNG8:$pictures/$1.png"
}
Take() {
  Look "$@"
  Store "$1"
}

StartScreen
"$here/demo/build.sh" "$work/demo" >/dev/null
strip -o "$work/demo/Kivu" "$program"
# Its title is its path, which is that of a directory for now.
sed -i '/Hi\.x/d' "$work/demo/Config/DOSBox/Kivu_Cache.txt"
home=$work/home/me
: >"$work/input"

Book() {
  language=$1
  pictures=$here/docs/book/pictures/$2
  mkdir -p "$pictures"
  export XDG_CONFIG_HOME=$work/$2/config XDG_STATE_HOME=$work/$2/state
  mkdir -p "$XDG_CONFIG_HOME" "$XDG_STATE_HOME"

  # Without an emulator.
  mkdir -p "$home/Empty"
  cp "$work/demo/Kivu" "$home/Empty/"
  Start /home/me/Empty/Kivu
  Take first
  Close

  # The lists. Rows with pictures: 1 is Brick Bay, 7 Moon Miner, 13 Star Drift.
  Lay
  Open
  OpenChoice
  Take emulators
  Choose 2
  Take favourites
  xdotool key Right Down
  Take window
  xdotool key F2
  Take zoomed
  xdotool key F2 Right
  xdotool key --delay 80 r i
  Take search
  xdotool key ctrl+Return
  Take everywhere
  Close

  # A game, behind the loading screen and then alone.
  Lay
  Profile DOSBox SplashTimer 60
  Open
  OpenChoice
  Choose 2
  xdotool key Right Down Return
  Until 20 Running || Fail "the emulator did not come up: $(cat "$work/kivu.log")"
  Until 10 FindOther || Fail "no loading screen came up"
  sleep 3
  Take loading "$other"
  xdotool windowactivate --sync "$window" || true
  xdotool key Escape
  sleep 3
  Take running
  EndGame
  Close

  # The disks of a game in their drives.
  Lay
  Open
  OpenChoice
  Choose 1
  xdotool key Right
  Click 100 98
  Take drives
  Close

  # The settings of an emulator, and of one with WinUAE's.
  Lay
  Open
  OpenChoice
  Choose 2
  Click 1032 627
  Until 10 FindOther || Fail "no settings came up"
  sleep 1
  Take settings "$other"
  Close
  Lay
  Amiga
  Open
  OpenChoice
  Choose 1
  Click 1032 627
  Until 10 FindOther || Fail "no settings came up"
  sleep 1
  xdotool mousemove --window "$other" 762 176 click 1
  sleep 1
  Take winuae "$other"
  Close

  # In the skins that ship.
  local row=13 skin
  for skin in Bernstein Papier Nachtwald; do
    Lay
    cp -R "$here/assets/skins/$skin" "$home/Kivu/Config/DOSBox/Skin"
    Open
    OpenChoice
    Choose 2
    xdotool key Right
    Down "$row"
    Look "$skin"
    Close
    row=$((row == 13 ? 1 : 7))
  done
  convert "$shots/Bernstein.png" "$shots/Papier.png" "$shots/Nachtwald.png" -resize 440x -background none \
    -splice 12x0 +append -chop 12x0 "$shots/skins.png"
  Store skins

  if [ -x "$pad" ]; then
    Lay
    strip -o "$home/Kivu/Kivu" "$pad"
    Open
    OpenChoice
    Choose 2
    Click 1028 693 2
    Until 10 FindOther || Fail "no set-up of the pad came up"
    sleep 1
    Take buttons "$other"
    Close
  fi
}

# Amiga: a machine of WinUAE's kind, with files that are only there.
Amiga() {
  local profile=$home/Kivu/Config/Amiga\ 500
  mkdir -p "$home/Amiga/Disks" "$profile"
  : >"$home/Amiga/kick13.rom"
  : >"$home/Amiga/Disks/Bee (1991).adf"
  printf '#!/bin/sh\n' >"$home/Amiga/amiberry"
  chmod +x "$home/Amiga/amiberry"
  printf '%s\r\n' '[Settings]' EmulatorPath=/home/me/Amiga/amiberry RomPath=/home/me/Amiga/Disks 'Dir_Parameter=*.adf, *.zip' \
    WinUAE_UseMasterConfig=1 WinUAE_ConfigParameter=-f KickstartRom=/home/me/Amiga/kick13.rom SmartRomSelection=1 \
    FullScreen=1 SplashTimer=6 >"$profile/Kivu.ini"
}

Book en_US.UTF-8 en
Book de_DE.UTF-8 de
