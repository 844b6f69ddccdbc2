#!/bin/bash
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Draws the PNG files below assets/ from the SVG files beside them. They are kept
# in the tree, so only a change of a picture needs this, and Debian's packages
# librsvg2-bin and imagemagick.

set -euo pipefail

assets=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../assets" && pwd)
command -v rsvg-convert >/dev/null || {
    echo "${0##*/}: rsvg-convert is missing (Debian package \"librsvg2-bin\")" >&2
    exit 1
}
command -v convert >/dev/null || {
    echo "${0##*/}: convert is missing (Debian package \"imagemagick\")" >&2
    exit 1
}
mkdir -p -- "$assets/png" "$assets/icon"

# Small icons have a drawing of their own, with fewer and larger shapes.
for size in 16 24 32 48 64 128 256 512; do
    drawing=kivu
    if ((size <= 48)); then drawing=kivu-small; fi
    rsvg-convert -w "$size" -h "$size" -o "$assets/icon/kivu-$size.png" \
        "$assets/svg/$drawing.svg"
done

# The icon of the Windows program.
convert "$assets"/icon/kivu-{16,24,32,48,64,128,256}.png "$assets/icon/kivu.ico"

for drawing in "$assets"/svg/*.svg; do
    name=$(basename -- "$drawing" .svg)
    case $name in kivu | kivu-small) continue ;; esac
    rsvg-convert -o "$assets/png/$name.png" "$drawing"
    rsvg-convert -z 2 -o "$assets/png/$name@2x.png" "$drawing"
done

# The same pixels with one plain filter for all rows, in greys. The background is read at every start,
# and the filters that rsvg-convert chooses take five times as long to undo.
for picture in "$assets"/png/background{,@2x}.png; do
    convert "$picture" -define png:compression-filter=1 -define png:compression-level=9 \
        -define png:color-type=4 -define png:bit-depth=8 -define png:exclude-chunks=all "PNG:$picture.new"
    mv -- "$picture.new" "$picture"
done
