"""The place of the game: six stations of one journey under the ledge, the ledge itself and the face of the cliff.

The scenes are washes: red letters, green boxes and navy titles lie on them, so nothing in them is darker
than a pale middle tone and nothing small stands where the boxes are.
"""

from __future__ import annotations

import random
from typing import Callable

from brush import blotches, cloud, fill, hill, pointed_tree, radial, round_tree, smooth, soft, vertical, way
from geometry import Knot, closed, ellipse, number, ribbon
from ink import Ink
from palette import LINE, ROCK, ROCK_DEEP, ROCK_LIGHT, TURF

Scene = Callable[[Ink], None]


def _light(ink: Ink, colour: str) -> None:
    """Every scene is lighter in the middle, where the word stands."""
    fill(ink, radial(ink, (0, colour + "c8"), (0.55, colour + "70"), (1, colour + "00"), centre=(0.5, 0.45), reach=0.62))


def _paper(ink: Ink, colour: str, seed: int) -> None:
    blotches(ink, colour, 0.55, 0.008, seed)


def valley(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#d9f0e4"), (0.5, "#eef8dc"), (1, "#cfe8ae")))
    cloud(ink, 90, 34, 34, "#ffffff", 0.8)
    cloud(ink, 470, 46, 30, "#ffffff", 0.7)
    hill(ink, [(0, 120), (110, 78), (230, 118), (360, 84), (480, 112), (570, 90)], "#cfe9d0", 2)
    hill(ink, [(0, 150), (150, 122), (300, 152), (450, 118), (570, 140)], "#c4e4b4")
    round_tree(ink, 38, 150, 34, "#a9d59c", "#c3b58f")
    round_tree(ink, 536, 150, 30, "#a9d59c", "#c3b58f")
    hill(ink, [(0, 220), (160, 176), (330, 206), (570, 168)], "#bfe2a4")
    way(ink, [(20, 440), (120, 346), (150, 270), (290, 216), (380, 168), (462, 118)], 96, 4, "#f3eccb")
    hill(ink, [(0, 352), (200, 342), (420, 354), (570, 336)], "#aed88f", 2)


def fields(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffe9b8"), (0.45, "#fff6d8"), (1, "#ffd98a")))
    soft(ink, ellipse(470, 66, 34, 34), "#fff9e0", 3)
    hill(ink, [(0, 128), (120, 106), (260, 132), (400, 104), (570, 126)], "#fde3a4", 2)
    _mill(ink, 62, 120, 1.15)
    for i, (y, colour) in enumerate(((158, "#fbd98c"), (206, "#f9d07a"), (262, "#fbd684"), (322, "#f6c667"))):
        hill(ink, [(0, y + 8 * (i % 2)), (180, y - 14), (360, y + 10), (570, y - 12)], colour, 1.6)
    way(ink, [(330, 450), (258, 356), (300, 278), (272, 216), (330, 168), (378, 116)], 92, 4, "#fff3cf")


def _mill(ink: Ink, x: float, y: float, s: float) -> None:
    soft(ink, [(x - 13 * s, y, 1), (x - 9 * s, y - 34 * s, 1), (x + 9 * s, y - 34 * s, 1), (x + 13 * s, y, 1)], "#f6d79c", 0.7)
    soft(ink, [(x - 11 * s, y - 33 * s, 1), (x, y - 50 * s, 1), (x + 11 * s, y - 33 * s, 1)], "#e9ae5c", 0.7)
    for dx, dy in ((26, 16), (-26, -16), (16, -26), (-16, 26)):
        ink.raw(f'<path d="M{x} {y - 36 * s}l{dx * s} {dy * s}" stroke="#e8b266" stroke-width="{number(4.5 * s)}" opacity="0.8"/>')


def wood(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#d4ebcb"), (0.5, "#ebf6db"), (1, "#bfdfa5")))
    draw = random.Random(4)
    for depth, (y, size, leaf) in enumerate(((128, 62, "#c9e5c0"), (150, 84, "#b9dcaf"), (186, 108, "#abd4a0"))):
        for i in range(15 - 3 * depth):
            x = (i + 0.5) * 580 / (15 - 3 * depth) + draw.uniform(-10, 10)
            if depth and 200 < x < 400:
                continue                # the wood opens where the way goes in
            pointed_tree(ink, x, y + draw.uniform(-6, 6), size * draw.uniform(0.85, 1.1), leaf, "#c9bd99")
    hill(ink, [(0, 196), (180, 180), (330, 170), (570, 190)], "#bfe0a8")
    way(ink, [(470, 450), (372, 352), (364, 272), (300, 222), (312, 182), (302, 152)], 96, 4, "#eeeccd")
    hill(ink, [(0, 346), (180, 356), (400, 340), (570, 350)], "#a7d18d", 2)


def river(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffdca0"), (0.42, "#fff1cc"), (1, "#ffd9a0")))
    soft(ink, ellipse(438, 84, 40, 40), "#fffbe6", 4)
    hill(ink, [(0, 100), (130, 76), (250, 112), (350, 114), (460, 90), (570, 112)], "#fbd9a2", 2)
    hill(ink, [(0, 138), (190, 124), (380, 136), (570, 122)], "#f9cf8e")
    way(ink, [(152, 232), (178, 196), (214, 172), (262, 140), (330, 114)], 30, 4, "#fff1cd")
    _water(ink)
    hill(ink, [(0, 322), (150, 330), (380, 300), (570, 312)], "#f7c67e", 1.6)
    _bridge(ink)
    soft(ink, sum(ribbon(smooth([(70, 440), (92, 386), (120, 350), (138, 316)]), [96, 74, 46]), []), "#fff1cd", 1)
    round_tree(ink, 32, 136, 38, "#f4bd73", "#dcae7c")
    round_tree(ink, 76, 134, 26, "#f6c683", "#dcae7c")
    hill(ink, [(0, 372), (250, 362), (420, 344), (570, 338)], "#f4ba6c", 2)


def _water(ink: Ink) -> None:
    band: list[Knot] = [(-30, 236), (120, 226), (300, 236), (440, 222), (600, 230), (620, 300, 1), (440, 302), (300, 312), (120, 308), (-30, 316, 1)]
    soft(ink, band, "#fff8e4", 2)
    for x, y, half in ((40, 262, 34), (262, 258, 40), (390, 282, 46), (500, 252, 36), (330, 296, 30), (36, 292, 26), (540, 284, 24), (226, 284, 20)):
        soft(ink, ellipse(x, y, half, 2.4), "#f8d79c", 1)


def _bridge(ink: Ink) -> None:
    """A deck that grows narrow towards the far bank, between two parapets, with its shadow on the water."""
    near, far = (138.0, 318.0), (153.0, 224.0)
    line = smooth([near, (144.0, 272.0), far])
    soft(ink, [(x - 8, y) for x, y in sum(ribbon(line, [54, 42, 30]), [])], "#eecb8e", 3, 0.7)
    for widths, colour in (([62, 47, 35], "#e3b06c"), ([46, 35, 26], "#fff1cd")):
        soft(ink, sum(ribbon(line, widths), []), colour, 0.7)
    for i, (x, y) in enumerate(line[::4]):
        half = 27 - 11.5 * i / 4
        for side in (-1, 1):
            soft(ink, ellipse(x + side * half, y - 2, 5 - 0.5 * i, 6 - 0.5 * i), "#dfa961", 0.5)


def sierra(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffe2a6"), (0.5, "#fff7dc"), (1, "#ffdf98")))
    soft(ink, ellipse(70, 60, 30, 30), "#fffbe2", 3)
    hill(ink, [(0, 110), (70, 74), (130, 98), (210, 40, 1), (270, 88), (340, 54, 1), (420, 104), (500, 62, 1), (570, 96)], "#fbdca4", 1.4)
    for x, y in ((210, 42), (340, 56), (500, 64)):
        soft(ink, [(x - 20, y + 20), (x, y, 1), (x + 22, y + 22), (x + 8, y + 15), (x, y + 24), (x - 8, y + 14)], "#fffaf0", 1)
    hill(ink, [(0, 160), (120, 128), (240, 158), (380, 122), (570, 150)], "#f9d08a")
    hill(ink, [(0, 232), (190, 190), (340, 222), (570, 180)], "#f7c878", 1.5)
    way(ink, [(60, 450), (190, 356), (150, 292), (236, 244), (216, 198), (300, 162), (348, 124)], 88, 4, "#fff2cc")
    hill(ink, [(0, 340), (180, 356), (380, 344), (570, 320)], "#f4bd66", 2)


def summit(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#cfeadf"), (0.45, "#f0f9e3"), (1, "#c8e6b0")))
    cloud(ink, 120, 58, 38, "#ffffff", 0.85)
    cloud(ink, 330, 36, 26, "#ffffff", 0.75)
    hill(ink, [(0, 150), (150, 128), (300, 140), (420, 98), (500, 78), (570, 96)], "#cbe7c6", 1.6)
    castle(ink, 500, 86)
    hill(ink, [(0, 190), (200, 168), (380, 172), (570, 138)], "#bddfae")
    hill(ink, [(0, 262), (200, 226), (380, 240), (570, 204)], "#b3da9d", 1.6)
    way(ink, [(180, 450), (180, 346), (268, 284), (280, 232), (370, 190), (396, 150), (494, 84)], 92, 4, "#f3efd2")
    hill(ink, [(0, 330), (140, 344), (360, 356), (570, 340)], "#a5d28b", 2)


def castle(ink: Ink, x: float, y: float) -> None:
    for dx, wide, tall in ((-24, 15, 34), (0, 34, 24), (24, 15, 40)):
        soft(ink, [(x + dx - wide / 2, y + 4, 1), (x + dx - wide / 2, y - tall, 1), (x + dx + wide / 2, y - tall, 1), (x + dx + wide / 2, y + 4, 1)], "#b9d6b4", 0.6)
    soft(ink, [(x - 7, y + 4, 1), (x - 7, y - 8), (x, y - 14), (x + 7, y - 8), (x + 7, y + 4, 1)], "#dcebd0", 0.6)
    for dx in (-12, 0, 12):
        soft(ink, [(x + dx - 3, y - 23, 1), (x + dx - 3, y - 29, 1), (x + dx + 3, y - 29, 1), (x + dx + 3, y - 23, 1)], "#b9d6b4", 0.4)
    soft(ink, [(x + 24, y - 56, 1), (x + 24, y - 68, 1), (x + 38, y - 63, 1), (x + 24, y - 58, 1)], "#f0d9a0", 0.4)
    for dx, tall in ((-24, 34), (24, 40)):
        soft(ink, [(x + dx - 10, y - tall, 1), (x + dx, y - tall - 16, 1), (x + dx + 10, y - tall, 1)], "#9cc7a5", 0.6)


STATIONS: dict[int, tuple[Scene, str, str]] = {     # picture: (what it shows, its light, its pigment)
    1: (river, "#fffbe8", "#f7b85c"), 2: (valley, "#fbfff2", "#8ecb7a"), 3: (fields, "#fffceb", "#f2b544"),
    4: (wood, "#f9fff0", "#7fc074"), 5: (sierra, "#fffdf0", "#f3b24e"), 6: (summit, "#fbfff5", "#7cc08a"),
}


def background(station: int) -> Ink:
    scene, light, pigment = STATIONS[station]
    ink = Ink(570, 361 if station in (4, 6) else 360)
    scene(ink)
    _paper(ink, pigment, station * 11)
    _light(ink, light)
    return ink


# --- ledge and cliff ------------------------------------------------------------------------------------------------

LEDGE_WIDTH, LEDGE_HEIGHT, TURF_HEIGHT = 601, 31, 9
CLIFF_WIDTH, CLIFF_HEIGHT = 31, 353


def ledge() -> Ink:
    """Its first rows are the same all along: a pose that stands lower than the ledge is drawn on the same turf."""
    ink = Ink(LEDGE_WIDTH, LEDGE_HEIGHT, "#ffffff", weight=2)
    end = LEDGE_WIDTH
    outline: list[Knot] = [(-6, 1, 1), (end - 8, 1, 1), (end - 2, 4), (end - 1.2, 12), (end - 2, 24), (end - 1.5, 40, 1), (-6, 40, 1)]
    clip = ink.define(f'<clipPath id="{{id}}"><path d="{closed(outline)}"/></clipPath>')
    ink.raw(f'<g clip-path="url(#{clip})">')
    fill(ink, vertical(ink, (0, ROCK_LIGHT), (0.45, ROCK.base), (1, ROCK.shade)))
    stones(ink, 0, TURF_HEIGHT, LEDGE_WIDTH, LEDGE_HEIGHT, 7)
    _turf(ink)
    ink.raw("</g>")
    ink.stroke(f"M-6 1L{end - 8} 1C{end - 3} 1 {end - 1} 5 {end - 1.2} 12C{end - 1.2} 17 {end - 3} 18 {end - 2} 24L{end - 1.5} 40", 2)
    return ink


def turf_strip(ink: Ink, top: float) -> None:
    """The ledge's first rows, for a pose whose picture reaches below the edge of the ledge."""
    ink.raw(f'<rect x="-5" y="{top}" width="{number(ink.width + 10)}" height="40" fill="{TURF.base}"/>'
            f'<path d="M-5 {top + 1}H{number(ink.width + 5)}" stroke="{LINE}" stroke-width="2"/>')


def _turf(ink: Ink) -> None:
    draw = random.Random(3)
    knots: list[Knot] = [(-8, -2, 1), (LEDGE_WIDTH + 8, -2, 1), (LEDGE_WIDTH + 8, 9, 1)]
    x = LEDGE_WIDTH + 2.0
    while x > -8:
        knots += [(x, draw.uniform(13, 16.5), 1), (x - 5, 9.5)]
        x -= draw.uniform(8, 15)
    ink.flat([(k[0], k[1] + 2.4, *k[2:]) for k in knots], ROCK_DEEP, 0.35)
    ink.flat(knots, TURF.base)
    ink.raw(f'<rect x="-5" y="8.6" width="{LEDGE_WIDTH + 10}" height="1.6" fill="{TURF.shade}" opacity="0.45"/>')


def stones(ink: Ink, left: float, top: float, right: float, bottom: float, seed: int, cell: float = 15) -> None:
    """Rock broken along a crooked net: every mesh is a facet that takes the light in its own way."""
    draw = random.Random(seed)
    across, down = int((right - left) / cell) + 3, int((bottom - top) / (cell * 0.7)) + 3
    net = [[(left + (i - 1 + 0.5 * (j % 2)) * cell + draw.uniform(-0.3, 0.3) * cell, top + (j - 1) * cell * 0.7 + draw.uniform(-0.22, 0.22) * cell)
            for i in range(across + 1)] for j in range(down + 1)]
    for j in range(down):
        for i in range(across):
            mesh = [(*net[y][x], True) for x, y in ((i, j), (i + 1, j), (i + 1, j + 1), (i, j + 1))]
            colour, opacity = draw.choice(FACETS)
            ink.flat(mesh, colour, opacity)
            if draw.random() < 0.42:        # an edge that catches the light, with the crack under it
                edge = [net[j][i], net[j][i + 1]]
                ink.line([(x, y - 0.7) for x, y in edge], 1.1, ROCK_DEEP)
                ink.line([(x, y + 0.6) for x, y in edge], 1, "#a9d8d3")


FACETS = ((ROCK_LIGHT, 0.5), (ROCK_LIGHT, 0.22), (ROCK.base, 0.2), (ROCK.shade, 0.45), (ROCK.shade, 0.8), (ROCK_DEEP, 0.28))


def cliff() -> Ink:
    ink = Ink(CLIFF_WIDTH, CLIFF_HEIGHT, "#ffffff", weight=2)
    draw = random.Random(12)
    right: list[Knot] = [(CLIFF_WIDTH - 1.5, -6, 1)]
    y = 14.0
    while y < CLIFF_HEIGHT + 20:
        right.append((CLIFF_WIDTH - draw.choice((1.5, 2, 3.5, 5)), y) + ((1,) if draw.random() < 0.3 else ()))
        y += draw.uniform(12, 26)
    outline = [(-6, -6, 1), *right, (-6, right[-1][1], 1)]
    clip = ink.define(f'<clipPath id="{{id}}"><path d="{closed(outline)}"/></clipPath>')
    ink.raw(f'<g clip-path="url(#{clip})">')
    fill(ink, vertical(ink, (0, ROCK.shade), (0.2, ROCK.base), (1, ROCK.shade)))
    stones(ink, 0, -4, CLIFF_WIDTH, CLIFF_HEIGHT, 21, 13)
    ink.raw(f'<rect width="{CLIFF_WIDTH}" height="16" fill="{vertical(ink, (0, ROCK_DEEP + "a0"), (1, ROCK_DEEP + "00"))}"/>')
    ink.raw(f'<rect x="{CLIFF_WIDTH - 10}" width="10" height="{CLIFF_HEIGHT}" fill="{ROCK_DEEP}" opacity="0.28"/></g>')
    ink.line(right, 2)
    return ink

