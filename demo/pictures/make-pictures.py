#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Draws the pictures of the demo's games beside itself: a tall one, a wide one and a tiny one. They
# are kept in the tree; only a change of one needs this, and Debian's packages librsvg2-bin and
# imagemagick.

import random
import struct
import subprocess
import zlib
from pathlib import Path

HERE = Path(__file__).resolve().parent


def render(name, width, height, parts, options=()):
    svg = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
           f'viewBox="0 0 {width} {height}">' + "\n".join(parts) + "</svg>")
    png = subprocess.run(["rsvg-convert", "/dev/stdin"], input=svg.encode(), check=True, capture_output=True).stdout
    subprocess.run(["convert", "png:-", "-strip", *options, HERE / name], input=png, check=True)


def title(text, x, y, size, fill, anchor="middle", spacing=2):
    return (f'<text x="{x}" y="{y}" font-family="DejaVu Sans" font-weight="bold" font-size="{size}" '
            f'letter-spacing="{spacing}" text-anchor="{anchor}" fill="{fill}">{text}</text>')


# A box: a wall of bricks above the sea, a ball and a paddle.
def brick_bay():
    width, height = 480, 660
    dice = random.Random(5)
    parts = [
        '<defs><linearGradient id="sky" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#1d2b64"/>'
        '<stop offset="0.62" stop-color="#f8a170"/><stop offset="0.63" stop-color="#1f6f8b"/>'
        '<stop offset="1" stop-color="#0b3954"/></linearGradient></defs>',
        f'<rect width="{width}" height="{height}" fill="url(#sky)"/>',
        '<circle cx="240" cy="405" r="70" fill="#ffe29a"/><rect y="416" width="480" height="244" fill="#1f6f8b"/>',
    ]
    for row in range(12):
        y = 424 + row * 19
        parts.append(f'<path d="M{240 - 60 - row * 10} {y} H{240 + 60 + row * 10}" stroke="#ffe29a" stroke-width="5" '
                     f'stroke-opacity="{0.5 - row * 0.035:.2f}" stroke-dasharray="{26 - row} 14"/>')
    colors = ["#e4572e", "#f3a712", "#a8c686", "#669bbc", "#e4572e", "#c1447e"]
    for row in range(6):
        for column in range(8):
            if row > 3 and dice.random() < 0.45:
                continue
            parts.append(f'<rect x="{20 + column * 55}" y="{150 + row * 28}" width="50" height="23" rx="3" '
                         f'fill="{colors[row]}" stroke="#ffffff" stroke-opacity="0.35"/>')
    parts += [
        '<circle cx="312" cy="372" r="11" fill="#ffffff"/>',
        '<path d="M300 384 L232 560" stroke="#ffffff" stroke-width="3" stroke-opacity="0.45" stroke-dasharray="4 9"/>',
        '<rect x="170" y="562" width="124" height="20" rx="10" fill="#f4f1de"/>',
        title("BRICK BAY", 240, 92, 60, "#fff6e0"),
        title("48 walls · one ball", 240, 126, 19, "#ffe29a", spacing=1),
        title("KIVU 1992", 240, 636, 18, "#cfe8ef", spacing=4),
    ]
    render("Brick Bay.png", width, height, parts)


# A title screen twice as wide as a television's: stars flying by.
def star_drift():
    width, height = 1280, 400
    dice = random.Random(9)
    parts = ['<defs><radialGradient id="space" cx="0.5" cy="0.5" r="0.75"><stop offset="0" stop-color="#2b1a55"/>'
             '<stop offset="1" stop-color="#070512"/></radialGradient></defs>',
             f'<rect width="{width}" height="{height}" fill="url(#space)"/>']
    for _ in range(260):
        x, y = dice.uniform(-1, 1), dice.uniform(-1, 1)
        far = dice.uniform(0.15, 1)
        ax, ay = 640 + x * 640 * far, 200 + y * 200 * far
        bx, by = 640 + x * 640 * far * 1.09, 200 + y * 200 * far * 1.09
        color = dice.choice(["#ffffff", "#9fd8ff", "#ffd6f2"])
        parts.append(f'<path d="M{ax:.1f} {ay:.1f} L{bx:.1f} {by:.1f}" stroke="{color}" '
                     f'stroke-width="{0.6 + 2.2 * far:.1f}" stroke-opacity="{0.25 + 0.7 * far:.2f}" stroke-linecap="round"/>')
    parts += [title("STAR DRIFT", 640, 232, 108, "#ffffff", spacing=18),
              title("press any key", 640, 288, 24, "#9fd8ff", spacing=6)]
    render("Star Drift.jpg", width, height, parts, ["-quality", "90"])


# As a game of that time drew it: 64 x 48 pixels in eight colours.
def moon_miner():
    width, height = 64, 48
    sky, star, rock, light, dark, suit, glass, gem = ((10, 10, 40), (230, 230, 255), (120, 110, 140), (170, 160, 190),
                                                      (70, 62, 95), (235, 140, 50), (120, 220, 255), (90, 255, 160))
    dice = random.Random(2)
    pixels = [[sky] * width for _ in range(height)]
    for _ in range(34):
        pixels[dice.randrange(26)][dice.randrange(width)] = star
    for y in range(11):
        for x in range(11):
            if (x - 5) ** 2 + (y - 5) ** 2 <= 27:
                pixels[4 + y][46 + x] = light if x + y < 12 else rock
    ground = 33
    for x in range(width):
        ground = min(37, max(29, ground + dice.choice([-1, 0, 0, 1])))
        for y in range(ground, height):
            pixels[y][x] = light if y == ground else rock if y < ground + 4 else dark
    for _ in range(7):
        x, y = dice.randrange(3, width - 3), dice.randrange(40, 46)
        for dx, dy in ((0, 0), (1, 0), (0, 1), (-1, 0), (0, -1)):
            pixels[y + dy][x + dx] = gem
    miner = ["..ooo..", ".oggo..", ".oggo.p", "..oo.p.", ".ooooo.", "o.oo.p.", "..oo...", ".o..o..", ".o..o.."]
    for dy, line in enumerate(miner):
        for dx, mark in enumerate(line):
            if mark != ".":
                pixels[24 + dy][22 + dx] = {"o": suit, "g": glass, "p": light}[mark]
    rows = b"".join(b"\0" + bytes(part for pixel in row for part in pixel) for row in pixels)

    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    (HERE / "Moon Miner.png").write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)) +
        chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


brick_bay()
star_drift()
moon_miner()
