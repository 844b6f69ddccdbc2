#!/usr/bin/env bash
# Takes the real program through a game on a virtual display, by key presses and clicks alone:
#
#     scripts/tour.sh PROGRAM_DIR [SCREENSHOT_DIR]
#
# Leaves numbered screenshots, and fails when a step does not come about. TOUR_SIZE sets the screen
# (1024x768), LANG the language as usual. scripts/tour-loading.sh, scripts/tour-files.sh with its program KIVU_FILES and
# scripts/tour-settings.sh follow.
set -euo pipefail

program_dir=$(cd "$1" && pwd)
here=$(cd "$(dirname "$0")/.." && pwd)
shots=${2:-$here/tour}
. "$here/scripts/screen.sh"

export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config QT_QPA_PLATFORM=xcb
export LANG=${LANG:-C.UTF-8}
mkdir -p "$work/config"
mkdir -m 700 "$work/run"

kivu=0
Finish() {
  [ "$kivu" -eq 0 ] || kill "$kivu" 2>/dev/null || true
  pkill -KILL -f "^kivu-dosbox.sh .*$work" 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

Running() { pgrep -f '^kivu-dosbox.sh ' -s "$(SessionOf)" || pgrep -f '^kivu-dosbox.sh '; }
SessionOf() { ps -o sid= -p "$(pgrep -n -f '^kivu-dosbox.sh ')" | tr -d ' '; }
NotRunning() { ! pgrep -f '^kivu-dosbox.sh '; }

StartScreen
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

# A game with a picture, which a click shows in its own size and another one brings back.
xdotool key Home
Shot picture "a game with a picture"
picture=$last
Click 780 300
Shot zoomed "the picture in its own size"
[ "$(Difference "$picture" "$last")" -gt 20000 ] || Fail "the picture was not zoomed"
Click 780 300
Shot unzoomed "the picture in its place again"
[ "$(Difference "$picture" "$last")" -lt 5000 ] || Fail "the picture did not come back"

xdotool key Down Down
Shot chosen "a game chosen"
xdotool key Return
Until 20 Running || Fail "the emulator did not come up: $(cat "$work/kivu.log")"
start_file=$program_dir/Config/DOSBox/Kivu_tmp.bat
grep -q "Games/DOS/" "$start_file" || Fail "the start file names no game"
RunningShown() { import -window root "$work/now.png" && [ "$(Difference "$simple" "$work/now.png")" -gt 20000 ]; }
sleep 3
Until 10 RunningShown || Fail "the window does not show that the emulator runs"
MovingShot running "the emulator running"

# Alt+F4 in the launcher's window ends the emulator, and not the launcher.
xdotool windowactivate --sync "$window" 2>/dev/null || true
sleep 1.5
xdotool key alt+F4
Until 15 NotRunning || Fail "the emulator was not ended"
kill -0 "$kivu" 2>/dev/null || Fail "the launcher has gone too"
sleep 4
Shot list "the list again"
# The picture beside it is that of the game.
ListOf() { convert "$1" -crop 600x580+60+120 +repage "$2"; }
ListOf "$simple" "$work/simple.png"
ListOf "$last" "$work/list.png"
[ "$(Difference "$work/simple.png" "$work/list.png")" -lt 30000 ] || Fail "the list did not come back"

Front() {
  xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 0.5
}

# The chosen game becomes a favourite, and Delete takes it away again.
favourites_file=$program_dir/Config/DOSBox/Favoriten.ini
Favourites() { grep -c '^Fav[0-9]*_Name=.' "$favourites_file" || true; }
before=$(Favourites)
Front
# Type Storm; its buttons come up with it.
Click 100 233
Shot title "a title chosen"
Click 707 508
More() { [ "$(Favourites)" -gt "$before" ]; }
Until 10 More || Fail "the game did not become a favourite"
xdotool key Left
Shot favourite "the game among the favourites"

# A machine with drives: one disk of a game brings the others.
Click 110 52
Click 100 96
xdotool key Return
OtherEmulator() { grep -q '^LastEmulator=Disk Box' "$program_dir/Config/Kivu.ini"; }
Until 15 OtherEmulator || Fail "the machine with drives was not chosen"
# Without favourites it begins with the titles.
xdotool key Right
Shot disks "the disks of the other machine, in a skin of its own"
disks=$last
[ "$(Difference "$favourites" "$disks")" -gt 300000 ] || Fail "the skin did not change"
Click 100 130
Shot drives "one disk chosen, the others in their drives"
[ "$(Difference "$disks" "$last")" -gt 1000 ] || Fail "the drives did not fill"

# Two words find games in this list.
xdotool type --delay 120 'r (19'
Shot search "a search in this list"
[ "$(Difference "$disks" "$last")" -gt 5000 ] || Fail "the search found nothing"
found=$last

# The same in the lists of all emulators.
Click 664 614
Shot everywhere "the search in all lists"
[ "$(Difference "$found" "$last")" -gt 2000 ] || Fail "the search in all lists found nothing"
xdotool key Down
Shot hit "a hit chosen"

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

"$here/scripts/tour-loading.sh" "$program_dir" "$shots/loading"

# The dialog for files, which the tests' program opens.
dialog=${KIVU_FILES:-$here/build/test/program/kivu-files}
[ ! -x "$dialog" ] || "$here/scripts/tour-files.sh" "$dialog" "$shots/files"

# A newcomer's way through the settings, from an empty directory.
"$here/scripts/tour-settings.sh" "$program_dir/Kivu" "$shots/settings"
