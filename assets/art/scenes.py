"""The place of the game: six stations of one journey under the ledge, the ledge itself and the face of the cliff.

The scenes are washes: red letters, green boxes and navy titles lie on them, so nothing in them is darker
than a pale middle tone. What is worth seeing stands where no box lies: on a ridge in the upper right, above the row of
letters (from row 60 on) and beside the misses (of which the sixth reaches column 450); further down only the bands above
the message (rows 128 to 145) and beside it (columns 200 to 226 and from 545 on) stay free.
"""

from __future__ import annotations

import random
from typing import Callable, NamedTuple

from brush import blotches, cloud, fill, hill, pointed_tree, radial, round_tree, smooth, soft, vertical, way
from geometry import Affine, Knot, closed, ellipse, number, opened, ribbon
from ink import Ink
from palette import LINE, ROCK, ROCK_DEEP, ROCK_LIGHT, TURF

Scene = Callable[[Ink], None]


def _light(ink: Ink, colour: str) -> None:
    """Every scene is lighter in the middle, where the word stands."""
    fill(ink, radial(ink, (0, colour + "c8"), (0.55, colour + "70"), (1, colour + "00"), centre=(0.47, 0.48), reach=0.55))


def _paper(ink: Ink, colour: str, seed: int) -> None:
    blotches(ink, colour, 0.55, 0.008, seed)


def valley(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#d9f0e4"), (0.5, "#eef8dc"), (1, "#cfe8ae")))
    cloud(ink, 180, 26, 32, "#ffffff", 0.8)
    cloud(ink, 366, 22, 26, "#ffffff", 0.7)
    hill(ink, [(0, 72), (110, 50), (230, 74), (360, 52), (480, 66), (570, 50)], "#cfe9d0", 2)
    hill(ink, [(0, 96), (150, 74), (300, 96), (430, 66), (520, 56), (570, 58)], "#c4e4b4")
    for x, y, size, leaf in ((558, 62, 32, "#b4dba6"), (470, 66, 26, "#b4dba6"), (516, 60, 44, "#a2d093")):
        soft(ink, ellipse(x, y, size * 0.36, 2.2), "#a9cf98", 1, 0.8)
        round_tree(ink, x, y, size, leaf, "#bda981")
    hill(ink, [(0, 168), (160, 128), (330, 152), (570, 118)], "#bfe2a4")
    for x, y, size in ((213, 142, 17), (556, 122, 22)):
        round_tree(ink, x, y, size, "#aad69b", "#c3b58f")
    way(ink, [(104, 440), (118, 346), (150, 270), (290, 196), (380, 138), (448, 84), (486, 64)], 96, 4, "#f3eccb")
    hill(ink, [(0, 352), (200, 342), (420, 354), (570, 336)], "#aed88f", 2)


def fields(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffe9b8"), (0.45, "#fff6d8"), (1, "#ffd98a")))
    soft(ink, ellipse(330, 28, 24, 24), "#fff9e0", 3)
    hill(ink, [(0, 76), (120, 54), (260, 78), (400, 62), (500, 50), (570, 58)], "#fde3a4", 2)
    _mill(ink, 512, 58, 0.82)
    for i, (y, colour) in enumerate(((104, "#fbd98c"), (146, "#f9d07a"), (236, "#fbd684"), (322, "#f6c667"))):
        hill(ink, [(0, y + 8 * (i % 2)), (180, y - 14), (360, y + 10), (570, y - 12)], colour, 1.6)
    way(ink, [(262, 450), (258, 356), (300, 278), (272, 206), (350, 148), (440, 96), (488, 62)], 92, 4, "#fff3cf")


# The laths of a sail, the stock first.
SPARS = (((0, 0), (32, 0)), ((8, 7), (31, 9)), ((8, 0), (8, 7)), ((16, 0), (16, 7.7)), ((23.5, 0), (23.5, 8.3)), ((31, 0), (31, 9)))


def _mill(ink: Ink, x: float, y: float, s: float) -> None:
    soft(ink, [(x - 13 * s, y + 4, 1), (x - 9 * s, y - 34 * s, 1), (x + 9 * s, y - 34 * s, 1), (x + 13 * s, y + 4, 1)], "#f6d79c", 0.5)
    soft(ink, [(x + 3 * s, y + 4, 1), (x + 2 * s, y - 34 * s, 1), (x + 9 * s, y - 34 * s, 1), (x + 13 * s, y + 4, 1)], "#eec483", 0.5)
    soft(ink, [(x - 11 * s, y - 33 * s, 1), (x, y - 50 * s, 1), (x + 11 * s, y - 33 * s, 1)], "#e3a350", 0.5)
    soft(ink, [(x - 4 * s, y + 4, 1), (x - 4 * s, y - 7 * s), (x, y - 11 * s), (x + 4 * s, y - 7 * s), (x + 4 * s, y + 4, 1)], "#dca055", 0.4)
    for turn in (32, 122, 212, 302):
        sail = Affine().move(x, y - 38 * s).turn(turn).scale(s)
        soft(ink, sail.knots([(8, 0, 1), (31, 0, 1), (31, 9, 1), (8, 7, 1)]), "#f3cf93", 0.3)
        for start, end in SPARS:
            ink.line([sail(start), sail(end)], 1.5 * s if start == (0, 0) else 0.9 * s, "#d99f54")
    soft(ink, ellipse(x, y - 38 * s, 2.6 * s, 2.6 * s), "#c98c42", 0.3)


def wood(ink: Ink) -> None:
    """Three rows of firs, each on the slope that it grows from; they open where the way goes in."""
    fill(ink, vertical(ink, (0, "#d4ebcb"), (0.5, "#ebf6db"), (1, "#bfdfa5")))
    draw = random.Random(4)
    rows = ((58, 42, "#c9e5c0", "#d9eed0"), (72, 62, "#b9dcaf", "#cfe8c2"), (146, 92, "#abd4a0", "#c5e3b2"))
    for depth, (y, size, leaf, slope) in enumerate(rows):
        line = [(0, y + 6), (140, y - 2), (300, y - 12), (440, y - 3), (570, y + 4)]
        hill(ink, [(x, at - 7) for x, at in line], slope, 1.4)
        count = 15 - 3 * depth
        for i in range(count):
            x = (i + 0.5) * 580 / count + draw.uniform(-10, 10)
            tall = size * draw.uniform(0.85, 1.1)
            if depth == 2 and 226 < x < 400 or depth == 1 and 300 < x < 420:
                continue
            pointed_tree(ink, x, _height(line, x) + draw.uniform(-2, 4), tall, leaf, "#c0b48e")
    hill(ink, [(0, 172), (180, 158), (330, 146), (570, 168)], "#bfe0a8")
    way(ink, [(380, 450), (374, 352), (364, 262), (306, 206), (330, 160), (350, 118), (362, 72)], 96, 4, "#eeeccd")
    hill(ink, [(0, 346), (180, 356), (400, 340), (570, 350)], "#a7d18d", 2)


def _height(line: list[tuple[float, float]], x: float) -> float:
    """The height of a slope at x."""
    for (ax, ay), (bx, by) in zip(line, line[1:]):
        if x <= bx:
            return ay + (by - ay) * (x - ax) / (bx - ax)
    return line[-1][1]


def river(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffdca0"), (0.42, "#fff1cc"), (1, "#ffd9a0")))
    soft(ink, ellipse(214, 24, 22, 22), "#fffbe6", 4)
    ink.raw('<g transform="translate(0 -56)">')
    hill(ink, [(0, 116), (120, 92), (250, 112), (350, 96), (440, 78), (570, 98)], "#fbd9a2", 2)
    hill(ink, [(0, 142), (190, 126), (330, 116), (456, 104), (570, 118)], "#f9cf8e")
    hill(ink, [(0, 236), (150, 190), (330, 160), (440, 128), (570, 132)], "#f8c983", 1.6)
    _water(ink)
    way(ink, [(170, 500), (206, 402), (214, 316), (232, 256), (300, 196), (340, 160), (384, 131)], 84, 13, "#fff1cd")
    way(ink, [(538, 126), (556, 122), (600, 108)], 12, 8, "#fff1cd")
    _bridge(ink)
    ink.raw("</g>")
    for x, y, size in ((352, 78, 26), (213, 150, 30)):
        round_tree(ink, x, y, size, "#f4bd73", "#d9a873")
    hill(ink, [(-20, 338), (120, 344), (330, 352), (570, 330)], "#f4ba6c", 2)


# The two banks of the river, from far to near and back.
LEFT_BANK: list[Knot] = [(470, 101), (462, 108), (434, 118), (412, 132), (404, 156), (420, 188), (442, 222), (436, 258),
                         (396, 296), (336, 330), (292, 372), (276, 410)]
RIGHT_BANK: list[Knot] = [(660, 410), (640, 330), (628, 270), (600, 222), (560, 186), (536, 158), (530, 136), (508, 118), (486, 108), (480, 101)]
WATER = [(x + 2 + 0.012 * y, y + 2 + 0.02 * y) for x, y in LEFT_BANK] + [(x - 1, y + 2) for x, y in RIGHT_BANK]
RIPPLES = ((452, 160, 14), (500, 172, 16), (470, 186, 18), (520, 204, 20), (476, 220, 22), (556, 232, 24), (502, 250, 30), (462, 276, 26), (560, 282, 34),
           (436, 306, 34), (520, 320, 42), (380, 340, 30), (474, 350, 38))

REEDS = ((398, 190, 1.0), (404, 184, 0.8), (424, 240, 1.2), (392, 288, 1.3), (384, 296, 1.0), (566, 182, 1.0), (574, 190, 1.2), (326, 328, 1.5),
         (336, 320, 1.2))


def _water(ink: Ink) -> None:
    """Its left bank is seen as a low wall of earth, the right one as an edge of grass."""
    soft(ink, [(x - 4, y) for x, y in LEFT_BANK] + [(x + 3, y) for x, y in RIGHT_BANK], "#e2a95e", 1.2)
    soft(ink, [(x + 1, y + 2) for x, y in LEFT_BANK] + RIGHT_BANK, "#cf9450", 1)
    soft(ink, WATER, "#f1f3e0", 1)
    for i, (x, y, half) in enumerate(RIPPLES):
        soft(ink, ellipse(x, y, half, 0.7 + half * 0.04), ("#d3e0d2", "#fffdf4")[i % 2], 0.6, 0.9)
    for x, y, size in REEDS:
        for lean in (-5, 0, 4):
            ink.raw(f'<path d="M{x} {y}q{number(lean * 0.3 * size)} {number(-9 * size)} {number(lean * size)} {number(-16 * size)}" '
                    f'fill="none" stroke="#d9a257" stroke-width="{number(1.8 * size)}" stroke-linecap="round"/>')


def _bridge(ink: Ink) -> None:
    """Of planks, on two piers: a deck that rises to its middle, posts with a rail; below, its shadow and its image in the water."""
    deck = smooth([(376, 130), (412, 112), (458, 104), (506, 110), (546, 127)], 6)
    image = [(x, 2 * 152 - y) for x, y in deck]
    water = ink.define(f'<clipPath id="{{id}}"><path d="{closed(WATER)}"/></clipPath>')
    ink.raw(f'<g clip-path="url(#{water})">')
    soft(ink, sum(ribbon(image[4:-4], [10, 11, 10]), []), "#e2c79a", 1.4, 0.75)
    for x, _ in image[::3]:
        soft(ink, [(x - 1.5, 184, 1), (x - 1.5, 210, 1), (x + 1.5, 210, 1), (x + 1.5, 184, 1)], "#e2c79a", 1, 0.6)
    soft(ink, ellipse(468, 150, 56, 6), "#c9ac7e", 2.4, 0.6)
    for x in (430, 498):
        soft(ink, [(x - 5, 154, 1), (x - 4, 190, 1), (x + 4, 190, 1), (x + 5, 154, 1)], "#d8ba8a", 1.2, 0.7)
    ink.raw("</g>")
    for x in (430, 498):
        soft(ink, [(x - 5, 110, 1), (x - 6, 152, 1), (x + 6, 152, 1), (x + 5, 110, 1)], "#c08a4a", 0.5)
        soft(ink, [(x + 1, 110, 1), (x + 1, 152, 1), (x + 6, 152, 1), (x + 5, 110, 1)], "#a87438", 0.5, 0.7)
        soft(ink, ellipse(x, 153, 11, 2), "#fffdf4", 0.6)
    soft(ink, sum(ribbon([(x, y + 4) for x, y in deck], [9, 11, 9]), []), "#a87438", 0.4)
    soft(ink, sum(ribbon(deck, [8, 10, 8]), []), "#eec388", 0.4)
    for x, y in deck[1:-1]:
        ink.raw(f'<path d="M{number(x)} {number(y - 4.5)}l-1 9" stroke="#c68e49" stroke-width="1"/>')
    for lift, width in ((-20, 2.8), (-11, 2)):
        ink.raw(f'<path d="{opened([(x, y + lift) for x, y in deck])}" fill="none" stroke="#b97f40" stroke-width="{width}" stroke-linecap="round"/>')
    for x, y in deck[::3]:
        soft(ink, [(x - 2.4, y + 5, 1), (x - 2.4, y - 23, 1), (x + 2.4, y - 23, 1), (x + 2.4, y + 5, 1)], "#ae7636", 0.35)


def sierra(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffe2a6"), (0.5, "#fff7dc"), (1, "#ffdf98")))
    soft(ink, ellipse(140, 28, 24, 24), "#fffbe2", 3)
    hill(ink, [(0, 84), (70, 62), (140, 78), (226, 30, 1), (290, 72), (368, 26, 1), (430, 64), (516, 8, 1), (570, 54)], "#f6cf90", 1.2)
    for x, y in ((226, 31), (368, 27), (516, 9)):
        soft(ink, [(x - 20, y + 20), (x, y, 1), (x + 22, y + 22), (x + 8, y + 15), (x, y + 24), (x - 8, y + 14)], "#fffaf0", 0.8)
    hill(ink, [(0, 104), (120, 84), (240, 106), (400, 72), (490, 60), (570, 76)], "#f9d08a")
    hill(ink, [(0, 190), (190, 140), (340, 170), (570, 130)], "#f7c878", 1.5)
    for x, y, size in ((213, 150, 20), (556, 134, 26), (444, 66, 15), (460, 65, 19), (548, 74, 18)):
        pointed_tree(ink, x, y, size, "#e6b569", "#cf9f62")
    way(ink, [(176, 450), (186, 356), (150, 292), (236, 224), (230, 178), (320, 140), (420, 100), (476, 64)], 88, 4, "#fff2cc")
    hill(ink, [(0, 340), (180, 356), (380, 344), (570, 320)], "#f4bd66", 2)


def summit(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#cfeadf"), (0.45, "#f0f9e3"), (1, "#c8e6b0")))
    cloud(ink, 190, 30, 34, "#ffffff", 0.85)
    cloud(ink, 372, 20, 24, "#ffffff", 0.75)
    hill(ink, [(0, 100), (150, 84), (300, 96), (420, 70), (500, 54), (570, 62)], "#cbe7c6", 1.6)
    castle(ink, 504, 57, size=0.76)
    hill(ink, [(0, 140), (200, 120), (380, 112), (510, 76), (570, 84)], "#bddfae")
    hill(ink, [(0, 232), (200, 186), (380, 190), (570, 150)], "#b3da9d", 1.6)
    for x, y, size in ((213, 150, 22), (556, 126, 26), (452, 84, 18)):
        round_tree(ink, x, y, size, "#a4d096", "#c3b58f")
    way(ink, [(180, 450), (180, 346), (268, 264), (280, 202), (370, 150), (430, 106), (474, 78), (501, 60)], 92, 4, "#f3efd2")
    hill(ink, [(0, 330), (140, 344), (360, 356), (570, 340)], "#a5d28b", 2)


class Masonry(NamedTuple):
    """The colours of a castle: walls, their shaded side, roofs, the gate, the flag."""

    wall: str
    shade: str
    roof: str
    gate: str
    flag: str


PALE = Masonry("#bcd8b6", "#a9caa6", "#9cc7a5", "#e4efd6", "#f0d9a0")


def castle(ink: Ink, x: float, y: float, stone: Masonry = PALE, size: float = 1) -> None:
    """It stands on the line y; its gate, at x, is 14 wide."""
    frame = Affine().move(x, y).scale(size)

    def block(left: float, right: float, low: float, high: float, colour: str) -> None:
        soft(ink, frame.knots([(left, low, 1), (left, high, 1), (right, high, 1), (right, low, 1)]), colour, 0.35)

    for left, right, tall in ((-32, -17, 34), (17, 32, 42)):
        block(left, right, 4, -tall, stone.wall)
        block(left + 9, right, 4, -tall, stone.shade)
        middle = (left + right) / 2
        soft(ink, frame.knots([(left - 3, -tall, 1), (middle, -tall - 19, 1), (right + 3, -tall, 1)]), stone.roof, 0.35)
        block(middle - 1.6, middle + 1.6, -tall + 14, -tall + 7, stone.gate)
    block(-17, 17, 4, -22, stone.wall)
    for dx in (-13.5, -4.5, 4.5, 13.5):
        block(dx - 2.6, dx + 2.6, -21, -27, stone.wall)
    block(-17, 17, -18, -19.6, stone.shade)
    soft(ink, frame.knots([(-7, 4, 1), (-7, -6), (0, -13), (7, -6), (7, 4, 1)]), stone.gate, 0.35)
    block(24, 25.2, -60, -72, stone.roof)
    soft(ink, frame.knots([(25, -72, 1), (39, -68, 1), (25, -63, 1)]), stone.flag, 0.35)


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

# Ledge and cliff are two pictures of one rock: where each lies on it, as left, top, width, height.
LEDGE, CLIFF = (0, 0, 601, 31), (570, 30, 31, 353)
END, FOOT = 599.5, 384
TURF_DEPTH = 9


def ledge() -> Ink:
    return _rock(*LEDGE)


def cliff() -> Ink:
    return _rock(*CLIFF)


def _rock(left: float, top: float, width: float, height: float) -> Ink:
    """A part of the rock. The ledge's first rows are the same all along: a pose that stands lower is drawn on the same turf."""
    ink = Ink(width, height, "#ffffff", weight=2)
    ink.raw(f'<g transform="translate({-left} {-top})">')
    brink = _brink()
    clip = ink.define(f'<clipPath id="{{id}}"><path d="{closed([(-9, 1, 1), *brink, (-9, FOOT + 9, 1)])}"/></clipPath>')
    ink.raw(f'<g clip-path="url(#{clip})">')
    ink.raw(f'<rect x="-9" width="620" height="{FOOT + 9}" fill="{ROCK.base}"/>')
    ink.raw(f'<rect x="-9" width="620" height="31" fill="{vertical(ink, (0, ROCK_LIGHT), (0.45, ROCK.base), (1, ROCK.shade))}"/>')
    stones(ink, 0, TURF_DEPTH, END, 36, 7)
    stones(ink, 566, 36, END + 4, FOOT, 21, 13)
    shade = ink.define(f'<linearGradient id="{{id}}"><stop offset="0" stop-color="{ROCK_DEEP}" stop-opacity="0"/>'
                       f'<stop offset="1" stop-color="{ROCK_DEEP}" stop-opacity=".5"/></linearGradient>')
    ink.raw(f'<rect x="586" width="16" height="{FOOT}" fill="url(#{shade})"/>')
    _turf(ink)
    ink.raw("</g>")
    ink.line([(-9, 1, 1), *brink], 2)
    ink.line([(-9, 30.2, 1), (570.8, 30.2, 1), (570.8, FOOT + 9, 1)], 1.6, ROCK_DEEP)
    ink.raw("</g>")
    return ink


def _brink() -> list[Knot]:
    """The rock's outline from the end of the turf down the face of the cliff."""
    draw = random.Random(12)
    line: list[Knot] = [(END - 9, 1, 1), (END - 3, 2.5), (END - 0.4, 7), (END - 0.2, 13), (END - 1.6, 20), (END - 0.8, 28)]
    y = 40.0
    while y < FOOT + 20:
        line.append((END - draw.choice((0, 0.6, 2, 3.4)), y) + ((1,) if draw.random() < 0.3 else ()))
        y += draw.uniform(12, 26)
    return line


def turf_strip(ink: Ink, top: float) -> None:
    """The ledge's first rows, for a pose whose picture reaches below the edge of the ledge."""
    ink.raw(f'<rect x="-5" y="{top}" width="{number(ink.width + 10)}" height="40" fill="{TURF.base}"/>'
            f'<path d="M-5 {top + 1}H{number(ink.width + 5)}" stroke="{LINE}" stroke-width="2"/>')


def _turf(ink: Ink) -> None:
    draw = random.Random(3)
    knots: list[Knot] = [(-8, -2, 1), (LEDGE[2] + 8, -2, 1), (LEDGE[2] + 8, 9, 1)]
    x = LEDGE[2] + 2.0
    while x > -8:
        knots += [(x, draw.uniform(13, 16.5), 1), (x - 5, 9.5)]
        x -= draw.uniform(8, 15)
    ink.flat([(k[0], k[1] + 2.4, *k[2:]) for k in knots], ROCK_DEEP, 0.35)
    ink.flat(knots, TURF.base)
    ink.raw(f'<rect x="-5" y="8.6" width="{LEDGE[2] + 10}" height="1.6" fill="{TURF.shade}" opacity="0.45"/>')


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
