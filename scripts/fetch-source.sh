#!/usr/bin/env bash
# Unpacks a Debian source package: fetch-source.sh NAME VERSION DIRECTORY. Prints the path of its tree.
# The sources are the machine's own, asked for source packages in lists of our own: its set-up stays untouched.
set -euo pipefail
name="$1" version="$2" directory="$3"

mkdir -p "$directory"/{sources.d,lists/partial,archives/partial}
for file in /etc/apt/sources.list.d/*.sources; do
  [ ! -e "$file" ] || sed 's/^Types:.*/Types: deb-src/' "$file" >"$directory/sources.d/$(basename "$file")"
done
for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
  [ ! -e "$file" ] || sed -n 's/^deb /deb-src /p' "$file" >"$directory/sources.d/$(basename "$file" .list).list"
done

apt=(-qq -o "Dir::Etc::sourcelist=/dev/null" -o "Dir::Etc::sourceparts=$directory/sources.d"
     -o "Dir::State::lists=$directory/lists" -o "Dir::Cache::archives=$directory/archives"
     -o "Dir::Cache::srcpkgcache=" -o "Dir::Cache::pkgcache=" -o "APT::Sandbox::User=$(id -un)")
{
  apt-get "${apt[@]}" update
  cd "$directory"
  # An update may have taken the place of the version that is installed, and a mirror may lack the newest one.
  others="$(apt-cache "${apt[@]}" showsrc "$name" | sed -n 's/^Version: //p')"
  for one in "$version" $others; do
    apt-get "${apt[@]}" source "$name=$one" && break
  done
} >&2
find "$directory" -maxdepth 1 -type d -name "$name-*"
