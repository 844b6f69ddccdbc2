#!/usr/bin/env bash
# Runs the tarball's program where nobody can read the system's own copies of what it brings: run-alone.sh DIRECTORY.
# Called in a mount namespace of its own, where a file that is no library lies over each of them.
set -euo pipefail
directory="$1"

cover=$(mktemp -d)
mkdir "$cover/directory"
echo "no library" >"$cover/file"
# What the system's own libraries that the program takes need in turn stays to be read.
ldd "$directory/Kivu" "$directory"/plugins/*/*.so | awk -v own="$directory" '
  $2 == "=>" && $3 ~ /^\// && index($0, own) == 0 { print $3 }' | sort -u | xargs ldd |
  awk '$2 == "=>" { print $1 }' | sort -u >"$cover/systems"
# All by one command, which may need what it hides.
for own in "$directory"/lib/*; do
  ! grep -qxF "${own##*/}" "$cover/systems" || continue
  for library in /lib/*-linux-gnu/"${own##*/}" /usr/lib/*-linux-gnu/"${own##*/}" /usr/lib64/"${own##*/}"; do
    [ ! -e "$library" ] || printf '%s %s none bind 0 0\n' "$cover/file" "$(readlink -f "$library")"
  done
done | sort -u >"$cover/mounts"
! grep -E '^lib(Qt6|icu)' "$cover/systems" || { echo "the system's libraries need these" >&2; exit 1; }
for plugins in /usr/lib/*-linux-gnu/qt6 /usr/lib64/qt6; do
  [ ! -d "$plugins" ] || printf '%s %s none bind 0 0\n' "$cover/directory" "$plugins"
done >>"$cover/mounts"
mount -a -T "$cover/mounts"
exec "$directory/Kivu"
