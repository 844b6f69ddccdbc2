#!/usr/bin/env bash
# Builds the Debian packages, binary and source: build-deb.sh [DIRECTORY]. They end up in DIRECTORY (build/deb), made
# from a copy of the tree there, so that nothing is left in the tree. KIVU_JOBS: how many compilers at once.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh build package
. scripts/release.sh
target="${1:-build/deb}"
mkdir -p "$target"
target="$(cd "$target" && pwd)"

[ "$(dpkg-parsechangelog -S Version)" = "$version" ] || {
  echo "debian/changelog is not of $version, the version in CMakeLists.txt" >&2
  exit 1
}
find "$target" -maxdepth 1 -type f -name 'kivu*' -delete
ExportTree "$target/kivu-$version"
cd "$target/kivu-$version"
# Unsigned: they are signed where they are published, if they are.
DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS:+$DEB_BUILD_OPTIONS }parallel=${KIVU_JOBS:-$(nproc)}" dpkg-buildpackage -us -uc -F >"$target/log" 2>&1 || {
  tail -n 60 "$target/log" >&2
  exit 1
}
cd "$target"
rm -rf "kivu-$version"
lintian --fail-on error,warning --allow-root "kivu_${version}_$(dpkg --print-architecture).changes"
ls "$target"/kivu*.deb
