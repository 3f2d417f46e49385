"""The marks of comics round the hero: sweat, dust, stars, lines of movement. Each is a row of EFFECTS."""

from __future__ import annotations

import math
from typing import Callable

from geometry import Affine, Point, ellipse, number, star
from ink import Ink
from palette import DUST, FLASH, GLOOM, LINE, PLATE, SHADOW, STAR, SWEAT, TONGUE, Tone

DROP = [(0, -7, 1), (3.4, -0.5), (3.2, 3.6), (0, 5.4), (-3.2, 3.6), (-3.4, -0.5)]


def plate(ink: Ink, top: float = 9) -> None:
    """The edge of the pusher's plate, on which the left column of a pose lies, but for the plate's two round corners.

    `top` is the row below the upper corner: it depends on how high the pose is shown.
    """
    ink.raw(f'<rect y="{number(top)}" width="1" height="158.5" fill="{PLATE}"/>')


RIM_PUFFS = ((-21, -2.5, 4.4), (-15.5, -6.5, 5.6), (-8, -8.5, 6.4), (-1, -6, 6))
RIM_SPECKS = ((-27, -3, 1.9), (-23.5, -9.5, 2.5), (-16, -17, 1.8), (-29.5, -9, 1.1), (-8, -19.5, 1.3))


def rim(ink: Ink) -> None:
    """Dust at the brink: it fills the lower right corner of the picture, whether the ledge goes on beyond or ends before.

    Its outline is pale and open and specks fly off it, or it would be taken for a stone.
    """
    low, edge = ink.height - 0.2, Tone("#c3aa80", "#c3aa80")
    for grow, tone in ((0.9, edge), (0, DUST)):
        for dx, dy, r in RIM_PUFFS + RIM_SPECKS:
            ink.shape(ellipse(ink.width + dx, low + dy, r + grow, r + grow, 14), tone, outline=False, depth=0)
        ink.raw(f'<rect x="{number(ink.width - 24.5 - grow)}" y="{number(low - 3 - grow)}" width="{24.5 + grow}" height="4.2" fill="{tone.base}"/>')
    for dx, dy, r in RIM_PUFFS[1:]:
        curl = [(ink.width + dx + 0.6 * r * math.cos(t), low + dy + 0.6 * r * math.sin(t)) for t in (3.4, 4.0, 4.6, 5.2, 5.8)]
        ink.line(curl, ink.weight * 0.45, "#ffffff")


def shadow(ink: Ink, x: float, y: float, half: float) -> None:
    ink.flat(ellipse(x, y, half, half * 0.13 + 1.5, 14), SHADOW, 0.75)


def sweat(ink: Ink, x: float, y: float, angle: float, size: float = 1) -> None:
    ink.shape(Affine().move(x, y).turn(angle).scale(size).knots(DROP), SWEAT, depth=1.4)


def arcs(ink: Ink, x: float, y: float, radius: float, start: float, end: float, count: int = 2) -> None:
    """Lines of movement: arcs round a point, each shorter and further out than the one before."""
    for i in range(count):
        r, cut = radius + 5 * i, (end - start) * 0.14 * i
        span = [start + cut + (end - start - 2 * cut) * k / 6 for k in range(7)]
        ink.line([(x + r * math.cos(math.radians(a)), y + r * math.sin(math.radians(a))) for a in span], ink.weight * 0.75)


def dash(ink: Ink, *points: float) -> None:
    """Straight lines of movement, four numbers each."""
    for i in range(0, len(points), 4):
        ink.line([(points[i], points[i + 1]), (points[i + 2], points[i + 3])], ink.weight * 0.75)


def puff(ink: Ink, x: float, y: float, size: float) -> None:
    """A small cloud of dust, flat below."""
    knots = []
    for i in range(36):
        t = math.pi * 2 * i / 36
        r = size * (0.84 + 0.28 * abs(math.cos(3 * t + 0.4)))
        knots.append((x + r * math.cos(t) * 1.25, y + r * math.sin(t) * 0.85))
    ink.shape(knots, DUST)


def bang(ink: Ink, x: float, y: float, outer: float, inner: float, points: int, ground: float) -> None:
    """A burst that stands on the ground: what would reach below it is cut off."""
    for share, tone in ((1, STAR), (0.7, FLASH)):
        burst = star(x, y, outer * share, inner * share, points, -80)
        ink.shape([(k[0], min(k[1], ground), True) for k in burst], tone, outline=share == 1, depth=4)


def little_star(ink: Ink, x: float, y: float, size: float, angle: float = -90) -> None:
    ink.shape(star(x, y, size, size * 0.46, 5, angle), STAR, depth=1.6)


def orbit(ink: Ink, x: float, y: float, rx: float, ry: float, start: float, end: float) -> None:
    points: list[Point] = []
    for k in range(13):
        a = math.radians(start + (end - start) * k / 12)
        points.append((x + rx * math.cos(a), y + ry * math.sin(a)))
    ink.line(points, ink.weight * 0.75)


def cross(ink: Ink, x: float, y: float, size: float) -> None:
    """The swollen vein of anger: four little bows."""
    for turn in (0, 90, 180, 270):
        frame = Affine().move(x, y).turn(turn).scale(size)
        ink.line(frame.knots([(2, -8), (2.6, -3.2), (3.2, -2.6), (8, -2)]), ink.weight * 1.3, TONGUE.shade)


def steam(ink: Ink, x: float, y: float, side: float, size: float) -> None:
    for dx, dy, r in ((0, 0, 5), (6.5, -3, 6.5), (15, -8, 5)):
        knots = ellipse(x + side * dx * size, y + dy * size, r * size, r * size * 0.9)
        ink.shape(knots, DUST, depth=2)


def storm(ink: Ink, x: float, y: float, size: float) -> None:
    """The little thundercloud over the head of one who is out of temper."""
    bolt = Affine().move(x + size * 0.2, y + size * 0.55).scale(size / 10)
    ink.shape(bolt.knots([(0, 0, 1), (5, 0, 1), (2, 5, 1), (5, 5, 1), (-3, 13, 1), (-0.5, 7, 1), (-3, 7, 1)]), STAR, depth=1)
    knots = []
    for i in range(40):
        t = math.pi * 2 * i / 40
        r = size * (0.8 + 0.3 * abs(math.cos(2.5 * t + 0.2)))
        knots.append((x + r * math.cos(t) * 1.3, min(y + r * math.sin(t) * 0.7, y + size * 0.5)))
    ink.shape(knots, GLOOM)


def shout_lines(ink: Ink, x: float, y: float, near: float, far: float, start: float, end: float, count: int) -> None:
    for i in range(count):
        a = math.radians(start + (end - start) * i / (count - 1))
        reach = far if i % 2 == 0 else far * 0.86
        ink.line([(x + near * math.cos(a), y + near * math.sin(a)), (x + reach * math.cos(a), y + reach * math.sin(a))])


def ground_crack(ink: Ink, x: float, y: float, half: float) -> None:
    for knots in ([(-1, 0), (-0.6, 0.06), (-0.35, -0.02), (0, 0.08)], [(0.2, 0.02), (0.55, 0.1), (0.8, 0), (1, 0.05)]):
        ink.line([(x + px * half, y + py * half) for px, py in knots], ink.weight * 0.8, LINE)


EFFECTS: dict[str, Callable[..., None]] = {
    "plate": plate, "rim": rim, "shadow": shadow, "sweat": sweat, "arcs": arcs, "dash": dash, "puff": puff, "bang": bang, "star": little_star,
    "orbit": orbit, "cross": cross, "steam": steam, "storm": storm, "shout": shout_lines, "crack": ground_crack,
}
