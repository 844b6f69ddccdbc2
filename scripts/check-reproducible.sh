#!/usr/bin/env bash
# Builds the Debian packages and the tarball twice, in two directories with names of different lengths, and compares
# them byte for byte: check-reproducible.sh [FIRST]
#
# FIRST holds packages that scripts/build-deb.sh has built already. The other build takes nothing from the compiler's
# cache, so it costs a whole build. KIVU_JOBS: how many compilers at once.
set -euo pipefail
cd "$(dirname "$0")/.."

. scripts/release.sh
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
first="${1:-}"
if [ -z "$first" ]; then
  first="$work/first"
  scripts/build-deb.sh "$first" >/dev/null
fi

# Another place, home and mask of file modes, as another machine might have.
second="$work/a-place-with-a-name-of-another-length"
(
  umask 027
  export CCACHE_DISABLE=1 HOME="$work"
  scripts/build-deb.sh "$second" >/dev/null
)

differ=0
for file in "$first"/kivu*.deb "$first"/kivu*.dsc "$first"/kivu*.tar.xz; do
  other="$second/${file##*/}"
  if cmp -s "$file" "$other"; then
    echo "the same twice: ${file##*/}"
    continue
  fi
  echo "not the same twice: ${file##*/}"
  differ=1
  ! command -v diffoscope >/dev/null || diffoscope --max-report-size 20000 "$file" "$other" || true
done

# What packs the tarball, from one program.
mkdir "$work/program"
dpkg-deb -x "$(echo "$first"/kivu_*.deb)" "$work/program"
for round in 1 2; do
  scripts/build-tarball.sh "$work/program/usr/bin/Kivu" >/dev/null
  sha256sum build/tarball/*.tar.xz
done | sort -u >"$work/tarballs"
if [ "$(wc -l <"$work/tarballs")" -eq 1 ]; then
  echo "the same twice: the tarball"
else
  echo "not the same twice: the tarball"
  differ=1
fi
exit $differ
