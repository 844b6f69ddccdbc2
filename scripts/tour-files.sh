#!/usr/bin/env bash
# Goes through the dialog for files over the launcher's window on a virtual display, by key presses and clicks alone:
#
#     scripts/tour-files.sh KIVU_FILES [SCREENSHOT_DIR]
#
# KIVU_FILES is the tests' program that opens it. Leaves numbered screenshots, and fails when a step does not come
# about. TOUR_SIZE sets the screen (1024x768), TOUR_POINTS the size of the lists' text, LANG the language as usual.
set -euo pipefail

files=$(realpath "$1")
here=$(cd "$(dirname "$0")/.." && pwd)
shots=${2:-$here/tour/files}
. "$here/scripts/screen.sh"

export XDG_RUNTIME_DIR=$work/run XDG_CONFIG_HOME=$work/config HOME=$work/home QT_QPA_PLATFORM=xcb
export LANG=${LANG:-C.UTF-8}
mkdir -p "$work/config" "$work/home/Desktop" "$work/program/Config"
mkdir -m 700 "$work/run"
cp "$files" "$work/program/Kivu"
[ -z "${TOUR_POINTS:-}" ] || printf '[Settings]\r\nFontsize=%s\r\n' "$TOUR_POINTS" >"$work/program/Config/Kivu.ini"

# What somebody may have: many files, long names, other letters.
games=$work/home/Games
mkdir -p "$games/Über alles" "$games/sub" "$games/A directory with a name that is longer than the list is wide, by far"
for game in $(seq 1 60); do
  : >"$games/Game $game (1990)(Maker)(Disk 1 of 2).adf"
done
: >"$games/kick 1.3.rom"
: >"$games/sub/Kickstart v1.3 rev 34.5 (1987)(Commodore)(A500-A1000-A2000-CDTV)[!][a very long name].rom"
: >"$games/readme.txt"

asked=0
Finish() {
  [ "$asked" -eq 0 ] || kill "$asked" 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

# The dialog is the window that came last.
window=""
Ask() {
  "$work/program/Kivu" "$@" >"$work/answer" 2>"$work/kivu.log" &
  asked=$!
  Until 30 FindDialog || Fail "no dialog came up: $(cat "$work/kivu.log")"
  sleep 0.5
}
FindDialog() {
  local windows
  windows=$(xdotool search --onlyvisible --pid "$asked" 2>/dev/null)
  [ "$(wc -l <<<"$windows")" -ge 2 ] || return 1
  window=$(xdotool getactivewindow)
}
Answered() { ! kill -0 "$asked" 2>/dev/null; }
Answer() {
  Until 10 Answered || Fail "the dialog did not close"
  asked=0
  [ "$(cat "$work/answer")" = "$1" ] || Fail "it gave \"$(cat "$work/answer")\" and not \"$1\""
}

StartScreen
echo "A tour of the dialog for files on a screen of $size:"
Ask File "$games" "Emulator Exe wählen" "*.rom"
Shot roms "the ROMs of a directory"
xdotool key Down
sleep 0.3
Shot chosen "one chosen by the arrow keys"
xdotool key Return
Answer "$games/kick 1.3.rom"

Ask File "$games" "" "*.adf"
Shot games "many games"
xdotool key alt+n
xdotool type --delay 60 '*.*'
xdotool key Return
Shot all "all files"
xdotool key alt+p
sleep 0.2
xdotool key ctrl+a
xdotool type --delay 40 '~/Games/sub'
xdotool key Return
Shot typed "a directory typed"
xdotool key Tab Tab Tab Tab
xdotool key Down
Shot long "a long name"
xdotool key Escape
Answer ""

Ask Dir "$games" "ROM Verzeichnis wählen"
Shot directories "directories"
xdotool key Down Down
Shot directory "one chosen"
xdotool key Return
sleep 0.3
Shot entered "one entered"
xdotool key BackSpace
sleep 0.3
xdotool key Tab Tab Tab Return
Answer "$games/"

Ask SaveFile "$games" "" "game.uae"
Shot save "a name to save under"
xdotool type --delay 60 'new.uae'
xdotool key Return
Answer "$games/new.uae"
echo "The tour is through; the pictures are in ${shots#"$here"/}."
