#!/usr/bin/env bash
# Goes a newcomer's way on a virtual display, by key presses and clicks alone: from an empty directory to a game that
# runs, through the settings window.
#
#     scripts/tour-settings.sh KIVU [SCREENSHOT_DIR]
#
# KIVU is the program, of which a copy is started. Leaves numbered screenshots, and fails when a step does not come
# about. TOUR_SIZE sets the screen (1024x768), LANG the language as usual.
set -euo pipefail

program=$(realpath "$1")
here=$(cd "$(dirname "$0")/.." && pwd)
shots=${2:-$here/tour/settings}
. "$here/scripts/screen.sh"

export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config HOME=$work/home QT_QPA_PLATFORM=xcb
export LANG=${LANG:-C.UTF-8}
mkdir -p "$work/config" "$work/home/Desktop" "$work/program" "$work/bin" "$work/home/DOS"
mkdir -m 700 "$work/run"
cp "$program" "$work/program/Kivu"

# A DOSBox that notes its game and stays, in a directory of the search path.
cat >"$work/bin/dosbox" <<END
#!/bin/sh
for word; do echo "\$word"; done >"$work/started"
while :; do read -r line <"$work/pipe"; done
END
chmod +x "$work/bin/dosbox"
mkfifo "$work/pipe"
PATH=$work/bin:$PATH
games=$work/home/DOS
for game in "Ant Attack (1985)" "Bee Line (1991)" "Cat Nap (1993)"; do
  mkdir "$games/$game"
  : >"$games/$game/${game% (*}.exe"
done
: >"$games/readme.txt"

kivu=0
Finish() {
  pkill -KILL -f "$work/bin/dosbox" 2>/dev/null || true
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

# A click into the settings window, at a place of its design, which is 808 pixels wide.
settings=""
FindSettings() {
  settings=$(xdotool search --all --onlyvisible --pid "$kivu" --name '^Einstellungen$' 2>/dev/null | tail -n 1)
  [ -n "$settings" ]
}
NoSettings() { ! FindSettings; }
At() {
  local wide
  wide=$(xdotool getwindowgeometry --shell "$settings" | sed -n 's/^WIDTH=//p')
  xdotool mousemove --window "$settings" $(($1 * wide / 808)) $(($2 * wide / 808)) click 1
  sleep 0.5
}
# A box or a dialog is the window that came last.
top=""
Asked() {
  local now
  now=$(xdotool getactivewindow 2>/dev/null) || return 1
  [ "$now" != "$top" ]
}
Expect() {
  Until 15 Asked || Fail "$1 did not come up: $(cat "$work/kivu.log")"
  sleep 0.4
  top=$(xdotool getactivewindow)
}
Back() {
  Until 10 Asked || Fail "$1 did not close"
  top=$(xdotool getactivewindow)
}

StartScreen
echo "A newcomer's way on a screen of $size:"
"$work/program/Kivu" 2>"$work/kivu.log" &
kivu=$!
window=""
FindWindow() {
  window=$(xdotool search --onlyvisible --pid "$kivu" 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}
Until 30 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
sleep 1
# Whether to go on without a game controller.
if [ "$(xdotool getactivewindow)" != "$window" ]; then xdotool key Return; fi
Shot first "the first screen"
first=$last

# The way is told there: the options, and in them a new emulator.
Click 893 581
Until 15 FindSettings || Fail "the settings did not come up"
top=$(xdotool getactivewindow)
Shot settings "the settings without an emulator"
At 693 74
Expect "the question for a name"
xdotool type --delay 60 "Old PC"
Shot name "a name typed"
xdotool key Return
Back "the question for a name"
Made() { [ -d "$work/program/Config/Old PC" ]; }
Until 10 Made || Fail "the emulator was not made"
Until 15 FindSettings || Fail "the settings have gone"
Shot made "the settings of the new emulator"

# The program, by the dialog for files.
At 584 126
Expect "the dialog for files"
xdotool type --delay 40 "$work/bin/"
xdotool key Return
sleep 0.5
xdotool key Down
Shot program "its program chosen"
xdotool key Return
Expect "the question about a known emulator"
Shot known "the known emulator"
xdotool key Return
Expect "the same question for the field"
xdotool key Return
Expect "the question about a start"
Shot start "the question whether to start it alone"
xdotool key Escape
Back "the question about a start"
Shot filled "what the emulator needs, filled in"

# The directory of its games.
At 584 212
Expect "the dialog for directories"
xdotool key alt+p
sleep 0.2
xdotool key ctrl+a
xdotool type --delay 40 "$games"
xdotool key Return
sleep 0.4
Shot directory "the directory of the games"
xdotool key Tab Tab Tab Tab Tab Tab Return
Back "the dialog for directories"
Shot ready "all that there is to say"
At 519 578
profile="$work/program/Config/Old PC/Kivu.ini"
Saved() { grep -q '^EmulatorPath=.*dosbox' "$profile" && grep -q '^RomPath=.*DOS' "$profile"; }
Until 10 Saved || Fail "nothing was saved: $(cat "$profile")"
Shot saved "saved"

# The first scan, which closes the window.
At 693 212
Until 30 NoSettings || Fail "the scan did not end"
Listed() { grep -q 'Ant Attack.exe' "$work/program/Config/Old PC/Kivu_Cache.txt"; }
Until 10 Listed || Fail "no game was found"
Shot games "the games found"
[ "$(Difference "$first" "$last")" -gt 5000 ] || Fail "the games are not to be seen"

# And a game runs.
xdotool windowactivate --sync "$window" 2>/dev/null || true
Click 200 133 2
Started() { grep -q 'Games\|\.exe' "$work/started"; }
Until 20 Started || Fail "no game was started: $(cat "$work/kivu.log")"
sleep 3
MovingShot running "a game running"
echo "From an empty directory to a game in $SECONDS seconds; the pictures are in ${shots#"$here"/}."
