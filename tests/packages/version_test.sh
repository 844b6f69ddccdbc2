#!/usr/bin/env bash
# The version and the day of the newest release are told in several places, which must agree.
. "$1/tests/packages/checks.sh"
cd "$tree"

. scripts/release.sh
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+$ ]] || Fail "no version: $version"
[[ $SOURCE_DATE_EPOCH =~ ^[0-9]+$ ]] || Fail "no time of the last commit: $SOURCE_DATE_EPOCH"
day=$(sed -n "s/^## $version (\([0-9-]*\))$/\1/p" CHANGELOG.md)
[ -n "$day" ] || Fail "CHANGELOG.md tells nothing of $version"
[ "$(sed -n '0,/^## /s/^## \([0-9.]*\) .*/\1/p' CHANGELOG.md)" = "$version" ] || Fail "$version is not CHANGELOG.md's newest"
[ "$(sed -n '0,/<release /s/.*<release version="\([^"]*\)" date="\([^"]*\)".*/\1 \2/p' \
  packaging/linux/kivu.metainfo.xml.in)" = "$version $day" ] || Fail "the metainfo's newest release is not $version of $day"
if command -v dpkg-parsechangelog >/dev/null; then
  [ "$(dpkg-parsechangelog -S Version)" = "$version" ] || Fail "debian/changelog is not of $version"
  [ "$(date -u -d "$(dpkg-parsechangelog -S Date)" +%F)" = "$day" ] || Fail "debian/changelog is not of $day"
fi
