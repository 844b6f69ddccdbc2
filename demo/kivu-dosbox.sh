#!/bin/bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Runs one DOS program file in DOSBox, whatever the file is called:
#
#     kivu-dosbox.sh FILE     runs FILE; DOSBox ends with it
#     kivu-dosbox.sh          opens DOSBox on the directory of the games
#
# DOS knows names of eight and three plain characters, so FILE is copied under
# such a name into a directory of its own. FILE is only ever handed to "cp":
# no shell and no DOS command line sees its name. The copy also keeps a program
# from writing to the collection.
#
# The script turns into DOSBox (exec), so that ending the process ends the game.
# DOSBox keeps this script's name as its first argument, by which a launcher
# finds it in the process list. The directory goes away with DOSBox, however
# that ends: the other end of a pipe which only DOSBox holds open waits for it.

set -u

Fail() {
    printf '%s: %s\n' "${0##*/}" "$1" >&2
    exit 2
}

self=$(readlink -f -- "$0") || Fail 'where am I?'
dosbox=$(type -P dosbox) || dosbox=/usr/bin/dosbox
[[ -x $dosbox ]] || Fail 'DOSBox is not installed (Debian package "dosbox")'
(($# <= 1)) || Fail 'one file, please'
if (($# == 1)); then
    [[ -f $1 && -r $1 ]] || Fail "no file that can be read: $1"
fi

# Not below TMPDIR when that cannot be used: /tmp always can.
work=$(mktemp -d -- "${TMPDIR:-/tmp}/kivu-dosbox.XXXXXXXX" 2>/dev/null) ||
    work=$(mktemp -d /tmp/kivu-dosbox.XXXXXXXX) || Fail 'no room for a temporary directory'

# In a session of its own, out of reach of whoever ends the game's session.
# shellcheck disable=SC2016,SC2034
exec {alive}> >(cd / && exec setsid sh -c 'read -r _; rm -rf -- "$1"' sh "$work" >/dev/null 2>&1)

cat >"$work/dosbox.conf" <<'CONF' || Fail 'cannot write the configuration'
[sdl]
fullscreen=false
output=surface
autolock=false
waitonerror=false
[dosbox]
machine=svga_s3
memsize=16
captures=.
[render]
scaler=normal2x
[cpu]
core=auto
cputype=auto
cycles=fixed 20000
[midi]
mpu401=none
mididevice=none
[sblaster]
sbtype=none
oplmode=none
[gus]
gus=false
[speaker]
pcspeaker=true
tandy=off
disney=false
[joystick]
joysticktype=none
[serial]
serial1=disabled
serial2=disabled
[dos]
xms=true
ems=false
umb=false
keyboardlayout=none
[ipx]
ipx=false
[autoexec]
@echo off
mount c . > nul
c:
CONF

start=$work
if (($# == 1)); then
    # A path that begins with "-" is still a path.
    cp -- "$1" "$work/GAME.COM" || Fail "cannot copy: $1"
    chmod u+rw -- "$work/GAME.COM"
    printf 'cls\nGAME.COM\nexit\n' >>"$work/dosbox.conf"
else
    games=${self%/*}/../Games/DOS
    [[ -d $games ]] && start=$games
fi

# DOSBox keeps settings below HOME and says so at length when it cannot.
if [[ ! -d ${HOME:-} || ! -w ${HOME:-} ]]; then
    export HOME=$work
fi

# In a window or not at all: without a display the library would take over the
# console or draw with letters.
export SDL_VIDEODRIVER=${SDL_VIDEODRIVER:-x11}

# Without a sound card the sound library would only complain.
if [[ -z ${SDL_AUDIODRIVER:-} ]] && ! compgen -G '/dev/snd/pcm*' >/dev/null &&
    [[ ! -S ${XDG_RUNTIME_DIR:-}/pulse/native ]]; then
    export SDL_AUDIODRIVER=dummy
fi

cd -- "$start" || Fail "cannot enter $start"
exec -a "${self##*/}" "$dosbox" -noconsole -conf "$work/dosbox.conf"
