"""The title picture: the game's name in letters cut by hand, Zarpi on his cliff."""

from __future__ import annotations

from dataclasses import replace

from brush import blotches, cloud, fill, hill, round_tree, soft, vertical, way
from dialogs import PAD, TOES, paw_print
from geometry import Affine, Knot, Point, closed, ellipse, opened
from ink import Ink
from palette import LINE, ROCK, ROCK_DEEP, ROCK_LIGHT, TURF
from pose import Eyes, Face, Hand
from poses import POSES
from rig import draw
from scenes import castle, stones

# The strokes of a letter in a box of 100 by 100, as one who cuts paper would lay them.
LETTERS: dict[str, list[list[Point]]] = {
    "Z": [[(8, 12), (48, 14), (90, 8), (52, 50), (10, 92), (50, 88), (94, 92)]],
    "A": [[(4, 94), (28, 50), (46, 6), (66, 50), (90, 92)], [(26, 64), (48, 62), (70, 63)]],
    "R": [[(14, 94), (16, 52), (13, 10)], [(13, 10), (56, 4), (78, 28), (54, 50), (17, 54)], [(42, 53), (62, 72), (88, 93)]],
    "P": [[(14, 95), (16, 50), (12, 10)], [(12, 10), (56, 3), (80, 30), (56, 57), (17, 58)]],
    "i": [[(14, 44), (16, 70), (13, 94)]],
}
ROUND = {("R", 1), ("P", 1)}
ROW = (("Z", 118, 30, -6, 1.02), ("A", 214, 36, 3, 0.94), ("R", 316, 32, -3, 0.95), ("P", 412, 36, 4, 0.94), ("i", 503, 30, -4, 0.96))


def _strokes(letter: str, frame: Affine) -> list[str]:
    paths = []
    for i, line in enumerate(LETTERS[letter]):
        points: list[Knot] = [frame(p) for p in line]
        if (letter, i) in ROUND:
            paths.append(opened(points))
        else:
            paths.append("M" + "L".join(f"{x:.2f} {y:.2f}" for x, y in points))
    return paths


def _name(ink: Ink) -> None:
    frames = [(letter, Affine().move(x, y).turn(angle).scale(size)) for letter, x, y, angle, size in ROW]
    body = vertical_user(ink, 26, 136, ("#ffd65c", "#f6a22f", "#e0741c"))
    layers = ((42, "#ffffff", 0, 1), (34, LINE, 0, 1), (25, "#b9530f", 0, 1), (24, body, -2.6, 1), (7, "#fff0c0", -8.5, 0.75))
    for width, colour, lift, opacity in layers:
        for letter, frame in frames:
            for path in _strokes(letter, frame):
                ink.raw(f'<path d="{path}" transform="translate({lift * 0.5} {lift})" fill="none" stroke="{colour}" '
                        f'stroke-width="{width}" stroke-linejoin="round" stroke-linecap="round" opacity="{opacity}"/>')
    dot = frames[-1][1].move(14, 12).scale(2.3)
    for grow, colour in ((3.2, "#ffffff"), (1.9, LINE)):
        _fat_paw(ink, dot, colour, grow)
    paw_print(ink, dot, "#f6a22f")


def _fat_paw(ink: Ink, frame: Affine, colour: str, grow: float) -> None:
    for knots in [frame.knots(PAD)] + [frame.move(x, y).turn(a).knots(ellipse(0, 0, 2.2, 3.3)) for x, y, a in TOES]:
        ink.raw(f'<path d="{closed(knots)}" fill="{colour}" stroke="{colour}" stroke-width="{grow * 4}" stroke-linejoin="round"/>')


def vertical_user(ink: Ink, top: float, bottom: float, colours: tuple[str, ...]) -> str:
    """A gradient over the picture's own rows: strokes of every letter share it."""
    stops = "".join(f'<stop offset="{i / (len(colours) - 1)}" stop-color="{c}"/>' for i, c in enumerate(colours))
    name = ink.define(f'<linearGradient id="{{id}}" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1="{top}" y2="{bottom}">{stops}</linearGradient>')
    return f"url(#{name})"


def _land(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffc661"), (0.5, "#ffe9b5"), (1, "#ffd48a")))
    soft(ink, ellipse(318, 205, 120, 120), "#fff7dc", 16)
    blotches(ink, "#ffb648", 0.5, 0.007, 5)
    cloud(ink, 56, 58, 40, "#fff6df", 0.9)
    cloud(ink, 590, 66, 36, "#fff6df", 0.85)
    hill(ink, [(0, 300), (120, 262), (260, 300), (420, 258), (540, 292), (635, 268)], "#f9cd86", 2)
    hill(ink, [(0, 338), (180, 312), (380, 336), (520, 316), (635, 332)], "#cfd99a", 1.6)
    hill(ink, [(0, 372), (300, 352), (460, 366), (635, 352)], "#b5d294", 1.4)
    way(ink, [(430, 420), (470, 372), (540, 350), (500, 330), (548, 312), (578, 296)], 46, 3, "#f6efd0")
    castle(ink, 588, 288)
    for x, y, size in ((432, 336, 30), (462, 330, 22), (612, 348, 34)):
        round_tree(ink, x, y, size, "#a9c983", "#c9ab78")


def _cliff(ink: Ink) -> None:
    rock: list[Knot] = [(-10, 320, 1), (378, 320, 1), (386, 328), (380, 342), (386, 356), (376, 372), (382, 400, 1), (-10, 400, 1)]
    clip = ink.define(f'<clipPath id="{{id}}"><path d="{closed(rock)}"/></clipPath>')
    ink.raw(f'<g clip-path="url(#{clip})">')
    fill(ink, vertical_user(ink, 320, 390, (ROCK_LIGHT, ROCK.base, ROCK.shade)))
    stones(ink, -10, 336, 390, 396, 17, 22)
    turf: list[Knot] = [(-10, 312, 1), (390, 312, 1), (390, 332, 1)]
    x = 386.0
    while x > -10:
        turf += [(x, 339 + (x * 7 % 5), 1), (x - 7, 332)]
        x -= 15
    ink.flat(turf, TURF.base)
    ink.raw(f'<rect x="0" y="331" width="400" height="2" fill="{TURF.shade}" opacity="0.6"/></g>')
    ink.stroke(closed(rock), 2.6)
    ink.raw(f'<path d="M374 342q-14 6 -22 22" fill="none" stroke="{ROCK_DEEP}" stroke-width="2" stroke-linecap="round"/>')


def title() -> Ink:
    ink = Ink(635, 390, weight=2.6, depth=4)
    _land(ink)
    _cliff(ink)
    _name(ink)
    hero = POSES["Zarpi1"]
    ink.raw('<g transform="translate(252 117) scale(1.19)">')
    draw(replace(hero, hands=(hero.hands[0], Hand((92, 72), -13, 18)), face=Face(Eyes(look=(0.2, -0.1)), "cheer", 0.35)), ink)
    ink.raw("</g>")
    _subtitle(ink)
    return ink


SUBTITLE = (507, 374)      # its middle, and the line it stands on


def _subtitle(ink: Ink) -> None:
    style = 'font-family="Lobster Two" font-style="italic" font-weight="700" font-size="26" text-anchor="middle"'
    ink.raw(f'<text x="{SUBTITLE[0]}" y="{SUBTITLE[1]}" {style} fill="#fffdf2" stroke="#fffdf2" stroke-width="6" stroke-linejoin="round">El juego de las palabras</text>')
    ink.raw(f'<text x="{SUBTITLE[0]}" y="{SUBTITLE[1]}" {style} fill="#15595f">El juego de las palabras</text>')

