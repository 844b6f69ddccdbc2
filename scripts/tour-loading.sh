#!/usr/bin/env bash
# Looks at the loading screen of real launches on a virtual display, above an emulator that fills the screen:
#
#     scripts/tour-loading.sh PROGRAM_DIR [SCREENSHOT_DIR]
#
# PROGRAM_DIR is a demo collection (demo/build.sh) with the program; it works on a copy. Leaves numbered screenshots,
# and fails when a step does not come about. TOUR_SIZE sets the screen (1024x768), TOUR_POINTS the row of the lists'
# font, LANG the language and QT_SCALE_FACTOR the scale as usual.
set -euo pipefail

program_dir=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")/.." && pwd)
shots=${2:-$here/tour/loading}
. "$here/scripts/screen.sh"

export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state QT_QPA_PLATFORM=xcb
export LANG=${LANG:-C.UTF-8}
# By which the emulators of this tour are told from others.
export TMPDIR=$work/tmp
mkdir -p "$work/config" "$work/state" "$TMPDIR"
mkdir -m 700 "$work/run"

kivu=0
Finish() {
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  pkill -KILL -f "^kivu-dosbox.sh .*$work" 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

demo=$work/demo
cp -R "$program_dir" "$demo"
sed -i 's/^SplashTimer=.*/SplashTimer=60\r/' "$demo/Config/DOSBox/Kivu.ini"
sed -i 's/^fullscreen=.*/fullscreen=true/' "$demo/Emulators/kivu-dosbox.sh"
rm -f "$demo"/Config/DOSBox/Favoriten.ini
printf '[Settings]\r\nLastEmulator=DOSBox\r\n' >"$demo/Config/Kivu.ini"
[ -z "${TOUR_POINTS:-}" ] || printf 'Fontsize=%s\r\n' "$TOUR_POINTS" >>"$demo/Config/Kivu.ini"

Running() { pgrep -f "^kivu-dosbox.sh .*$work"; }
NotRunning() { ! Running; }
Windows() { xdotool search --onlyvisible --pid "$kivu" 2>/dev/null || true; }
loading=0
FindLoading() {
  loading=$(Windows | grep -v "^$window$" | tail -n 1)
  [ -n "$loading" ]
}
Gone() { [ "$(Windows | wc -l)" -le 1 ]; }
# Of the root's children the first one is the topmost.
OnTop() { xwininfo -root -tree 2>/dev/null | grep -E '^ +0x' | head -n 1 | grep -qi "$(printf '0x%x' "$loading")"; }
# The screen has come up above the emulator, and the keyboard is the emulator's.
LookAtLoading() {
  Until 20 Running || Fail "the emulator did not come up: $(cat "$work/kivu.log")"
  Until 10 FindLoading || Fail "no loading screen came up"
  sleep 3
  Until 5 OnTop || Fail "it does not lie on top"
  MovingShot "$1" "$2"
}
# The middle of its button, by parts of a hundred of its size.
PressStop() {
  local WIDTH HEIGHT
  eval "$(xdotool getwindowgeometry --shell "$loading" | grep -E '^(WIDTH|HEIGHT)=')"
  xdotool mousemove --window "$loading" $((WIDTH * $1 / 100)) $((HEIGHT * 87 / 100)) click 1
  Until 15 NotRunning || Fail "the button did not end the game"
  Until 5 Gone || Fail "the loading screen has stayed"
  sleep 4
}
Launch() {
  xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 0.5
  xdotool key Return
}

StartScreen
echo "The loading screen on a screen of $size:"
"$demo/Kivu" 2>"$work/kivu.log" &
kivu=$!
window=""
FindWindow() {
  window=$(Windows | tail -n 1)
  [ -n "$window" ]
}
Until 30 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
sleep 1

# The first file of the complete list has a picture.
xdotool key Right
sleep 0.5
xdotool key Home
sleep 1
Launch
LookAtLoading fullscreen "with the game's picture, above an emulator that fills the screen"
# That one keeps the mouse to itself.
kill $(Running)
Until 15 NotRunning || Fail "the emulator did not end"
xdotool mousemove --window "$loading" 12 12 click 1
Until 5 Gone || Fail "a click did not take it away"
sleep 4
sed -i 's/^fullscreen=.*/fullscreen=false/' "$demo/Emulators/kivu-dosbox.sh"
Launch
LookAtLoading picture "above one in a window"
xdotool mousemove --window "$loading" 12 12 click 1
Until 5 Gone || Fail "a click did not take it away"
Running >/dev/null || Fail "the click ended the game"
MovingShot skipped "skipped by a click, and the game goes on"
kill $(Running)
Until 15 NotRunning || Fail "the emulator did not end"
sleep 4

# The others have none: the skin's, and then not even that.
xdotool windowactivate --sync "$window" 2>/dev/null || true
xdotool key Down Down
sleep 1
Launch
LookAtLoading skin "with the skin's picture"
PressStop 90
rm -f "$demo"/Config/DOSBox/Skin/Loading.*
Launch
LookAtLoading text "with text only"
PressStop 50

# Behind it the skin's background.
cp "$demo"/Config/DOSBox/Skin/Background.* "$demo/Config/DOSBox/Skin/Settings.jpg"
xdotool windowactivate --sync "$window" 2>/dev/null || true
xdotool key Up Up
sleep 1
Launch
LookAtLoading background "on the skin's picture for the settings"
PressStop 90
Shot list "the list again"
echo "The pictures are in ${shots#"$here"/}."
