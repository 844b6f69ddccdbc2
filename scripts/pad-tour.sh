#!/usr/bin/env bash
# Takes the real program through an evening by a game controller that SDL makes up:
#
#     scripts/pad-tour.sh DEMO_DIR [SCREENSHOT_DIR]
#
# DEMO_DIR is a demo collection (demo/build.sh) of its own: its settings are made anew, and
# kivu_pad_tour (build/test/tests/tour/program/Kivu, or PAD_TOUR_PROGRAM) is copied there. Leaves numbered screenshots, and
# fails when a step does not come about. TOUR_SIZE sets the screen (1024x768).
set -euo pipefail

demo=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")/.." && pwd)
shots=${2:-$here/tour-pad}
. "$here/scripts/screen.sh"

export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config XDG_STATE_HOME=$work/state QT_QPA_PLATFORM=xcb
export LANG=${LANG:-C.UTF-8}
mkdir -p "$work/config" "$work/state"
mkdir -m 700 "$work/run"

kivu=0
Finish() {
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  pkill -KILL -f "^kivu-dosbox.sh .*$work" 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

# Each button by what an untouched pad does with it.
select=0 start=1 switch=2 fullscreen=3 ten_down=4 last_row=8 first_row=9 favourite=10
up=11 down=12 left=13 right=14

Answered() { [ "$(wc -l <"$work/answers")" -ge "$asked" ]; }
asked=0
Pad() {
  asked=$((asked + 1))
  echo "$*" >&4
  Until 10 Answered || Fail "the pad does not answer to: $*"
  [ "$(tail -n 1 "$work/answers")" = done ] || Fail "the pad does not know: $*"
}
# A short tap, and time for the poll behind it.
Tap() {
  for button in "$@"; do
    Pad tap "$button"
    sleep 0.4
  done
}
Running() { pgrep -f '^kivu-dosbox.sh '; }
NotRunning() { ! pgrep -f '^kivu-dosbox.sh '; }
settings=$demo/Config/Kivu.ini
Setting() { grep -q "^$1=$2" "$settings"; }
log=$work/state/Kivu/Kivu.log
Logged() { [ "$(grep -c "$1" "$log")" -ge "${2:-1}" ]; }
Picture() { import -window root "$1"; }
# The picture differs from the last shot by at least so many pixels.
Moved() { Picture "$work/now.png" && [ "$(Difference "$last" "$work/now.png")" -ge "$1" ]; }

StartScreen
NotRunning || Fail "a DOSBox of the demo runs already"
cp "${PAD_TOUR_PROGRAM:-$here/build/test/tests/tour/program/Kivu}" "$demo/Kivu"
rm -f "$settings" "$demo/Config/DOSBox/Favoriten.ini"
printf '[Settings]\nUseJoystick=1\nUseJoystickExitbutton=1\n' >"$settings"

echo "An evening with a pad on a screen of $size:"
mkfifo "$work/pad"
: >"$work/answers"
"$demo/Kivu" <"$work/pad" >"$work/answers" 2>"$work/kivu.log" &
kivu=$!
exec 4>"$work/pad"
window=""
FindWindow() {
  window=$(xdotool search --onlyvisible --pid "$kivu" 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}
Until 30 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
Until 10 Logged 'game controllers: Virtual Pad (15 buttons)' || Fail "the pad was not opened"
Shot start "the window with a pad"

Tap $switch
Until 5 Moved 3000 || Fail "the emulators' list did not open"
Shot emulators "the emulators, by the pad"
Tap $down $down $start
Until 15 Setting LastEmulator DOSBox || Fail "the emulator was not chosen"
Shot chosen "the second one loaded"

# The ring of the tabs.
Tap $right
Until 5 Moved 500 || Fail "the tab did not turn"
Shot list "the next list"
Tap $down $down $ten_down $select
Shot rows "thirteen rows down"
Tap $last_row $first_row $down
Shot row "the second row"

Tap $favourite
Favourite() { grep -q '^Fav[0-9]*_Name=.' "$demo/Config/DOSBox/Favoriten.ini"; }
Until 10 Favourite || Fail "the game did not become a favourite"
Shot favourite "a favourite more"

Tap $fullscreen
Maximized() { xprop -id "$window" _NET_WM_STATE | grep -q MAXIMIZED_VERT; }
Until 10 Maximized || Fail "the window did not fill the screen"
Shot full "the window fills the screen"
Tap $fullscreen
Until 10 eval '! Maximized' || Fail "the window did not shrink again"

# The stick, too.
Pad axis 1 32767
sleep 0.5
Pad axis 1 0
Shot stick "some rows by the stick"

Tap $start
Until 20 Running || Fail "the emulator did not come up: $(cat "$work/kivu.log")"
sleep 3
MovingShot running "the emulator runs"
# The button for the end, held long enough.
Tap $down $right
sleep 1
Running >/dev/null || Fail "a short press has ended the game"
Pad hold $select
Until 15 NotRunning || Fail "the emulator was not ended"
sleep 4
Pad release $select
Shot back "the list again"

Pad unplug
Until 10 Logged 'game controllers: none' || Fail "nobody saw the pad go"
Shot unplugged "without the pad"
Pad plug
Until 10 Logged 'game controllers: Virtual Pad' 2 || Fail "nobody saw the pad come back"
Tap $down
Until 5 Moved 300 || Fail "the pad that came back moves nothing"
Shot replugged "with the pad again"

# Its picture, between the text sizes and the pin.
Click 888 650 2
SetUp() { xdotool search --onlyvisible --name 'Joystick / Gamepad'; }
Until 10 SetUp || Fail "the set-up did not come up"
sleep 1
Shot set-up "the set-up asks for the first button"
# Quit gets the button in the middle, the rest stay as they are.
for button in 5 0 1 2 3 4 6 7 8 9 10; do
  Pad hold "$button"
  sleep 0.35
  Pad release "$button"
  sleep 0.25
done
sleep 1
Shot last-action "the set-up asks for the last action"
xdotool key space
Until 10 eval '! SetUp' || Fail "the set-up did not end"
Until 5 Setting Button1 6 || Fail "the buttons were not kept"
Setting Button12 -2 || Fail "the skipped action was not kept"
Shot set "the buttons are set"

# A question, answered by the pad.
xdotool key Escape
sleep 1
Shot question "a question"
Tap $right
Shot step "its other button"
[ "$(Difference "$shots/$(printf %02d $((number - 1)))-question.png" "$last")" -gt 50 ] || Fail "no other button has the focus"
Tap 1
sleep 0.5
kill -0 "$kivu" 2>/dev/null || Fail "the program has ended on a No"

Tap 5
Ended() { ! kill -0 "$kivu" 2>/dev/null; }
Until 10 Ended || Fail "the program did not end"
kivu=0
echo "The evening is over; the pictures are in ${shots#"$here"/}."
