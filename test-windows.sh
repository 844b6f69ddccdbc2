#!/usr/bin/env bash
# Builds Kivu and its tests for Windows and runs them under Wine. Arguments go to ctest (for example -R launch).
set -euo pipefail
cd "$(dirname "$0")"

. scripts/windows/prepare.sh
cmake --build --preset windows
scripts/windows/check-program.sh build/windows/program/Kivu.exe

# A Windows of our own, new at each run, without Wine's messages and without the offer of a browser engine.
WINEPREFIX="$(mktemp -d)"
export WINEPREFIX WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" QT_QPA_PLATFORM=offscreen
trap 'wineserver -k || true; pkill -P $$ tail || true; rm -rf "$WINEPREFIX"' EXIT
scripts/install-packages.sh screen
xvfb-run -a wineboot -i >/dev/null 2>&1
wineserver -w
# Wine's services stay up for as long as one program runs.
tail -f /dev/null | wine cmd >/dev/null 2>&1 &

# Those of an earlier run may be of programs that this one leaves out.
rm -rf build/windows/reports
status=0
ctest --preset windows -j "$(nproc)" "$@" || status=$?

echo "== not run on Windows, and why"
sed -n '/^[^#]/p' tests/not_on_windows.txt
for report in $(find build/windows/reports -name "*.xml"); do
  scripts/windows/skipped-tests.sh "$report"
done
[ "$status" -eq 0 ] || exit "$status"

if [ $# -eq 0 ]; then
  scripts/windows/tour.sh build/windows/program/Kivu.exe build/windows/tests/hosts/windows/kivu_stay.exe
fi
