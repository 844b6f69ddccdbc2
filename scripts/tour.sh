#!/usr/bin/env bash
# Takes the real program through a game on a virtual display, by key presses and clicks alone:
#
#     scripts/tour.sh PROGRAM_DIR [SCREENSHOT_DIR]
#
# Leaves numbered screenshots, and fails when a step does not come about. TOUR_SIZE sets the screen
# (1024x768), LANG the language as usual.
set -euo pipefail

program_dir=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")/.." && pwd)
shots=${2:-$here/tour}
size=${TOUR_SIZE:-1024x768}
work=$(mktemp -d)
export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=xcb
export LANG=${LANG:-C.UTF-8}
mkdir -p "$shots" "$work/config"
mkdir -m 700 "$work/run"
rm -f "$shots"/[0-9][0-9]-*.png

kivu=0
display=0
manager=0
Finish() {
  for process in $kivu $manager $display; do
    [ "$process" -eq 0 ] || kill "$process" 2>/dev/null || true
  done
  pkill -KILL -f "^kivu-dosbox.sh .*$work" 2>/dev/null || true
  rm -rf "$work"
}
trap Finish EXIT

Fail() {
  echo "The tour stopped: $*" >&2
  [ "$kivu" -eq 0 ] || import -window root "$shots/99-failed.png" || true
  exit 1
}

# Until COMMAND... holds, at most so many seconds.
Until() {
  local seconds=$1 deadline
  shift
  deadline=$((SECONDS + seconds))
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $deadline ] || return 1
    sleep 0.1
  done
}

number=0
# The picture of a step, once the screen has come to rest.
Shot() {
  number=$((number + 1))
  last=$(printf '%s/%02d-%s.png' "$shots" $number "$1")
  import -window root "$last"
  local again=$work/again.png tries
  for tries in 1 2 3 4 5 6 7 8 9 10; do
    sleep 0.2
    import -window root "$again"
    if [ "$(compare -metric AE "$last" "$again" null: 2>&1 || true)" = 0 ]; then break; fi
    cp "$again" "$last"
  done
  echo "  $number. $2: ${last#"$here"/}"
}

# How many pixels differ between two pictures.
Difference() {
  compare -metric AE "$1" "$2" null: 2>&1 || true
}

# A click at a place of the window, in pixels from its top left corner.
Click() {
  xdotool mousemove --window "$window" "$1" "$2" click ${3:+--repeat "$3" --delay 60} 1
}

Running() { pgrep -f '^kivu-dosbox.sh ' -s "$(SessionOf)" || pgrep -f '^kivu-dosbox.sh '; }
SessionOf() { ps -o sid= -p "$(pgrep -n -f '^kivu-dosbox.sh ')" | tr -d ' '; }
NotRunning() { ! pgrep -f '^kivu-dosbox.sh '; }

# A display of its own, and a window manager as a desktop has one.
exec 3>"$work/display"
Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp >/dev/null 2>&1 &
display=$!
exec 3>&-
Until 20 test -s "$work/display" || Fail "no virtual display came up"
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox >/dev/null 2>&1 &
manager=$!
# A window that comes up while the manager starts may be left where it is, unseen.
Managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
Until 20 Managed || Fail "no window manager came up"
NotRunning || Fail "a DOSBox of the demo runs already"

echo "A tour of Kivu on a screen of $size:"
"$program_dir/Kivu" 2>"$work/kivu.log" &
kivu=$!
window=""
FindWindow() {
  window=$(xdotool search --onlyvisible --pid "$kivu" 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}
Until 30 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
Shot start "the window after the start"
start=$last

# The drop-down takes the focus by a click, which opens the long list of emulators.
Click 110 52
Shot emulators "the emulators found"
[ "$(Difference "$start" "$last")" -gt 5000 ] || Fail "the list of emulators did not open"
# DOSBox is the second row, behind Disk Box.
Click 100 96
xdotool key Down Return
ChosenEmulator() { grep -q '^LastEmulator=DOSBox' "$program_dir/Config/Kivu.ini"; }
Until 15 ChosenEmulator || Fail "the emulator was not chosen"
Shot favourites "its favourites"
favourites=$last

xdotool key Right
Shot simple "its games as titles"
simple=$last
[ "$(Difference "$favourites" "$last")" -gt 500 ] || Fail "the tab did not turn to the titles"
xdotool key Right
Shot complete "its games as files"
[ "$(Difference "$simple" "$last")" -gt 500 ] || Fail "the tab did not turn to the files"

xdotool key Down Down
Shot chosen "a game chosen"
xdotool key Return
Until 20 Running || Fail "the emulator did not come up: $(cat "$work/kivu.log")"
start_file=$program_dir/Config/DOSBox/Kivu_tmp.bat
grep -q "Games/DOS/" "$start_file" || Fail "the start file names no game"
RunningShown() { import -window root "$work/now.png" && [ "$(Difference "$simple" "$work/now.png")" -gt 20000 ]; }
sleep 3
Until 10 RunningShown || Fail "the window does not show that the emulator runs"
number=$((number + 1))
last=$(printf '%s/%02d-running.png' "$shots" $number)
import -window root "$last"
echo "  $number. the emulator running: ${last#"$here"/}"

# Alt+F4 in the launcher's window ends the emulator, and not the launcher.
xdotool windowactivate --sync "$window" 2>/dev/null || true
sleep 1.5
xdotool key alt+F4
Until 15 NotRunning || Fail "the emulator was not ended"
kill -0 "$kivu" 2>/dev/null || Fail "the launcher has gone too"
sleep 4
Shot list "the list again"
[ "$(Difference "$simple" "$last")" -lt 60000 ] || Fail "the list did not come back"

# Escape asks, and Enter on its OK ends the program.
xdotool windowactivate --sync "$window" 2>/dev/null || true
xdotool key Escape
sleep 1
Shot question "the question before the end"
xdotool key Return
Ended() { ! kill -0 "$kivu" 2>/dev/null; }
Until 10 Ended || Fail "the program did not end"
kivu=0
grep -q '^WindowX=' "$program_dir/Config/Kivu.ini" || Fail "the window's place was not kept"
echo "The tour is through; the pictures are in ${shots#"$here"/}."
