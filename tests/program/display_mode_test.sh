#!/usr/bin/env bash
# Whatever becomes of the program, the screen has the mode of before: display_mode_test.sh KIVU
# On a screen of 16 bits, which takes the fixed mode that the program sets.
set -euo pipefail

kivu=$1
work=$(mktemp -d)
server=0
program=0
Finish() {
  for process in $program $server; do
    [ "$process" -eq 0 ] || kill "$process" 2>/dev/null || true
  done
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap Finish EXIT
Fail() {
  echo "FAILED: $*" >&2
  exit 1
}
Skip() {
  echo "SKIPPED: $*" >&2
  exit 77
}

xorg=/usr/lib/xorg/Xorg
if ! [ -x $xorg ] || ! command -v xwininfo >/dev/null; then Skip "no X server with the dummy driver, or no xwininfo"; fi
cat >"$work/xorg.conf" <<'END'
Section "ServerFlags"
  Option "AutoAddDevices" "false"
  Option "AutoAddGPU" "false"
EndSection
Section "Device"
  Identifier "Device"
  Driver "dummy"
  VideoRam 65536
EndSection
Section "Monitor"
  Identifier "Monitor"
  HorizSync 5-1000
  VertRefresh 5-200
EndSection
Section "Screen"
  Identifier "Screen"
  Device "Device"
  Monitor "Monitor"
  DefaultDepth 16
  SubSection "Display"
    Depth 16
    Modes "1280x1024" "1024x768" "800x600"
  EndSubSection
EndSection
END
mkfifo "$work/number"
$xorg -config "$work/xorg.conf" -logfile "$work/xorg.log" -novtswitch -sharevts -noreset -nolisten tcp \
  -displayfd 3 3>"$work/number" >/dev/null 2>&1 &
server=$!
number=
read -r -t 60 number <"$work/number" || true
[ -n "$number" ] || Skip "no X server with the dummy driver can be started here"

export DISPLAY=:$number HOME=$work/home XDG_RUNTIME_DIR=$work/run XDG_STATE_HOME=$work/state QT_QPA_PLATFORM=xcb
export LC_ALL=C.UTF-8 XDG_CONFIG_HOME=$work/config
unset WAYLAND_DISPLAY
mkdir -m 700 "$work/run"
mkdir -p "$work/home" "$work/Config/Alpha"
cp "$kivu" "$work/Kivu"
printf '[Settings]\r\nLastEmulator=Alpha\r\nResetScreenResolution=1\r\nUseJoystick=0\r\n' >"$work/Config/Kivu.ini"
printf '[Settings]\r\nWinUAE_UseMasterConfig=0\r\n' >"$work/Config/Alpha/Kivu.ini"

Size() { xwininfo -root | sed -n 's/^ *-geometry \([0-9x]*\).*/\1/p'; }
# Until the screen has the size.
Becomes() {
  for _ in $(seq 600); do
    [ "$(Size)" = "$1" ] && return 0
    sleep 0.1
  done
  Fail "the screen is $(Size) and not $1: $2; $(tail -n 3 "$work/state/Kivu/Kivu.log")"
}
StartKivu() {
  "$work/Kivu" >"$work/out" 2>&1 </dev/null &
  program=$!
  Becomes 800x600 "at the program's start"
}

desktop=$(Size)
[ "$desktop" = 1280x1024 ] || Fail "the desktop is $desktop"
for signal in KILL TERM SEGV; do
  StartKivu
  kill -$signal $program
  wait $program 2>/dev/null || true
  Becomes "$desktop" "after SIG$signal"
done

grep -q "display mode set: 800x600x16x60" "$work/state/Kivu/Kivu.log" || Fail "the log does not say so"

# Switched off, nothing is touched.
printf '[Settings]\r\nLastEmulator=Alpha\r\nResetScreenResolution=0\r\nUseJoystick=0\r\n' >"$work/Config/Kivu.ini"
"$work/Kivu" >"$work/out" 2>&1 </dev/null &
program=$!
for _ in $(seq 600); do
  xwininfo -root -tree | grep -q '"Kivu' && break
  sleep 0.1
done
[ "$(Size)" = "$desktop" ] || Fail "switched off, the screen is $(Size)"
