#!/bin/bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Lays out the collection of demo games below OUTDIR, which is meant to be the
# launcher's directory:
#
#     lay-out.sh GAMES OUTDIR
#
# GAMES holds what build-games.sh has built; it may lie at its place below OUTDIR
# already. Needs what every Debian has. A profile, an alias list, favourites, a skin or
# pictures that are there already are kept: they may be the user's own by now.

set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if (($# != 2)) || [[ -z $1 || -z $2 ]]; then
    echo "usage: ${0##*/} GAMES OUTDIR" >&2
    exit 2
fi
games=$(cd -- "$1" && pwd)
# In the source tree, and where both are installed.
skins=$here/../assets/skins
[[ -d $skins ]] || skins=$here/../kivu/skins
mkdir -p -- "$2"
out=$(cd -- "$2" && pwd)
# Sorting and case without regard to where this runs.
export LC_ALL=C.UTF-8

# WriteCache GAMES PATTERNS ALIASES: the list cache on standard output: for each
# image its path relative to the program and its display name, as the launcher's
# own scan of the same files gives them.
WriteCache() {
    local pattern
    (
        cd -- "$out"
        set -f # the patterns are for find, not for this directory
        for pattern in ${2//,/ }; do
            find "Games/$1" -type f -name "$pattern" -not -name $'*[\n\r]*'
        done
    ) | sort -f | aliases=$3 root=$out awk '
        # The name up to its second ")", its first, or less its extension; names
        # of fewer than five characters keep their whole path.
        function Shorten(path,    name, first, second) {
            name = path
            sub(/.*\//, "", name)
            if (length(name) < 5) return ENVIRON["root"] "/" path
            first = index(name, ")")
            if (first < 5) return substr(name, 1, length(name) - 4)
            second = index(substr(name, first + 1), ")")
            return substr(name, 1, first + second)
        }
        function Trim(text) {
            gsub(/^[ \t]+|[ \t\r]+$/, "", text)
            return text
        }
        # The first row from "start" on that holds "find" in any case.
        function Find(find, start,    row) {
            for (row = start; row <= rows; ++row)
                if (index(tolower(shown[row]), tolower(find))) return row
            return 0
        }
        { paths[++rows] = $0; shown[rows] = Shorten($0) }
        END {
            start = 1
            while ((getline line <ENVIRON["aliases"]) > 0) {
                place = index(line, ";")
                if (place < 2) continue
                row = Find(Trim(substr(line, 1, place - 1)), start)
                if (row) shown[row] = Trim(substr(line, place + 1))
                start = row ? row + 1 : 1
            }
            for (row = 1; row <= rows; ++row) printf "/%s\r\n%s\r\n", paths[row], shown[row]
        }'
}

# InstallEmulator NAME GAMES: the data directory of emulator NAME, whose images
# lie in Games/GAMES.
InstallEmulator() {
    local config=$out/Config/$1 template=$here/config/$1
    local patterns count kept
    mkdir -p -- "$config"
    rm -rf -- "$config.new"
    cp -R --no-preserve=mode -- "$template/." "$config.new"
    # Profiles and lists are read on Windows as well: lines end in CR LF.
    for kept in AliasList.txt Favoriten.ini Kivu.ini; do
        if [[ -e $config.new/$kept ]]; then sed -i 's/\r*$/\r/' "$config.new/$kept"; fi
    done
    patterns=$(sed -n 's/^Dir_Parameter=\(.*\)\r$/\1/p' "$config.new/Kivu.ini")
    WriteCache "$2" "$patterns" "$config.new/AliasList.txt" >"$config.new/Kivu_Cache.txt"
    count=$(($(wc -l <"$config.new/Kivu_Cache.txt") / 2))
    sed -i "s/^RomCount=.*/RomCount=$count\r/" "$config.new/Kivu.ini"
    for kept in Kivu.ini AliasList.txt Favoriten.ini; do
        if [[ -e $config/$kept ]]; then rm -f -- "$config.new/$kept"; fi
    done
    cp -R -- "$config.new/." "$config"
    rm -r -- "$config.new"
    echo "$1: $count images"
}

# InstallLook NAME SKIN: an emulator's skin and its games' pictures, each if it has none yet.
InstallLook() {
    local config=$out/Config/$1 picture
    if [[ ! -e $config/Skin ]]; then cp -R --no-preserve=mode -- "$skins/$2" "$config/Skin"; fi
    mkdir -p -- "$config/Pictures"
    for picture in "$here"/pictures/*.png "$here"/pictures/*.jpg; do
        if [[ ! -e $config/Pictures/${picture##*/} ]]; then cp --no-preserve=mode -- "$picture" "$config/Pictures/"; fi
    done
}

# InstallGlobalFavourites: the favourites of all emulators. Their paths are absolute.
InstallGlobalFavourites() {
    local target=$out/Config/Favoriten_Global.ini line
    if [[ -e $target ]]; then return; fi
    while IFS= read -r line; do
        printf '%s\r\n' "${line//@OUT@/"$out"}"
    done <"$here/config/Favoriten_Global.ini" >"$target.new"
    mv -- "$target.new" "$target"
}

if [[ $games != "$out/Games" ]]; then
    mkdir -p -- "$out/Games"
    cp -R --no-preserve=mode -- "$games/." "$out/Games"
fi
mkdir -p -- "$out/Emulators"
install -m 755 -- "$here/kivu-dosbox.sh" "$out/Emulators/"
InstallEmulator DOSBox DOS
InstallEmulator "Disk Box" Disks
InstallLook DOSBox Nachtwald
InstallLook "Disk Box" Papier
InstallGlobalFavourites
