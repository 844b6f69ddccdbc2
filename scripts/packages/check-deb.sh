#!/usr/bin/env bash
# Installs the Debian packages in a fresh Debian, starts them from their desktop files as an ordinary user on a virtual
# display, plays a game of the demo, and removes them:
#
#     scripts/packages/check-deb.sh DIRECTORY [SCREENSHOT_DIR]
#
# DIRECTORY holds the packages. Needs root. Where no fresh Debian can be made, or nothing be mounted in it, it is this
# machine that they are installed on.
set -euo pipefail

debs=("$(realpath "$1")"/kivu_*.deb "$(realpath "$1")"/kivu-demo_*.deb)
here=$(cd "$(dirname "$0")/../.." && pwd)
shots=${2:-$here/tour/packages}
. "$here/scripts/screen.sh"
. "$here/scripts/packages/window.sh"

# A number that nobody else has, by which the user's processes are found.
player=47111
id=$(sed -n 's/^set(KIVU_APP_ID "\([^"]*\)".*/\1/p' "$here/CMakeLists.txt")
kivu=0
root=""
installed=0
Players() { pgrep -u $player "$@"; }
Finish() {
  pkill -KILL -u $player || true
  # What is mounted below goes with the last process of its namespace.
  [ "$installed" -eq 0 ] || InSystem apt-get purge -y -qq kivu kivu-demo >/dev/null 2>&1 || true
  StopScreen
}
trap Finish EXIT
[ "$(id -u)" -eq 0 ] || Fail "packages are installed by root"
! Players || Fail "somebody runs programs as user $player"

apart=(unshare -m --propagation private -pf --kill-child)
if "${apart[@]}" true 2>/dev/null && archive=$("$here/scripts/packages/debian-tree.sh" "${debs[@]}"); then
  root=$work/debian
  mkdir "$root"
  tar -xf "$archive" -C "$root"
  echo "player:x:$player:$player::/home/player:/bin/sh" >>"$root/etc/passwd"
  echo "player:x:$player:" >>"$root/etc/group"
  home=/home/player
  mkdir -p "$root/packages"
  cp "${debs[@]}" "$root/packages/"
  packages=("${debs[@]/#*\//\/packages\/}")
  echo "In a fresh Debian:"
else
  echo "No fresh Debian can be made here: THE PACKAGES ARE INSTALLED ON THIS MACHINE."
  ! dpkg-query -W kivu >/dev/null 2>&1 || Fail "Kivu is installed on it already"
  chmod 755 "$work"
  home=$work/home
  packages=("${debs[@]}")
fi
mkdir -p "$root$home/run"
chmod 700 "$root$home/run"
chown -R $player:$player "$root$home"

InSystem() {
  local as=(env DEBIAN_FRONTEND=noninteractive)
  [ -z "$root" ] || as=(env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 "${as[1]}" chroot "$root")
  "${as[@]}" "$@"
}
# What packages lay down and remove, and not what their tools keep of it.
Files() {
  find "$root/" -xdev \( -path "$root/var/cache" -o -path "$root/var/log" -o -path "$root/var/lib/dpkg" \
    -o -path "$root/var/lib/apt" -o -path "$root/packages" -o -path "$root$home" -o -path "$root/tmp" \
    -o -path "$root/proc" -o -path "$root/dev" \) -prune -o -print | sort
}
Install() { InSystem apt-get install -y -qq --no-install-recommends "${packages[@]}"; }

[ -z "$root" ] || Files >"$work/before"
installed=1
Install >"$work/log" 2>&1 || Fail "$(tail -n 20 "$work/log")"
InSystem dpkg-query -L kivu kivu-demo | grep -v ^/.$ | sort -u >"$work/list"
grep -qx /usr/share/kivu "$work/list" || Fail "nothing tells Kivu that it is installed"

# Start ID USER HOME: what a desktop file starts, as a desktop does it, with no file. All that comes of it ends with it.
Start() {
  local command environment
  command="cd && exec $(sed -n 's/^Exec=//p' "$root/usr/share/applications/$1.desktop" | sed 's/ %[a-zA-Z]//g')"
  environment=(env -i PATH=/usr/local/bin:/usr/bin:/bin:/usr/games HOME="$3" XDG_RUNTIME_DIR="$3/run" LANG=C.UTF-8
               DISPLAY="$DISPLAY")
  if [ -z "$root" ]; then
    setpriv --reuid="$2" --regid="$2" --clear-groups "${environment[@]}" sh -c "$command" >"$work/kivu.log" 2>&1 &
  else
    # shellcheck disable=SC2016
    "${apart[@]}" bash -c '
      root=$1 user=$2
      shift 2
      mount --rbind /dev "$root/dev"
      mount -t proc proc "$root/proc"
      exec chroot --userspec="$user:$user" "$root" "$@"
    ' start "$root" "$2" "${environment[@]}" sh -c "$command" >"$work/kivu.log" 2>&1 &
  fi
  kivu=$!
}
# End: by its keys, as its user does.
End() {
  EndKivu
  Until 15 Gone || Fail "the program has no window any more and does not end"
  wait $kivu || true
  kivu=0
}

StartScreen
Start $id $player "$home"
ExpectWindow start "the installed program"
data=$root$home/.local/share
Until 10 test -d "$data/Kivu/Config" || Fail "the user's data lie somewhere else"
End

# The administrator may write beside the program, and must not.
if [ -n "$root" ]; then
  mkdir -m 700 "$root/root/run"
  Start $id 0 /root
  ExpectWindow root "the installed program, run by root"
  End
  [ ! -e "$root/usr/bin/Config" ] || Fail "root's data lie beside the program"
  [ -d "$root/root/.local/share/Kivu/Config" ] || Fail "root's data lie somewhere else"
  rm -rf "$root/root/run" "$root/root/.local" "$root/root/.cache" "$root/root/.config"
fi

# The demo, on a copy of the user's own, and a game of it.
collection=$data/Kivu-Demo
Start $id.Demo $player "$home"
ExpectWindow demo "the demo"
# Moved: the window has another picture than in the last shot.
Moved() { import -window root "$work/now.png" && [ "$(Difference "$last" "$work/now.png")" -gt 3000 ]; }
Click 110 52
Until 15 Moved || Fail "the list of emulators did not open"
Shot emulators "the emulators of the demo"
# DOSBox is the second row, behind Disk Box.
Click 100 96
xdotool key Down Return
Chosen() { grep -q '^LastEmulator=DOSBox' "$collection/Config/Kivu.ini"; }
Until 15 Chosen || Fail "the emulator was not chosen"
Shot favourites "its favourites"
xdotool key Right
Shot titles "its games"
xdotool key Home Down Down
Shot chosen "one of them"
xdotool key Return
Playing() { Players -f '^kivu-dosbox.sh '; }
Until 20 Playing || Fail "the game did not come up: $(cat "$work/kivu.log")"
GameShows() {
  game=$(xdotool search --onlyvisible --name 'Program: *GAME' 2>/dev/null | tail -n 1) && [ -n "$game" ] &&
    import -window "$game" "$work/game.png" && [ "$(identify -format '%k' "$work/game.png")" -gt 3 ]
}
Until 40 GameShows || Fail "the game shows nothing"
MovingShot playing "a game of it"
# Each game ends with Escape, once it has begun.
NotPlaying() { ! Playing; }
for tries in 1 2 3 4 5 6 7 8; do
  timeout 10 xdotool search --onlyvisible --name '^DOSBox' windowactivate --sync key Escape 2>/dev/null || true
  if Until 5 NotPlaying; then break; fi
done
NotPlaying || Fail "the game was not ended"
NoGame() { ! xdotool search --onlyvisible --name '^DOSBox'; }
Until 15 NoGame || Fail "the game's window has stayed"
End
[ "$(cd "$data" && echo *)" = "Kivu Kivu-Demo" ] || Fail "more than the user's data: $(ls -a "$data")"

# Gone, with all that they have brought.
InSystem apt-get purge -y -qq kivu kivu-demo >"$work/log" 2>&1 || Fail "$(tail -n 20 "$work/log")"
installed=0
while IFS= read -r file; do
  # A directory may be others' as well.
  [ -d "$root$file" ] || [ ! -e "$root$file" ] || Fail "$file has stayed"
done <"$work/list"
for directory in kivu kivu-demo doc/kivu doc/kivu-demo; do
  [ ! -e "$root/usr/share/$directory" ] || Fail "/usr/share/$directory has stayed"
done
if [ -n "$root" ]; then
  Files >"$work/after"
  diff "$work/before" "$work/after" || Fail "the system is not as it was before"
fi
[ -d "$data/Kivu/Config" ] && [ -s "$collection/Config/DOSBox/Kivu.ini" ] || Fail "the user's data have gone"
echo "Installed, started, played and removed; the pictures are in ${shots#"$here"/}."
