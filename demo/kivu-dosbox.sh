#!/bin/bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Runs one DOS program file in DOSBox, whatever the file is called:
#
#     kivu-dosbox.sh FILE     runs FILE; DOSBox ends with it
#     kivu-dosbox.sh -f CONFIG   a machine with five drives: shows the disks that the
#                             lines "floppy0=" to "floppy4=" of CONFIG name, and runs
#                             the one whose key is pressed, until "Q"
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
config=
if [[ ${1:-} == -f ]]; then
    config=${2:-}
    [[ -f $config && -r $config ]] || Fail "no configuration that can be read: $config"
    shift 2
fi
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

# InsertDisks: each drive's disk under a name of its own, and a menu of them. A disk's name reaches
# DOS with its plain letters alone, so that nothing in it is acted upon.
InsertDisks() {
    local line drive disk name keys='' jumps='' runs='' menu=''
    while IFS= read -r line || [[ -n $line ]]; do
        line=${line%$'\r'}
        [[ $line =~ ^floppy([0-4])=(.+)$ ]] || continue
        drive=${BASH_REMATCH[1]} disk=${BASH_REMATCH[2]}
        if [[ $disk == \"*\" ]]; then disk=${disk:1:-1}; fi
        cp -- "$disk" "$work/DF$drive.COM" || continue
        chmod u+rw -- "$work/DF$drive.COM"
        name=$(printf '%s' "${disk##*/}" | iconv -f UTF-8 -t ASCII//TRANSLIT 2>/dev/null |
            tr -c 'A-Za-z0-9 ().-' '_')
        keys+=$drive
        menu+="echo    $drive  Df$drive:  $name"$'\n'
        # The highest answer is asked for first: "errorlevel" means "or more".
        jumps="if errorlevel ${#keys} goto df$drive"$'\n'$jumps
        runs+=":df$drive"$'\n'"DF$drive.COM"$'\n'"goto box"$'\n'
    done <"$1"
    [[ -n $keys ]] || menu=$'echo    All drives are empty.\n'
    printf '@echo off\n:box\ncls\necho.\necho  Disk Box\necho.\n%secho.\necho    Q  Switch off\necho.\n' \
        "$menu" >"$work/BOX.BAT"
    printf 'choice /c%sq /n\nif errorlevel %s goto off\n%s%s:off\nexit\n' \
        "$keys" "$((${#keys} + 1))" "$jumps" "$runs" >>"$work/BOX.BAT"
    sed -i 's/$/\r/' "$work/BOX.BAT"
    printf 'BOX.BAT\nexit\n' >>"$work/dosbox.conf"
}

start=$work
if [[ -n $config ]]; then
    InsertDisks "$config"
fi
if (($# == 1)); then
    # A path that begins with "-" is still a path.
    cp -- "$1" "$work/GAME.COM" || Fail "cannot copy: $1"
    chmod u+rw -- "$work/GAME.COM"
    printf 'cls\nGAME.COM\nexit\n' >>"$work/dosbox.conf"
elif [[ -z $config ]]; then
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
