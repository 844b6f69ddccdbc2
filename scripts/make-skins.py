#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright (c) 2026 The Kivu developers
#
# Draws the skins below assets/skins/. Their pictures are kept in the tree, so only a change of one
# needs this, and Debian's packages librsvg2-bin and imagemagick:
#
#     scripts/make-skins.py [NAME...]

import math
import random
import subprocess
import sys
import tempfile
from pathlib import Path

SKINS = Path(__file__).resolve().parent.parent / "assets" / "skins"


def path(points, **style):
    way = " ".join(f"{'L' if i else 'M'}{x:.1f} {y:.1f}" for i, (x, y) in enumerate(points))
    return shape("path", d=way + " Z", **style)


def shape(kind, **attributes):
    told = " ".join(f'{name.replace("_", "-")}="{value}"' for name, value in attributes.items())
    return f"<{kind} {told}/>"


def gradient(name, colors, radial=None):
    stops = "".join(
        f'<stop offset="{at}" stop-color="{color}" stop-opacity="{opacity}"/>' for at, color, opacity in colors
    )
    if radial:
        x, y, r = radial
        return f'<radialGradient id="{name}" cx="{x}" cy="{y}" r="{r}">{stops}</radialGradient>'
    return f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1">{stops}</linearGradient>'


def filled(width, height, name):
    return shape("rect", width=width, height=height, fill=f"url(#{name})")


# --- Bernstein: a honeycomb in the glow of an amber screen.


def hexagon(x, y, r):
    return [(x + r * math.cos(math.radians(60 * k + 30)), y + r * math.sin(math.radians(60 * k + 30))) for k in range(6)]


def amber(width, height, cell, glow_at, strength):
    dice = random.Random(7)
    gx, gy = glow_at
    parts = [
        "<defs>",
        gradient("ground", [(0, "#241709", 1), (1, "#120b04", 1)]),
        gradient("glow", [(0, "#ff9a00", 0.30 * strength), (0.5, "#c86400", 0.10 * strength), (1, "#c86400", 0)], (gx, gy, 0.8)),
        "</defs>",
        filled(width, height, "ground"),
    ]
    reach = math.hypot(width, height) * 0.62
    step_x, step_y = cell * math.sqrt(3), cell * 1.5
    for row in range(-1, int(height / step_y) + 3):
        for column in range(-1, int(width / step_x) + 3):
            x = column * step_x + (row % 2) * step_x / 2
            y = row * step_y
            near = max(0.0, 1 - math.hypot(x - gx * width, y - gy * height) / reach) ** 1.7
            if near < 0.01:
                continue
            lit = dice.random()
            opacity = near * strength * (0.20 if lit > 0.86 else 0.05 * lit)
            parts.append(
                path(hexagon(x, y, cell * 0.93), fill="#ffb000", fill_opacity=f"{opacity:.3f}",
                     stroke="#ffb000", stroke_width=f"{cell / 38:.2f}", stroke_opacity=f"{near * strength * 0.20:.3f}")
            )
    parts.append(filled(width, height, "glow"))
    return parts


# --- Papier: hills in thin ink on paper, with a paper plane above them.


def ridge(dice, width, base, swell, steps=64):
    waves = [(dice.uniform(0.6, 3.2), dice.uniform(0, 6.28), dice.uniform(0.2, 1)) for _ in range(5)]
    return [
        (width * i / steps,
         base + swell * sum(math.sin(f * 6.28 * i / steps + p) * a / (1 + f) for f, p, a in waves))
        for i in range(steps + 1)
    ]


def plane(x, y, size):
    at = lambda dx, dy: (x + dx * size, y + dy * size)
    ink = dict(stroke="#22303c", stroke_opacity="0.35", stroke_width=f"{size / 60:.2f}", stroke_linejoin="round")
    return [
        path([at(0, 0.34), at(1, 0), at(0.46, 0.48)], fill="#fffdf8", **ink),
        path([at(0.46, 0.48), at(1, 0), at(0.30, 0.62)], fill="#d9dde0", **ink),
        path([at(0.46, 0.48), at(1, 0), at(0.66, 0.70)], fill="#fbf8f1", **ink),
    ]


def paper(width, height, hills, with_plane):
    dice = random.Random(3)
    parts = ["<defs>", gradient("sheet", [(0, "#f7f2e8", 1), (0.7, "#f2ecdf", 1), (1, "#e9e1d0", 1)]), "</defs>",
             filled(width, height, "sheet")]
    line = height / 36
    for row in range(1, 36):
        parts.append(shape("path", d=f"M0 {row * line:.1f} H{width}", stroke="#8aa0ad", stroke_opacity="0.10",
                           stroke_width=max(1, height / 1000)))
    for layer in range(hills):
        base = height * (0.74 + 0.075 * layer)
        points = ridge(dice, width, base, height * 0.045)
        parts.append(path(points + [(width, height), (0, height)], fill="#7d95a4", fill_opacity=0.13))
    if with_plane:
        x, y, size = width * 0.80, height * 0.055, height * 0.085
        trail = f"M{x - width * 0.30:.0f} {y + size * 1.5:.0f} C{x - width * 0.22:.0f} {y + size * 2.6:.0f} {x - width * 0.14:.0f} {y - size * 0.2:.0f} {x - size * 0.1:.0f} {y + size * 0.5:.0f}"
        parts.append(shape("path", d=trail, fill="none", stroke="#22303c", stroke_opacity="0.22",
                           stroke_width=f"{height / 540:.1f}", stroke_dasharray=f"{height / 90:.0f} {height / 90:.0f}"))
        parts += plane(x, y, size)
    return parts


# --- Nachtwald: firs against the night, and fireflies.


def fir(x, foot, height, color):
    points = [(x, foot - height)]
    layers, half = 6, height * 0.20
    left, right = [], []
    for k in range(1, layers + 1):
        y = foot - height + height * 0.92 * k / layers
        w = half * (k / layers) ** 0.9
        right += [(x + w, y), (x + w * 0.55, y - height * 0.015)]
        left += [(x - w, y), (x - w * 0.55, y - height * 0.015)]
    right[-1], left[-1] = (x + half * 0.12, foot), (x - half * 0.12, foot)
    return path(points + right + left[::-1], fill=color)


def forest(width, height, layers, flies, moon=True):
    dice = random.Random(11)
    parts = [
        "<defs>",
        gradient("night", [(0, "#06120f", 1), (0.55, "#0a2219", 1), (1, "#07160b", 1)]),
        gradient("moonlight", [(0, "#b9ffd0", 0.32), (0.12, "#8dffa8", 0.12), (1, "#8dffa8", 0)], (0.86, 0.16, 0.55)),
        gradient("fly", [(0, "#d8ffb0", 1), (0.35, "#b8ff7a", 0.5), (1, "#b8ff7a", 0)], (0.5, 0.5, 0.5)),
        "</defs>",
        filled(width, height, "night"),
    ]
    if moon:
        parts.append(filled(width, height, "moonlight"))
        parts.append(shape("circle", cx=width * 0.86, cy=height * 0.16, r=height * 0.045, fill="#dcffe4", fill_opacity=0.30))
        for _ in range(90):
            x, y = dice.uniform(0, width), dice.uniform(0, height * 0.6)
            parts.append(shape("circle", cx=f"{x:.0f}", cy=f"{y:.0f}", r=f"{dice.uniform(0.5, 1.5) * height / 1080:.2f}",
                               fill="#c9ffd8", fill_opacity=f"{dice.uniform(0.1, 0.5):.2f}"))
    shades = ["#0c2a1c", "#0a2216", "#071a10", "#04100a"][-layers:]
    for layer, color in enumerate(shades):
        foot = height * (0.90 + 0.05 * layer)
        size = height * (0.20 + 0.05 * layer)
        x = -size
        while x < width + size:
            parts.append(fir(x, foot, size * dice.uniform(0.7, 1.25), color))
            x += size * dice.uniform(0.16, 0.34)
        parts.append(shape("rect", x=0, y=f"{foot - 2:.0f}", width=width, height=height, fill=color))
    for _ in range(flies):
        x, y = dice.uniform(0.02, 0.98) * width, dice.uniform(0.62, 0.97) * height
        r = dice.uniform(3, 8) * height / 1080
        parts.append(shape("circle", cx=f"{x:.0f}", cy=f"{y:.0f}", r=f"{r:.1f}", fill="url(#fly)",
                           fill_opacity=f"{dice.uniform(0.35, 0.9):.2f}"))
    return parts


# --- What lies in front of a window's picture lets it through.


def corner(width, height, light, line=None):
    parts = [
        "<defs>",
        f'<linearGradient id="veil" x1="0" y1="0" x2="1" y2="0"><stop offset="0" stop-color="{light}" stop-opacity="0"/>'
        f'<stop offset="0.55" stop-color="{light}" stop-opacity="0.12"/>'
        f'<stop offset="1" stop-color="{light}" stop-opacity="0.04"/></linearGradient>',
        "</defs>",
        shape("rect", x=2, y=2, width=width - 4, height=height - 4, rx=24, fill="url(#veil)"),
    ]
    if line:
        parts.append(shape("path", d=f"M{width * 0.25:.0f} {height - 3} H{width - 26}", stroke=line, stroke_opacity=0.55,
                           stroke_width=3, stroke_linecap="round"))
    return parts


# The panel is as wide as its column, so that its left and right may be cut.
def drives(width, height, back, line):
    parts = [shape("rect", width=width, height=height, fill=back)]
    for y in (1.5, height - 1.5):
        parts.append(shape("path", d=f"M0 {y} H{width}", stroke=line, stroke_opacity=0.5, stroke_width=3))
    for row in range(4):
        for column in range(2):
            parts.append(shape("circle", cx=15 + 10 * column, cy=17 + 10 * row, r=2.4, fill=line, fill_opacity=0.7))
    return parts


SIZES = {"Background": (1920, 1080), "BackgroundTopRight": (436, 128), "Drivebox": (608, 64), "Loading": (960, 600)}

DRAWINGS = {
    "Bernstein": {
        "colors": ("#1c1206", "#ffb000"),
        "Background": lambda w, h: amber(w, h, 58, (0.92, 0.95), 0.8),
        "BackgroundTopRight": lambda w, h: corner(w, h, "#ffb000", "#ffb000"),
        "Drivebox": lambda w, h: drives(w, h, "#2a1b09", "#ffb000"),
        "Loading": lambda w, h: amber(w, h, 60, (0.5, 0.55), 1.8),
    },
    "Papier": {
        "colors": ("#f2ecdf", "#22303c"),
        "Background": lambda w, h: paper(w, h, 4, True),
        "BackgroundTopRight": lambda w, h: corner(w, h, "#ffffff"),
        "Drivebox": lambda w, h: drives(w, h, "#fbf8f1", "#22303c"),
        "Loading": lambda w, h: paper(w, h, 4, False) + plane(w * 0.32, h * 0.20, h * 0.48),
    },
    "Nachtwald": {
        "colors": ("#07160b", "#8dffa8"),
        "Background": lambda w, h: forest(w, h, 4, 26),
        "BackgroundTopRight": lambda w, h: corner(w, h, "#8dffa8", "#8dffa8"),
        "Drivebox": lambda w, h: drives(w, h, "#0c2417", "#8dffa8"),
        "Loading": lambda w, h: forest(w, h, 4, 40),
    },
}


def render(skin, name, directory):
    width, height = SIZES[name]
    svg = Path(directory) / f"{name}.svg"
    svg.write_text(
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" viewBox="0 0 {width} {height}">'
        + "\n".join(DRAWINGS[skin][name](width, height)) + "</svg>"
    )
    png = Path(directory) / f"{name}.png"
    subprocess.run(["rsvg-convert", "-o", png, svg], check=True)
    # Whole pictures without a see-through pixel are smaller so.
    if name in ("Background", "Loading"):
        target = SKINS / skin / f"{name}.jpg"
        subprocess.run(["convert", png, "-strip", "-sampling-factor", "4:4:4", "-quality", "91", target], check=True)
    else:
        subprocess.run(["convert", png, "-define", "png:exclude-chunks=all", "-define", "png:compression-level=9",
                        f"PNG32:{SKINS / skin / (name + '.png')}"], check=True)


def main():
    for skin in sys.argv[1:] or DRAWINGS:
        (SKINS / skin).mkdir(parents=True, exist_ok=True)
        back, fore = DRAWINGS[skin]["colors"]
        (SKINS / skin / "Skin.ini").write_bytes(f"[Settings]\r\nBackColor={back}\r\nFontColor={fore}\r\n".encode())
        with tempfile.TemporaryDirectory() as directory:
            for name in SIZES:
                render(skin, name, directory)


main()
