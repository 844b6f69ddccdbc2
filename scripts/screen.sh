# Sourced by the tours: a virtual display with a window manager, and what drives and looks at a program on it.
# The caller has set here (the tree) and shots (the directory for screenshots), and calls StartScreen first.
# TOUR_SIZE sets the screen (1024x768).

size=${TOUR_SIZE:-1024x768}
work=$(mktemp -d)
display=0
manager=0
number=0
last=""
mkdir -p "$shots"
rm -f "$shots"/[0-9][0-9]-*.png

StopScreen() {
  for process in $manager $display; do
    [ "$process" -eq 0 ] || kill "$process" 2>/dev/null || true
  done
  rm -rf "$work"
}

Fail() {
  echo "The tour stopped: $*" >&2
  [ "$display" -eq 0 ] || import -window root "$shots/99-failed.png" || true
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

# The picture of a step that keeps moving.
MovingShot() {
  number=$((number + 1))
  last=$(printf '%s/%02d-%s.png' "$shots" $number "$1")
  import -window root "$last"
  echo "  $number. $2: ${last#"$here"/}"
}

# A window that comes up while the manager starts may be left where it is, unseen.
Managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# A display of its own, and a window manager as a desktop has one.
StartScreen() {
  exec 3>"$work/display"
  Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset >/dev/null 2>&1 &
  display=$!
  exec 3>&-
  Until 20 test -s "$work/display" || Fail "no virtual display came up"
  DISPLAY=:$(cat "$work/display")
  export DISPLAY
  openbox >/dev/null 2>&1 &
  manager=$!
  Until 20 Managed || Fail "no window manager came up"
}
