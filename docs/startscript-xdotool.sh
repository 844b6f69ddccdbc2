#!/bin/sh
# A start script for Linux: save it as Startscript.vbs in the emulator's directory below Config. Its first line says
# what runs it, so it needs no right to be run. It does what the example in a new script does on Windows: waits for
# the emulator's window, brings it to the front and presses keys in it.
title="FS-UAE"

window="$(timeout 30 xdotool search --sync --onlyvisible --name "$title" | head -n 1)"
[ -n "$window" ] || exit 1
xdotool windowactivate --sync "$window"
sleep 0.5

# Alt+F and Return
xdotool key alt+f Return

# 2 seconds, then F8
sleep 2
xdotool key F8
