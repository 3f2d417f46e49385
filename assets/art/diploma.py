"""The diploma, in its two wordings, and the curtain before it."""

from __future__ import annotations

import math
from dataclasses import replace

from brush import blotches, fill, radial
from dialogs import paw_print
from geometry import Affine, Knot, ellipse, number, star
from ink import Ink
from palette import CLOTH, GOLD, NAVY, SCARF, Tone
from poses import POSES
from rig import draw_head

WIDTH, HEIGHT = 703, 437
SIZE = 31
SECOND_LINE = {1: "ha acertado las 30 palabras", 2: "han acertado las 30 palabras"}
# The gaps in which the window lays its text boxes: left, top, width, height.
GAPS = {"name": (402, 104, 163, 35), "mode": (276, 214, 213, 35), "zarpis": (320, 264, 77, 35), "plenos": (184, 318, 39, 35),
        "date": (392, 322, 129, 35)}
# Where the window lays four small figures: the middle of their soles. Medal and seal keep clear of them.
FIGURES = tuple((x, y) for x in (80.5, 634.5) for y in (236, 312))
# What is written between them: x, baseline, which end x is, wording.
WORDS = (
    (392, 129, "end", "Zarpi certifica que"), (351.5, 186, "middle", "{second}"), (266, 239, "end", "del modo"),
    (310, 290, "end", "consiguiendo"), (407, 290, "start", "zarpis"), (174, 346, "end", "y"), (307.5, 346, "middle", "plenos, el día"),
    (351.5, 398, "middle", "¡Enhorabuena!"),
)


def _text(ink: Ink, x: float, y: float, anchor: str, size: float, colour: str, words: str, extra: str = "") -> None:
    ink.raw(f'<text x="{number(x)}" y="{number(y)}" text-anchor="{anchor}" font-family="Z003" font-size="{number(size)}" '
            f'fill="{colour}" {extra}>{words}</text>')


def diploma(players: int) -> Ink:
    ink = Ink(WIDTH, HEIGHT, "#fffaea", weight=1.6, depth=2)
    fill(ink, radial(ink, (0, "#fffdf6"), (0.7, "#fff8e2"), (1, "#f6e3b4"), reach=0.72))
    blotches(ink, "#ecd39a", 0.35, 0.012, 8)
    _watermark(ink)
    _border(ink)
    _title(ink)
    for x, y, anchor, words in WORDS:
        size = 40 if words.startswith("¡") else SIZE
        _text(ink, x, y, anchor, size, "#8f1d2c" if size > SIZE else "#33241a", words.format(second=SECOND_LINE[players]))
    for gap in GAPS.values():
        _plaque(ink, *gap)
    for x, y in FIGURES:
        ink.flat(ellipse(x, y, 17, 3.2, 14), GOLD.base, 0.4)
    _seal(ink, 590, 371)
    _ribbon_rosette(ink, 113, 371)
    return ink


def _plaque(ink: Ink, left: float, top: float, width: float, height: float) -> None:
    """A gilded tablet, in whose white middle the window writes."""
    for grow, round_, fill_, line in ((5.5, 7, GOLD.base, GOLD.shade), (2, 3.5, "#ffffff", GOLD.shade)):
        ink.raw(f'<rect x="{number(left - grow)}" y="{number(top - grow)}" width="{number(width + 2 * grow)}" height="{number(height + 2 * grow)}" '
                f'rx="{round_}" fill="{fill_}" stroke="{line}" stroke-width="1"/>')
    ink.raw(f'<path d="M{number(left - 1)} {number(top - 3.8)}h{number(width + 2)}" stroke="#f8e3a4" stroke-width="1.2" stroke-linecap="round"/>')


def _watermark(ink: Ink) -> None:
    paw_print(ink, Affine().move(351, 250).scale(13), "#f3dfae", 0.32)


def _title(ink: Ink) -> None:
    _text(ink, 353, 84, "middle", 62, "#e8d39d", "Zarpi diploma")
    _text(ink, 351.5, 82.5, "middle", 62, NAVY, "Zarpi diploma")
    for side in (-1, 1):
        frame = Affine().move(351.5 + side * 196, 66).scale(side, 1)
        ink.line(frame.knots([(0, 4), (18, -7), (40, 5), (58, -3), (62, -13), (53, -15), (50, -7), (60, 1), (76, -2)]), 2.2, GOLD.shade)
        ink.line(frame.knots([(8, 10), (28, 14), (48, 8)]), 1.4, GOLD.shade)
        ink.flat(frame.knots(star(-12, 2, 6, 2.6, 4)), GOLD.shade)


# --- border ---------------------------------------------------------------------------------------------------------

def _border(ink: Ink) -> None:
    for inset, width, colour in ((7, 9, SCARF.shade), (7, 5, SCARF.base), (15, 1.6, GOLD.shade), (22, 3, GOLD.base), (27, 1, GOLD.shade)):
        ink.raw(f'<rect x="{inset}" y="{inset}" width="{WIDTH - 2 * inset}" height="{HEIGHT - 2 * inset}" rx="4" fill="none" '
                f'stroke="{colour}" stroke-width="{width}"/>')
    _vine(ink)
    for x, y, angle in ((30, 30, 0), (WIDTH - 30, 30, 90), (WIDTH - 30, HEIGHT - 30, 180), (30, HEIGHT - 30, 270)):
        _corner(ink, Affine().move(x, y).turn(angle))


def _vine(ink: Ink) -> None:
    """Small diamonds on the outer band."""
    def diamond(x: float, y: float) -> None:
        ink.flat([(x - 5, y, 1), (x, y - 2.4, 1), (x + 5, y, 1), (x, y + 2.4, 1)], "#ffe9ae")
    across, down = 32, 20
    for i in range(1, across):
        for y in (7, HEIGHT - 7):
            diamond(WIDTH * i / across, y)
    for i in range(1, down):
        for x in (7, WIDTH - 7):
            y = HEIGHT * i / down
            ink.flat([(x, y - 5, 1), (x + 2.4, y, 1), (x, y + 5, 1), (x - 2.4, y, 1)], "#ffe9ae")


def _corner(ink: Ink, frame: Affine) -> None:
    ink.shape(frame.knots([(-14, -14), (14, -16), (18, -4), (6, 6), (-4, 18), (-16, 14)]), GOLD)
    for mirror in (1, -1):
        f = frame if mirror == 1 else frame.then(Affine(0, 1, 1, 0))
        ink.line(f.knots([(12, 3), (30, -1), (44, 7), (39, 14), (31, 11), (35, 4), (52, 0), (68, 4)]), 1.8, GOLD.shade)
        ink.flat(f.knots([(47, -1), (56, -8), (65, -4), (56, 0)]), GOLD.base)
        ink.flat(f.knots([(30, 2), (38, -9), (46, -6), (40, 2)]), GOLD.base)
    paw_print(ink, frame.turn(-45).scale(0.85), "#fff3cf")


# --- seal -----------------------------------------------------------------------------------------------------------

WAX = Tone("#d1343f", "#9f1f2f")


def _tails(ink: Ink, x: float, y: float, tone: Tone) -> None:
    for side in (-1, 1):
        f = Affine().move(x, y).turn(-side * 20)
        ink.shape(f.knots([(-10, 10, 1), (10, 10, 1), (10, 40, 1), (0, 33, 1), (-10, 40, 1)]), tone)


def _seal(ink: Ink, x: float, y: float) -> None:
    _tails(ink, x, y - 4, SCARF)
    knots = [(x + (31 + 2.2 * math.cos(t * 7.3)) * math.cos(t / 20 * 2 * math.pi), y - 10 + (31 + 2.2 * math.sin(t * 5.1)) * math.sin(t / 20 * 2 * math.pi))
             for t in range(20)]
    ink.shape(knots, WAX, depth=4)
    ink.raw(f'<circle cx="{x}" cy="{y - 10}" r="23.5" fill="{WAX.base}" stroke="{WAX.shade}" stroke-width="2"/>')
    paw_print(ink, Affine().move(x + 1, y - 6).scale(1.85), WAX.shade)
    paw_print(ink, Affine().move(x, y - 7).scale(1.85), "#f5808a")


def _ribbon_rosette(ink: Ink, x: float, y: float) -> None:
    _tails(ink, x, y - 4, WAX)
    ink.shape(star(x, y - 10, 33, 27.5, 18), GOLD, depth=3)
    ink.shape(ellipse(x, y - 10, 23, 23, 18), Tone("#fff6dd", "#f2dca6"), depth=3)
    draw_head(replace(POSES["Zarpi1"], head=(x, y - 4.5), tilt=0, scale=0.46, ears=(14, 14)), ink)


# --- curtain --------------------------------------------------------------------------------------------------------

FOLDS = (30, 24, 36, 28, 22, 34, 30, 26, 38, 24, 30, 36, 36)


def curtain() -> Ink:
    """Heavy cloth: deep folds, a golden braid and a fringe that ends at the hem, the lower edge of the window's box (438 rows)."""
    ink = Ink(394, 472, CLOTH.base)
    x = 0.0
    for i, width in enumerate(FOLDS):
        _fold(ink, x, width, i)
        x += width
    light = radial(ink, (0, "#ff8a7a50"), (1, "#ff8a7a00"), centre=(0.5, 0.18), reach=0.75)
    fill(ink, light)
    shade = '<linearGradient id="{id}" x1="0" x2="0" y1="0" y2="1"><stop offset="0" stop-color="#2a0010" stop-opacity=".55"/>' \
            '<stop offset=".12" stop-color="#2a0010" stop-opacity="0"/><stop offset=".8" stop-color="#2a0010" stop-opacity="0"/>' \
            '<stop offset="1" stop-color="#2a0010" stop-opacity=".5"/></linearGradient>'
    fill(ink, f"url(#{ink.define(shade)})")
    blotches(ink, "#3a0614", 0.4, 0.35, 2)
    _braid(ink)
    return ink


def _fold(ink: Ink, x: float, width: float, i: int) -> None:
    """One roll of cloth: shadow, rise, sheen, fall. Lower down it swings a little."""
    stops = ((0, "#4b0718"), (0.18, CLOTH.shade), (0.45, "#b81d36"), (0.58, "#d23a4c"), (0.72, "#a3182f"), (0.92, CLOTH.shade), (1, "#4b0718"))
    rows = "".join(f'<stop offset="{a}" stop-color="{c}"/>' for a, c in stops)
    paint = ink.define(f'<linearGradient id="{{id}}" x1="0" x2="1" y1="0" y2="0">{rows}</linearGradient>')
    swing, end = 3 * math.sin(i * 1.7), x + width
    ink.raw(f'<path d="M{x - 1} -2C{x + swing} 150 {x - swing} 320 {x + swing - 1} 480H{end + swing + 1}C{end - swing} 320 {end + swing} 150 {end + 1} -2Z" '
            f'fill="url(#{paint})"/>')


def _braid(ink: Ink) -> None:
    top = 404

    def wave(x: float) -> float:
        """The cloth is closed at 360 pixels, six waves, so that the braids of its two wings meet."""
        return top + 1 + 2 * math.sin(x * math.pi / 30)

    line: list[Knot] = [(x * 5.0, wave(x * 5.0)) for x in range(-4, 84)]
    ink.line([(a, b + 2) for a, b in line], 13, "#3a0614")
    ink.line(line, 11, GOLD.shade)
    ink.line([(a, b - 1) for a, b in line], 7.5, GOLD.base)
    ink.line([(a, b - 2.4) for a, b in line], 2, "#f8df92")
    for i in range(99):
        a = i * 4.0
        y = wave(a) + 5
        ink.raw(f'<path d="M{a} {number(y)}V{434 + i % 3}" stroke="{(GOLD.base, GOLD.shade, "#f3d37c")[i % 3]}" stroke-width="3.2" stroke-linecap="round"/>')

