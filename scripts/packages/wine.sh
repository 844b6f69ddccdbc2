# Sourced behind scripts/screen.sh and window.sh: a Windows of its own, which nothing else keeps running, under Wine.

export WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LANG=${LANG:-C.UTF-8}
export WINEPREFIX="$work/prefix" HOME="$work/home"
mkdir "$HOME"

kivu=0
Finish() {
  wineserver -k 2>/dev/null || true
  StopScreen
}
trap Finish EXIT

AllEnded() { timeout 60 wineserver -w || Fail "programs have stayed in Windows"; }

# The display, and Windows on it.
StartWindows() {
  StartScreen
  timeout 300 wineboot -i >/dev/null 2>&1 || Fail "no Windows can be made"
  AllEnded
}
