#!/usr/bin/env bash
# Takes Kivu.exe under Wine through a game on a virtual display, by key presses and clicks alone:
#
#     scripts/windows/tour.sh KIVU_EXE EMULATOR_EXE [SCREENSHOT_DIR]
#
# The emulator is any program that stays until it is ended. Leaves numbered screenshots, and fails when a step does
# not come about. LANG sets the language as usual.
set -euo pipefail

kivu_exe=$(realpath "$1")
emulator_exe=$(realpath "$2")
here=$(cd "$(dirname "$0")/../.." && pwd)
shots=${3:-$here/tour/windows}
. "$here/scripts/screen.sh"

export WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LANG=${LANG:-C.UTF-8}
# A Windows of its own, which nothing else keeps running.
export WINEPREFIX="$work/prefix"
unset QT_QPA_PLATFORM

Finish() {
  wineserver -k 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

# Three games with odd names, one of two disks, below a directory with a blank.
program_dir="$work/Kivu & more"
games="$program_dir/Games of (1990)"
config="$program_dir/Config/Test Machine"
mkdir -p "$games/Ärger" "$config" "$program_dir/Emulators"
cp "$kivu_exe" "$program_dir/Kivu.exe"
cp "$emulator_exe" "$program_dir/Emulators/machine.exe"
for game in 'Moon & Miner (1990)(Kivu)(Disk 1 of 2)' 'Moon & Miner (1990)(Kivu)(Disk 2 of 2)' \
            'Ärger/100% Ärger (1991)(Kivu)' 'Zebra (1992)(Kivu)'; do
  printf 'x' >"$games/$game.img"
done
# A profile as Windows keeps it: lines ended by CR LF, in the ANSI code page.
printf '%s\r\n' '[Settings]' 'EmulatorPath=Emulators\machine.exe' 'RomPath=Games of (1990)' 'Dir_Parameter=*.img' \
  'EmulatorParameterAddDiskPath=1' 'EmulatorParameter=-game ' 'WinUAE_UseMasterConfig=0' >"$config/Kivu.ini"

Emulator() { pgrep -f 'machine\.exe'; }
NoEmulator() { ! Emulator; }

StartScreen
wineboot -i >/dev/null 2>&1
wineserver -w

import -window root "$work/black.png"

echo "A tour of Kivu for Windows on a screen of $size:"
window=""
FindWindow() {
  window=$(xdotool search --onlyvisible --class 'kivu.exe' 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}
# The window is there before its picture is.
Painted() { import -window root "$work/now.png" && [ "$(Difference "$work/black.png" "$work/now.png")" -gt 100000 ]; }
Ended() { ! kill -0 "$kivu" 2>/dev/null; }
StartKivu() {
  (cd "$program_dir" && exec wine Kivu.exe >"$work/kivu.log" 2>&1) &
  kivu=$!
  Until 90 FindWindow || Fail "no window came up: $(cat "$work/kivu.log")"
  Until 60 Painted || Fail "the window shows nothing"
}
# Wine may have given the launcher another window meanwhile.
Activate() {
  FindWindow || Fail "the window has gone"
  xdotool windowactivate --sync "$window"
  sleep 1
}
StartKivu
Shot start "the window after the start"
start=$last

# The drop-down opens the long list; its only emulator is chosen by keys.
Click 110 52
Shot emulators "the emulators found"
[ "$(Difference "$start" "$last")" -gt 3000 ] || Fail "the list of emulators did not open"
Click 100 100
xdotool key Return
ChosenEmulator() { grep -q '^LastEmulator=Test Machine' "$program_dir/Config/Kivu.ini"; }
Until 30 ChosenEmulator || Fail "the emulator was not chosen"
Shot chosen "the emulator chosen, its list empty"
empty=$last

# The button that reads the directory anew.
Click 712 569
Cached() { grep -q 'Zebra' "$config/Kivu_Cache.txt"; }
Until 30 Cached || Fail "the games were not found"
Shot games "the games found"
[ "$(Difference "$empty" "$last")" -gt 2000 ] || Fail "the games are not shown"
games_shown=$last

Click 100 100
xdotool key Down Return
Until 30 Emulator || Fail "the emulator did not come up: $(cat "$config/Kivu_tmp.bat")"
sleep 3
MovingShot running "the emulator running"

# The launcher's files are in the ANSI code page, with short names in the start file.
grep -q 'MOON' "$config/Kivu_tmp.bat" || Fail "the start file names no game: $(cat "$config/Kivu_tmp.bat")"
LC_ALL=C grep -q $'\xc4rger' "$config/Kivu_Cache.txt" || Fail "the cache is not in the ANSI code page"

# Alt+F4 in the launcher's window ends the emulator, and not the launcher.
Activate
xdotool key alt+F4
Until 20 NoEmulator || Fail "the emulator was not ended"
Back() { import -window root "$work/now.png" && [ "$(Difference "$games_shown" "$work/now.png")" -lt 60000 ]; }
Until 20 Back || Fail "the list did not come back"
Shot list "the list again"
kill -0 "$kivu" || Fail "the launcher has gone too"

# Pictures of one colour each, for all games of the emulator, show that the program holds their decoders. A new one
# counts from the next row on.
Pixels() { convert "$1" -fuzz 6% -fill black +opaque "$2" -fuzz 0 -fill white +opaque black -format '%[fx:round(mean*w*h)]' info:; }
Shown() { import -window root "$work/now.png" && [ "$(Pixels "$work/now.png" "$1")" -gt 5000 ]; }
PictureShows() {
  local ending=$1 colour=$2 key=$3
  ! Shown "$colour" || Fail "the colour of the $ending picture is there already"
  rm -f "$config/Pictures/Test Machine".*
  convert -size 64x64 "xc:$colour" -type TrueColor "$config/Pictures/Test Machine.$ending"
  xdotool key "$key"
  Until 20 Shown "$colour" || Fail "the $ending picture is not shown"
  Shot "picture-$ending" "a picture of the kind $ending"
}
mkdir -p "$config/Pictures"
Activate
# The complete list: the simple one is built anew with the next choice of the emulator.
Click 564 52
Click 100 100
xdotool key Home
PictureShows png '#c000ff' Down
PictureShows jpg '#ff2060' Up
PictureShows gif '#20ff40' Down
PictureShows ico '#ff9000' Up
PictureShows bmp '#2040ff' Down

# Escape asks, and Enter on its OK ends the program.
Activate
xdotool key Escape
sleep 2
Shot question "the question before the end"
xdotool key Return
Until 20 Ended || Fail "the program did not end"
Width() { sed -n 's/^WindowX=\([0-9]*\).*/\1/p' "$program_dir/Config/Kivu.ini"; }
width=$(Width)
[ -n "$width" ] || Fail "the window's place was not kept"

# Ended by others: the task bar's wish asks. The end of the session doesn't, not even behind that question.
StartKivu
Activate
xdotool key alt+Right
sleep 1
wmctrl -i -c "$window"
Asked() { [ "$(xdotool search --onlyvisible --class 'kivu.exe' | wc -l)" -gt 1 ]; }
Until 20 Asked || Fail "the task bar's wish has not asked"
Shot closing "the question of the task bar"
! Ended || Fail "the task bar's wish has ended the program"
timeout 60 wine wineboot --end-session >"$work/session.log" 2>&1 &
Until 30 Ended || Fail "the program did not end with the session"
[ "$(Width)" -gt "$width" ] || Fail "the window's place was not kept at the end of the session"
echo "The tour is through; the pictures are in ${shots#"$here"/}."
