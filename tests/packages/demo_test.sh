#!/usr/bin/env bash
# The demo collection: built apart from where it is laid out, and laid out for a user by the installed kivu-demo.
. "$1/tests/packages/checks.sh"

# A prefix as the packages make it, with a Kivu that tells what it is started with.
prefix=$work/usr
share=$prefix/share/kivu-demo
mkdir -p "$prefix/bin" "$share" "$prefix/share/kivu"
cp "$tree/packaging/linux/kivu-demo" "$prefix/bin/"
printf '#!/bin/sh\nprintf "%%s\\n" "$@" >"$HOME/told"\n' >"$prefix/bin/Kivu"
chmod +x "$prefix/bin/Kivu"
cp -R "$tree/demo/lay-out.sh" "$tree/demo/kivu-dosbox.sh" "$tree/demo/config" "$tree/demo/pictures" "$share/"
cp -R "$tree/assets/skins" "$prefix/share/kivu/"
echo 1.0 >"$share/version"
"$tree/demo/build-games.sh" "$share/Games"

# As where an administrator has installed it: nobody writes there. And no assembler is at hand.
chmod -R a-w "$prefix"
mkdir "$work/tools"
for tool in /usr/bin/* /bin/*; do
  case ${tool##*/} in nasm | awk | gawk) ;; *) ln -sf "$tool" "$work/tools/" ;; esac
done
ln -sf "$(command -v mawk || command -v awk)" "$work/tools/awk"

export HOME="$work/Jörg & Söhne" PATH="$work/tools" XDG_DATA_HOME=not/absolute
mkdir "$HOME"
collection=$HOME/.local/share/Kivu-Demo
"$prefix/bin/kivu-demo" "a game.com" || Fail "kivu-demo fails"
printf '%s\n' --data "$collection" 'a game.com' >"$work/told"
Same "$work/told" "$HOME/told" "what Kivu is started with"

# What it has laid out is what a build at that place gives.
PATH=/usr/bin:/bin "$tree/demo/build.sh" "$work/built" >/dev/null
FilesOf "$work/built" >"$work/expected"
FilesOf "$collection" | grep -vxE '\.(lock|laid-out)' >"$work/files"
Same "$work/expected" "$work/files" "the files of the collection"
grep -qF "Fav1_FullPath=$collection/Games/DOS/" "$collection/Config/Favoriten_Global.ini" ||
  Fail "the favourites of all emulators lead elsewhere"
! grep -rqF "$prefix" "$collection" || Fail "the collection leans on where it was installed"
[ -z "$(find "$collection" -type f -not -perm -u=w)" ] || Fail "the user cannot write the copy"

# A second start leaves everything alone, and a new version only what is the user's.
echo mine >"$collection/Config/DOSBox/Kivu.ini"
rm "$collection/Games/DOS/Hi.x"
"$prefix/bin/kivu-demo"
[ ! -e "$collection/Games/DOS/Hi.x" ] || Fail "a second start has laid out the collection again"
chmod u+w "$share/version"
echo 1.1 >"$share/version"
# Two at once.
"$prefix/bin/kivu-demo" & first=$!
"$prefix/bin/kivu-demo"
wait $first
[ -e "$collection/Games/DOS/Hi.x" ] || Fail "a new version has not brought its games"
[ "$(cat "$collection/Config/DOSBox/Kivu.ini")" = mine ] || Fail "a new version has taken the user's profile"
[ "$(cat "$collection/.laid-out")" = 1.1 ] || Fail "the new version is not kept"

# Where nothing can be written Kivu is left to say so: no directory can be made there, or something is in the way of the
# collection's files.
touch "$work/file"
mkdir -p "$work/full/Kivu-Demo/.lock"
for place in "$work/file" "$work/full"; do
  rm "$HOME/told"
  XDG_DATA_HOME=$place "$prefix/bin/kivu-demo" 2>"$work/warned"
  grep -q 'not laid out' "$work/warned" || Fail "nobody is told that there is no collection"
  printf '%s\n' --data "$place/Kivu-Demo" >"$work/told"
  Same "$work/told" "$HOME/told" "what Kivu is started with where nothing can be written"
done

# Another place for a user's data.
export XDG_DATA_HOME="$work/elsewhere"
"$prefix/bin/kivu-demo"
[ -e "$work/elsewhere/Kivu-Demo/Config/DOSBox/Kivu.ini" ] || Fail "XDG_DATA_HOME does not count"
chmod -R u+w "$prefix"
