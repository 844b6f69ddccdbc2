#!/usr/bin/env bash
# Builds and tries every package. For CI, which calls it at its end; by hand behind scripts/build-windows.sh, too.
#
#     scripts/ci-packages.sh [--all]      (--all: as for a release)
#
# The Debian packages are built, installed, played with and removed each time. What takes long and rarely changes is
# done again when what it is made by has changed since it was last found good (or with --all): the tarball, zip and
# installer, and the build that must give the same bytes twice. What they are made by is kept under ~/.cache/kivu.
# KIVU_PACKAGES_SECONDS: none of these is begun after so many seconds (none given: no limit), but left for the next run;
# with empty caches the Debian packages alone take their time.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/install-packages.sh build package tarball installer tree screen run test wine
export CCACHE_DIR="${CCACHE_DIR:-$HOME/.cache/kivu/ccache}"
kept="${KIVU_CACHE:-$HOME/.cache/kivu}/packages"
all="${1-}"
# Debug symbols take longer to pack than all else, and are wanted for a release alone.
[ "$all" = --all ] || export DEB_BUILD_OPTIONS=noautodbgsym
mkdir -p "$kept"

# Stage TEXT COMMAND...: one part of the work, and how long it has taken.
Stage() {
  local text="$1" since=$SECONDS
  shift
  echo "== $text"
  "$@"
  echo "   ($((SECONDS - since)) s)"
}

# Changed NAME TEXT COMMAND... -- FILE...: a part that is done again when the files, or this machine's version of what
# makes the packages, have changed since it was last found good.
Changed() {
  local name="$1" text="$2" command=() now
  shift 2
  while [ "$1" != -- ]; do
    command+=("$1")
    shift
  done
  shift
  now="$({
    dpkg-query -W -f '${Package} ${Version}\n' dpkg-dev debhelper g++ cmake qt6-base-dev nsis patchelf wine
    git ls-files -z -- "$@" | xargs -0 sha256sum
  } | sha256sum | cut -c1-40)"
  if [ "$all" != --all ] && [ "$(cat "$kept/$name" 2>/dev/null)" = "$now" ]; then
    echo "== $text: nothing has changed"
    return
  fi
  if [ "$all" != --all ] && [ $SECONDS -ge "${KIVU_PACKAGES_SECONDS:-86400}" ]; then
    echo "== $text: LEFT FOR THE NEXT RUN, $SECONDS s have gone by"
    return
  fi
  Stage "$text" "${command[@]}"
  echo "$now" >"$kept/$name"
}

Tarball() {
  local program
  program="$(mktemp -d)"
  dpkg-deb -x build/deb/kivu_*.deb "$program"
  scripts/build-tarball.sh "$program/usr/bin/Kivu"
  rm -rf "$program"
  scripts/packages/check-tarball.sh build/tarball/*.tar.xz
}
Windows() {
  [ -e build/windows/package/Kivu/Kivu.exe ] || scripts/build-windows.sh
  scripts/packages/check-zip.sh build/windows/Kivu-*-windows.zip
  scripts/build-installer.sh
  scripts/packages/check-installer.sh build/windows/Kivu-*-windows-setup.exe
}

recipe=(CMakeLists.txt CMakePresets.json cmake src/CMakeLists.txt src/app/CMakeLists.txt src/app/resources.qrc
        scripts/release.sh scripts/install-packages.sh)
Stage "Debian packages" scripts/build-deb.sh
Stage "Debian packages, installed and removed" scripts/packages/check-deb.sh build/deb
Changed tarball "tarball" Tarball -- "${recipe[@]}" scripts/build-tarball.sh scripts/packages scripts/screen.sh
Changed windows "zip and installer for Windows" Windows -- packaging/windows scripts/build-windows.sh \
  scripts/build-installer.sh scripts/release.sh scripts/install-packages.sh scripts/screen.sh \
  scripts/packages/{check-zip,check-installer,window,wine}.sh
# A source file can't differ from build to build: packages take no __DATE__ (-Werror=date-time).
Changed reproducible "the same bytes twice" scripts/check-reproducible.sh build/deb -- "${recipe[@]}" debian packaging/linux \
  demo scripts/build-deb.sh scripts/build-tarball.sh scripts/packages/tarball-libraries.sh scripts/check-reproducible.sh
