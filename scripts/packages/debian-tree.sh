#!/usr/bin/env bash
# Makes a fresh Debian with all that packages depend on, and nothing else: debian-tree.sh PACKAGE.deb... Prints the path
# of its archive, which is kept under ~/.cache/kivu and made again when the packages depend on something else. Fails
# where none can be made.
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/install-packages.sh tree >&2
codename="$(. /etc/os-release && echo "$VERSION_CODENAME")"
# Less those of the packages on each other, which are installed together.
names="$(for package in "$@"; do dpkg-deb -f "$package" Package; done | paste -sd'|')"
depends="$(for package in "$@"; do dpkg-deb -f "$package" Depends; done | tr ',' '\n' | sed 's/^ *//; s/ *$//; /^$/d' |
  grep -vxE "($names)( .*)?" | sort -u | paste -sd,)"
key="$(printf '%s\n' 1 "$codename" "$depends" | sha256sum | cut -c1-16)"
cache="${KIVU_CACHE:-$HOME/.cache/kivu}"
archive="$cache/debian-tree-$key.tar"
if [ ! -e "$archive" ]; then
  echo "Making a fresh Debian $codename" >&2
  mkdir -p "$cache"
  # Sources of the machine's own Debian, of nobody else's packages.
  sources=()
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/debian.*; do
    [ ! -s "$file" ] || sources+=("$file")
  done
  # A package of that name with the same needs leads the resolver, alternatives and versions included.
  work="$(mktemp -d)"
  trap 'rm -rf "$work"' EXIT
  mkdir -p "$work/needs/DEBIAN"
  printf '%s\n' 'Package: kivu-needs' 'Version: 1' 'Architecture: all' 'Maintainer: nobody <nobody@localhost>' \
    "Depends: $depends" 'Description: what packages depend on' >"$work/needs/DEBIAN/control"
  dpkg-deb -b "$work/needs" "$work/needs.deb" >/dev/null
  timeout 900 mmdebstrap --variant=apt --format=tar --quiet \
    --aptopt='APT::Install-Recommends "false"' \
    --customize-hook='copy-in '"$work/needs.deb"' /tmp' \
    --customize-hook='APT_CONFIG="$MMDEBSTRAP_APT_CONFIG" apt-get install -y -qq -o DPkg::Chroot-Directory="$1" -o Debug::NoLocking=true "$1/tmp/needs.deb" >/dev/null' \
    --customize-hook='chroot "$1" dpkg --purge kivu-needs >/dev/null' \
    --customize-hook='rm "$1/tmp/needs.deb"' \
    "$codename" "$archive.$$" "${sources[@]}" >&2
  # Those of other needs, and what a run that broke off has left.
  find "$cache" -maxdepth 1 -name 'debian-tree-*.tar*' -not -name "*.$$" -delete
  mv "$archive.$$" "$archive"
fi
echo "$archive"
