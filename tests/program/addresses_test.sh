#!/usr/bin/env bash
# Which addresses a build takes: addresses_test.sh CMAKE TREE
set -euo pipefail

Takes() { "$cmake" "$@" -P "$tree/cmake/addresses.cmake" >/dev/null 2>&1; }
cmake=$1
tree=$2
hash=$(printf '%064d' 7)
failed=0
Taken() { Takes "$@" || { echo "FAILED: refused: $*" >&2; failed=1; }; }
Refused() { if Takes "$@"; then echo "FAILED: taken: $*" >&2; failed=1; fi; }

Taken
Taken -DKIVU_UPDATE_BASE=https://h -DKIVU_UPDATER_SHA256="$hash"
Taken -DKIVU_UPDATE_BASE=https://h:8443/a -DKIVU_UPDATER_SHA256="${hash/7/f}"
Taken -DKIVU_HOME_PAGE=http://h/
Taken -DKIVU_DONATE_URL='https://h/cgi-bin/webscr?cmd=_xclick&business=a'
Refused -DKIVU_UPDATE_BASE=https://h
Refused -DKIVU_UPDATE_BASE=https://h -DKIVU_UPDATER_SHA256="${hash:1}"
Refused -DKIVU_UPDATE_BASE=https://h -DKIVU_UPDATER_SHA256="${hash/7/g}"
for address in http://h h file:///h 'https://h a' 'https://h"a' https:// https:///a; do
  Refused -DKIVU_UPDATE_BASE="$address" -DKIVU_UPDATER_SHA256="$hash"
done
Refused -DKIVU_HOME_PAGE='C:\h'
Refused -DKIVU_HOME_PAGE=ftp://h/
Refused -DKIVU_DONATE_URL=http://h/
exit $failed
