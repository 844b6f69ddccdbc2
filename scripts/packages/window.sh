# Sourced behind scripts/screen.sh: what shows that an installed Kivu has come up.

# It may run under another number than it is known by here.
FindKivu() {
  window=$(xdotool search --onlyvisible --class '^[Kk]ivu' 2>/dev/null | tail -n 1)
  [ -n "$window" ]
}
# Its process, as the caller knows it, is no more.
Gone() { [ "$kivu" -ne 0 ] && ! kill -0 "$kivu" 2>/dev/null; }
NoKivu() {
  local window
  ! FindKivu
}

# Its picture has more than a surface of one colour. The first one may be taken before it is painted.
Painted() {
  import -window "$window" "$work/window.png" &&
    [ "$(identify -format '%k' "$work/window.png")" -gt 50 ] &&
    [ "$(convert "$work/window.png" -colorspace Gray -format '%[fx:round(1000*standard_deviation)]' info:)" -gt 20 ]
}

# ExpectWindow NAME TEXT: waits for the window and keeps a picture of it.
ExpectWindow() {
  Up() { FindKivu || Gone; }
  Until 120 Up
  FindKivu || Fail "no window came up: $(cat "$work/kivu.log")"
  Until 60 Painted || Fail "the window shows nothing"
  Shot "$1" "$2"
}

# Another window of the program's than its own has the keyboard: its question, for nothing else is open.
Asked() {
  local active
  active=$(xdotool getactivewindow 2>/dev/null) && [ "$active" != "$window" ] &&
    xprop -id "$active" WM_CLASS 2>/dev/null | grep -qi '"kivu'
}

# Escape asks, and Enter on its OK ends the program. A key that comes while the window is not ready for it is lost.
EndKivu() {
  local tries
  for tries in 1 2 3 4 5 6; do
    Asked || timeout 10 xdotool windowactivate --sync "$window" key Escape 2>/dev/null || true
    Until 5 Asked || continue
    xdotool key Return
    if Until 10 NoKivu; then return; fi
  done
  Fail "the program did not end"
}
