#!/bin/bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Builds the demo games, those for DOS and the disks, below a directory:
#
#     demo/build-games.sh GAMES
#
# Needs nasm, and what every Debian has.

set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if (($# != 1)) || [[ -z $1 ]]; then
    echo "usage: ${0##*/} GAMES" >&2
    exit 2
fi
command -v nasm >/dev/null || {
    echo "${0##*/}: nasm is missing (Debian package \"nasm\")" >&2
    exit 1
}
mkdir -p -- "$1"
games=$(cd -- "$1" && pwd)

# BuildGames LIST GAMES: assembles what LIST names. Its lines hold the source,
# options for the assembler and the file's place below GAMES, split by "|"; empty
# lines and lines that begin with "#" are passed over.
BuildGames() {
    local source options target
    local -a words
    while IFS='|' read -r source options target; do
        [[ -z $source || $source == \#* ]] && continue
        read -ra words <<<"$options"
        mkdir -p -- "$(dirname -- "$2/$target")"
        nasm -f bin -Wall -Werror -I "$here/games/src/" ${words[@]+"${words[@]}"} \
            -o "$2/$target" "$here/games/src/$source.asm"
    done <"$1"
}

BuildGames "$here/games/dos.list" "$games/DOS"
BuildGames "$here/games/disks.list" "$games/Disks"
