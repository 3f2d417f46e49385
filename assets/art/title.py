"""The title picture: the game's name in letters cut by hand, Zarpi on his cliff."""

from __future__ import annotations

from dataclasses import replace

from brush import blotches, cloud, column, fill, hill, round_tree, soft, vertical, way
from dialogs import PAD, TOES, paw_print
from geometry import Affine, Knot, Point, closed, ellipse, opened
from ink import Ink
from palette import LINE, ROCK, ROCK_DEEP, ROCK_LIGHT, TURF
from pose import Eyes, Face, Hand
from poses import POSES
from rig import draw
from scenes import Masonry, castle, stones

# The strokes of a letter in a box of 100 by 100, as one who cuts paper would lay them.
LETTERS: dict[str, list[list[Point]]] = {
    "Z": [[(8, 12), (48, 14), (90, 8), (52, 50), (10, 92), (50, 88), (94, 92)]],
    "A": [[(4, 94), (28, 50), (46, 6), (66, 50), (90, 92)], [(26, 64), (48, 62), (70, 63)]],
    "R": [[(14, 94), (16, 52), (13, 10)], [(13, 10), (56, 4), (78, 28), (54, 50), (17, 54)], [(42, 53), (62, 72), (88, 93)]],
    "P": [[(14, 95), (16, 50), (12, 10)], [(12, 10), (56, 3), (80, 30), (56, 57), (17, 58)]],
    "i": [[(14, 44), (16, 70), (13, 94)]],
}
ROUND = {("R", 1), ("P", 1)}
ROW = (("Z", 72, 28, -6, 0.95), ("A", 205, 36, 3, 0.88), ("R", 312, 33, -3, 0.9), ("P", 425, 36, 4, 0.88), ("i", 520, 31, -4, 0.88))


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
    body = column(ink, 26, 126, "#ffd65c", "#f6a22f", "#e0741c")
    layers = ((40, "#ffffff", 0, 1), (31, LINE, 0, 1), (22.5, "#b9530f", 0, 1), (21.5, body, -2.4, 1), (6, "#fff0c0", -7.8, 0.75))
    for i, (width, colour, lift, opacity) in enumerate(layers):
        for letter, frame in frames:
            for path in _strokes(letter, frame):
                inside = colour if i == 0 else "none"       # the paper below the letters shows through their holes
                ink.raw(f'<path d="{path}" transform="translate({lift * 0.5} {lift})" fill="{inside}" stroke="{colour}" '
                        f'stroke-width="{width}" stroke-linejoin="round" stroke-linecap="round" opacity="{opacity}"/>')
    dot = frames[-1][1].move(14, 12).scale(2.4)
    for grow, colour in ((3.2, "#ffffff"), (1.9, LINE)):
        _fat_paw(ink, dot, colour, grow)
    paw_print(ink, dot, "#f6a22f")


def _fat_paw(ink: Ink, frame: Affine, colour: str, grow: float) -> None:
    for knots in [frame.knots(PAD)] + [frame.move(x, y).turn(a).knots(ellipse(0, 0, 2.2, 3.3)) for x, y, a in TOES]:
        ink.raw(f'<path d="{closed(knots)}" fill="{colour}" stroke="{colour}" stroke-width="{grow * 4}" stroke-linejoin="round"/>')


# Where the window lays four small figures: the middle of their soles.
ONLOOKERS = tuple((x, y) for x in (60.5, 572.5) for y in (186, 262))
STONE = Masonry("#a8cfb4", "#8fbca4", "#5fa596", "#f3e2b6", "#e8793f")


def _land(ink: Ink) -> None:
    fill(ink, vertical(ink, (0, "#ffc661"), (0.5, "#ffe9b5"), (1, "#ffd48a")))
    soft(ink, ellipse(318, 205, 120, 120), "#fff7dc", 16)
    blotches(ink, "#ffb648", 0.5, 0.007, 5)
    cloud(ink, 56, 58, 40, "#fff6df", 0.9)
    cloud(ink, 590, 66, 36, "#fff6df", 0.85)
    hill(ink, [(0, 300), (120, 262), (260, 300), (420, 258), (540, 292), (635, 268)], "#f9cd86", 2)
    hill(ink, [(300, 350), (400, 306), (446, 276), (478, 266), (512, 274), (556, 300), (635, 316)], "#d6dc9f", 1.4)
    castle(ink, 478, 266, STONE, 0.94)
    way(ink, [(700, 352), (600, 340), (540, 330), (528, 316), (502, 304), (470, 294), (470, 282), (478, 269)], 17, 9, "#fbf3d6", 0.6)
    for x, y, size in ((418, 322, 27), (442, 318, 19), (598, 330, 26)):
        soft(ink, ellipse(x, y, size * 0.3, 2), "#a8bb78", 1, 0.8)
        round_tree(ink, x, y, size, "#9fc47c", "#b9935f")
    hill(ink, [(0, 372), (300, 352), (420, 344), (540, 350), (635, 346)], "#b9d596", 1.4)


def _islet(ink: Ink, x: float, y: float) -> None:
    """A clod of turf in the air, for an onlooker to stand on."""
    rock: list[Knot] = [(-25, 0, 1), (25, 0, 1), (22, 5), (14, 8), (7, 13.5), (-2, 14.5), (-10, 9.5), (-20, 6)]
    body = Affine().move(x, y).knots(rock)
    ink.shape(body, ROCK, outline=False, depth=3)
    turf: list[Knot] = [(-27, -1, 1), (27, -1, 1), (25, 4.5), (19, 3.5), (13, 6), (6, 3.4), (0, 5.8), (-7, 3.4), (-14, 6), (-19, 3.4), (-25, 4.5)]
    ink.clipped(Affine().move(x, y).knots(turf), body, TURF.base)
    ink.stroke(closed(body), 1.7)


def _cliff(ink: Ink) -> None:
    rock: list[Knot] = [(-10, 320, 1), (378, 320, 1), (386, 328), (380, 342), (386, 356), (376, 372), (382, 400, 1), (-10, 400, 1)]
    clip = ink.define(f'<clipPath id="{{id}}"><path d="{closed(rock)}"/></clipPath>')
    ink.raw(f'<g clip-path="url(#{clip})">')
    fill(ink, column(ink, 320, 390, ROCK_LIGHT, ROCK.base, ROCK.shade))
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
    for x, y in ONLOOKERS:
        _islet(ink, x, y)
    hero = POSES["Zarpi1"]
    ink.raw('<g transform="translate(252 117) scale(1.19)">')
    draw(replace(hero, under=(), hands=(hero.hands[0], Hand((112, 84), 9, 16, layer="back")), face=Face(Eyes(look=(0.2, -0.1)), "cheer", 0.35)), ink)
    ink.raw("</g>")
    _subtitle(ink)
    return ink


SUBTITLE = (511, 375)      # its middle, and the line it stands on


def _subtitle(ink: Ink) -> None:
    style = 'font-family="Lobster Two" font-style="italic" font-weight="700" font-size="23.5" text-anchor="middle"'
    ink.raw(f'<text x="{SUBTITLE[0]}" y="{SUBTITLE[1]}" {style} fill="#fffdf2" stroke="#fffdf2" stroke-width="6" stroke-linejoin="round">El juego de las palabras</text>')
    ink.raw(f'<text x="{SUBTITLE[0]}" y="{SUBTITLE[1]}" {style} fill="#15595f">El juego de las palabras</text>')
