# Sourced behind scripts/screen.sh: what shows that an installed Kivu has come up.

# It may run under another number than it is known by here.
FindKivu() {
  window=$(xdotool search --onlyvisible --class '^[Kk]ivu' 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}
# Its process, as the caller knows it, is no more.
Gone() { [ "$kivu" -ne 0 ] && ! kill -0 "$kivu" 2>/dev/null; }
NoKivu() { ! FindKivu; }

# Its picture has more than a surface of one colour. The first one may be taken before it is painted.
Painted() {
  import -window "$window" "$work/window.png" &&
    [ "$(identify -format '%k' "$work/window.png")" -gt 50 ] &&
    [ "$(convert "$work/window.png" -colorspace Gray -format '%[fx:round(1000*standard_deviation)]' info:)" -gt 20 ]
}

# ExpectWindow NAME TEXT: waits for the window and keeps a picture of it.
ExpectWindow() {
  Up() { FindKivu || Gone; }
  Until 60 Up
  FindKivu || Fail "no window came up: $(cat "$work/kivu.log")"
  Until 30 Painted || Fail "the window shows nothing"
  Shot "$1" "$2"
}

# Escape asks, and Enter on its OK ends the program.
EndKivu() {
  xdotool windowactivate --sync "$window" 2>/dev/null || true
  sleep 0.5
  xdotool key Escape
  sleep 1.5
  xdotool key Return
  Until 15 NoKivu || Fail "the program did not end"
}
