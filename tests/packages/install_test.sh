#!/usr/bin/env bash
# What cmake --install lays down, and whether desktops can read it.
. "$1/tests/packages/checks.sh"

prefix="$work/a prefix"
cmake --install "$build" --prefix "$prefix" >"$work/log" || Fail "$(cat "$work/log")"
FilesOf "$prefix" >"$work/files"
# Chapters and pictures come and go.
{
  cat "$here/installed.txt"
  (cd "$tree" && printf 'share/doc/kivu/%s\n' docs/book/*.md docs/book/*/*.md docs/book/*/*/*.png)
} | sort >"$work/expected"
Same "$work/expected" "$work/files" "the installed files"
"$tree/scripts/packages/dead-links.sh" "$prefix/share/doc" || Fail "a document leads to none that is installed"
[ -x "$prefix/bin/Kivu" ] || Fail "the program cannot be run"

id=$(sed -n 's/^set(KIVU_APP_ID "\([^"]*\)".*/\1/p' "$tree/CMakeLists.txt")
desktop=$prefix/share/applications/$id.desktop
metainfo=$prefix/share/metainfo/$id.metainfo.xml

desktop-file-validate "$desktop" >"$work/told" 2>&1 || Fail "$(cat "$work/told")"
[ ! -s "$work/told" ] || Fail "$(cat "$work/told")"
grep -qx 'Exec=Kivu %f' "$desktop" || Fail "the desktop file starts something else"
grep -qx "Icon=$id" "$desktop" || Fail "the desktop file has another icon"
# A launcher of games is no viewer of the images that they come in.
! grep -q '^MimeType' "$desktop" || Fail "the desktop file claims kinds of files"
for key in GenericName Comment Keywords; do
  grep -q "^$key\[de\]=." "$desktop" || Fail "the desktop file has no German $key"
done

# It wants a home page, which only a build with an address has, and takes that for a remark.
appstreamcli validate --no-net "$metainfo" >"$work/told" 2>&1 || Fail "$(cat "$work/told")"
! grep -qE '^(E|W):' "$work/told" || Fail "$(cat "$work/told")"
! grep -q 'http' "$metainfo" || Fail "the metainfo names an address that nobody has given"
grep -q "<id>$id</id>" "$metainfo" || Fail "the metainfo has another id"

Manual() {
  man --warnings -E UTF-8 -l -Tutf8 -Z "$1" 2>"$work/told" >/dev/null || Fail "man fails"
  [ ! -s "$work/told" ] || Fail "$(cat "$work/told")"
}
Manual "$prefix/share/man/man1/Kivu.1"

# The demo's, which only a package installs.
mkdir "$work/demo"
for file in kivu-demo.desktop kivu-demo.1; do
  sed "s/@KIVU_APP_ID@/$id/; s/@PROJECT_VERSION@/1.0/" "$tree/packaging/linux/$file.in" >"$work/demo/$file"
done
desktop-file-validate "$work/demo/kivu-demo.desktop" >"$work/told" 2>&1 || Fail "$(cat "$work/told")"
[ ! -s "$work/told" ] || Fail "$(cat "$work/told")"
Manual "$work/demo/kivu-demo.1"
# The windows of both are of one class, which a dock looks for in all entries: one of them has it.
grep -qx 'StartupWMClass=Kivu' "$desktop" || Fail "the desktop file does not name the class of its windows"
! grep -q '^StartupWMClass' "$work/demo/kivu-demo.desktop" || Fail "the demo's entry takes the windows of Kivu's"

# Each icon has the size of its directory.
for icon in "$prefix"/share/icons/hicolor/*x*/apps/*.png; do
  size=$(basename "$(dirname "$(dirname "$icon")")")
  [ "$(identify -format '%wx%h' "$icon")" = "$size" ] || Fail "$icon is not $size"
done
