#!/usr/bin/env bash
# Makes the tarball for Linux systems that Debian's packages do not suit: build/tarball/Kivu-<version>-linux-<machine>.tar.xz,
# to be unpacked anywhere. It brings Qt and what that needs along.
#
#     scripts/build-tarball.sh [PROGRAM]
#
# PROGRAM is one that has been built already; else one is built as the Debian package does.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh build tarball
. scripts/release.sh
program="${1:-}"
if [ -z "$program" ]; then
  (
    eval "$(DEB_BUILD_MAINT_OPTIONS=hardening=+all dpkg-buildflags --export=sh)"
    cmake --preset package >/dev/null
    cmake --build --preset package --target Kivu >/dev/null
  )
  program=build/package/program/Kivu
fi

name="Kivu-$version-linux-$(uname -m)"
directory="build/tarball/$name"
rm -rf build/tarball
mkdir -p "$directory/docs" "$directory/Skins"
install -m 755 "$program" "$directory/Kivu"
strip "$directory/Kivu"
scripts/packages/tarball-libraries.sh "$directory"
cp LICENSE README.md CHANGELOG.md "$directory/"
cp -R docs/book docs/{install,profiles,skins}.md docs/*.sh "$directory/docs/"
cp -R assets/skins/. "$directory/Skins/"

# The same files give the same bytes, whoever packs them.
chmod -R u=rwX,go=rX "$directory"
tar --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 --numeric-owner --format=gnu \
  -C build/tarball -cf - "$name" | xz -6 -T1 >"$directory.tar.xz"

# Oldest LIBRARY: the newest of its versions that anything in the tarball asks for.
Oldest() {
  find "$directory" -type f \( -name Kivu -o -name '*.so*' \) -exec objdump -T {} + |
    grep -o "\b$1_[0-9.]*" | sort -uV | tail -n 1 | cut -d_ -f2
}
echo "needs glibc $(Oldest GLIBC) or newer, and a libstdc++ with GLIBCXX $(Oldest GLIBCXX)"
ls -l "$directory.tar.xz" | awk '{ print $9 " (" $5 " bytes)" }'
