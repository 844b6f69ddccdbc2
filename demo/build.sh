#!/bin/bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Builds the demo games and lays out the collection below OUTDIR, which is meant
# to be the directory of the launcher's program file:
#
#     demo/build.sh OUTDIR
#
# Needs nasm, and what every Debian has. What may be the user's own by now is kept.

set -euo pipefail

here=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")" && pwd)
if (($# != 1)) || [[ -z $1 ]]; then
    echo "usage: ${0##*/} OUTDIR" >&2
    exit 2
fi
"$here/build-games.sh" "$1/Games"
"$here/lay-out.sh" "$1/Games" "$1"
