"""The face: eyes and mouths are rows of two tables, drawn in the head's own coordinates."""

from __future__ import annotations

from typing import Callable

from geometry import Affine, Knot, closed, ellipse
from ink import Ink
from palette import CREAM, FUR, LINE, TONGUE, TUFT, WHITE
from pose import Eyes, Face

MUZZLE = [(0, 3), (8, 5), (15.5, 11), (14, 19), (7, 23), (0, 23.5), (-7, 23), (-14, 19), (-15.5, 11), (-8, 5)]
NOSE = [(-4.6, 4.6), (0, 3.6), (4.6, 4.6), (3.2, 8), (0, 9.8), (-3.2, 8)]
FOREHEAD = [((0, -23), (0, -16)), ((-6, -21.5), (-4.6, -17)), ((6, -21.5), (4.6, -17))]
EYE_APART, EYE_TALL, EYE_WIDE = 11.2, 11.5, 9


def draw_face(face: Face, ink: Ink, head: Affine, skull: list[Knot]) -> None:
    front = head.move(6.5 * face.turn, face.nod)
    brow = head.move(4 * face.turn, face.nod * 0.5)
    raised = face.eyes.brow is not None and face.eyes.brow > 0       # then there is no room for the marks
    for start, end in () if raised else FOREHEAD:
        ink.line(brow.knots([start, end]), ink.weight * 0.95, TUFT.base)
    muzzle = front.move(1.5 * face.turn, 0)
    ink.clipped(muzzle.knots(MUZZLE), skull, CREAM.base)
    for side in (-1, 1):
        narrow = 1 - 0.16 * max(0.0, side * face.turn)      # the far eye looks smaller
        EYES[face.eyes.kind](ink, front.move(side * EYE_APART, -4).scale(narrow, 1), face.eyes, side)
    MOUTHS[face.mouth](ink, muzzle)
    ink.flat(muzzle.knots(NOSE), LINE)
    ink.flat(muzzle.knots(ellipse(-1.5, 5.6, 1.3, 0.8)), "#ffffff", 0.7)


# --- eyes -----------------------------------------------------------------------------------------------------------

def _open_eye(ink: Ink, eye: Affine, eyes: Eyes, side: int) -> None:
    w, h = EYE_WIDE * eyes.size, EYE_TALL * eyes.size
    white = eye.knots(ellipse(0, 0, w, h, 12))
    ink.flat(white, WHITE.base)
    px, py = eyes.look[0] * w * 0.42, eyes.look[1] * h * 0.42
    rx, ry = 5.7 * eyes.pupil, 7.4 * eyes.pupil
    ink.clipped(eye.knots(ellipse(px, py, rx, ry, 12)), white, LINE)
    ink.flat(eye.knots(ellipse(px - 1.7 * eyes.pupil, py - 2.8 * eyes.pupil, 2.1 * eyes.pupil, 2.5 * eyes.pupil)), "#ffffff")
    if eyes.pupil > 0.8:
        ink.flat(eye.knots(ellipse(px + 2, py + 3, 1.1, 1.2)), "#ffffff", 0.85)
    if eyes.lid:
        _lid(ink, eye, eyes, side, white, h)
    ink.stroke(closed(white), ink.weight)
    if eyes.brow is not None:
        _brow(ink, eye, eyes, side, h)


def _slope(eyes: Eyes, side: int) -> float:
    return side * eyes.slant


def _lid(ink: Ink, eye: Affine, eyes: Eyes, side: int, white: list[Knot], h: float) -> None:
    y, k = -h + 2 * h * eyes.lid, _slope(eyes, side)
    edge = [(-14, y + k * 14, 1), (14, y - k * 14, 1)]
    ink.clipped(eye.knots(edge + [(14, -30, 1), (-14, -30, 1)]), white, FUR.shade)
    clip = ink.define(f'<clipPath id="{{id}}"><path d="{closed(white)}"/></clipPath>')
    (ax, ay), (bx, by) = eye(edge[0]), eye(edge[1])
    ink.raw(f'<path clip-path="url(#{clip})" d="M{ax:.2f} {ay:.2f}L{bx:.2f} {by:.2f}" stroke="{LINE}" '
            f'stroke-width="{ink.weight:.2f}"/>')


def _brow(ink: Ink, eye: Affine, eyes: Eyes, side: int, h: float) -> None:
    y, k = -h - (eyes.brow or 0), _slope(eyes, side)
    half = 8 if eyes.slant > 0 else 6.5
    knots = [(-half, y + k * half), (0, y - (0 if eyes.slant > 0 else 1.6)), (half, y - k * half)]
    ink.line(eye.knots(knots), ink.weight * 1.5)


def _happy_eye(ink: Ink, eye: Affine, eyes: Eyes, side: int) -> None:
    ink.line(eye.knots([(-8, 3), (-4.5, -3.5), (0, -5.5), (4.5, -3.5), (8, 3)]), ink.weight * 1.45)


def _tight_eye(ink: Ink, eye: Affine, eyes: Eyes, side: int) -> None:
    for y in (-7, 6):
        ink.line(eye.knots([(side * 7.5, y), (-side * 5, -0.5)]), ink.weight * 1.45)


def _dizzy_eye(ink: Ink, eye: Affine, eyes: Eyes, side: int) -> None:
    white = eye.knots(ellipse(0, 0, EYE_WIDE + 0.6, EYE_TALL, 12))
    ink.flat(white, WHITE.base)
    ink.stroke(closed(white), ink.weight)
    from math import cos, sin
    turns = [(i * 0.62, 0.5 + i * 0.42) for i in range(17)]
    ink.line(eye.knots([(r * cos(side * t), r * sin(side * t)) for t, r in turns]), ink.weight * 0.8)


EYES: dict[str, Callable[[Ink, Affine, Eyes, int], None]] = {
    "open": _open_eye, "happy": _happy_eye, "tight": _tight_eye, "dizzy": _dizzy_eye,
}


# --- mouths ---------------------------------------------------------------------------------------------------------

def _lines(*lines: list[Knot]) -> Callable[[Ink, Affine], None]:
    def mouth(ink: Ink, muzzle: Affine) -> None:
        for knots in lines:
            ink.line(muzzle.knots(knots))
    return mouth


def _hole(knots: list[Knot], tongue: list[Knot] | None = None, teeth: list[Knot] | None = None) -> Callable[[Ink, Affine], None]:
    """An open mouth, dark inside, with a tongue and teeth where there are any."""
    def mouth(ink: Ink, muzzle: Affine) -> None:
        hole = muzzle.knots(knots)
        ink.flat(hole, "#5b1a22")
        if tongue:
            ink.clipped(muzzle.knots(tongue), hole, TONGUE.base)
        if teeth:
            ink.clipped(muzzle.knots(teeth), hole, "#ffffff")
        ink.stroke(closed(hole), ink.weight)
    return mouth


def _grit(ink: Ink, muzzle: Affine) -> None:
    box = muzzle.knots([(-10, 13.5), (0, 12.5), (10, 13.5), (11, 18), (9, 22), (0, 22.5), (-9, 22), (-11, 18)])
    ink.flat(box, "#ffffff")
    for x in (-5.5, 0, 5.5):
        ink.line(muzzle.knots([(x, 13), (x, 22)]), ink.weight * 0.7)
    ink.line(muzzle.knots([(-10.5, 17.6), (10.5, 17.6)]), ink.weight * 0.7)
    ink.stroke(closed(box), ink.weight)


LIP = [(0, 9), (0, 13)]
MOUTHS: dict[str, Callable[[Ink, Affine], None]] = {
    "smile": _lines(LIP, [(-9, 12.5), (-5, 15.8), (0, 13), (5, 15.8), (9, 12.5)]),
    "grin": _hole([(-10, 12, 1), (0, 13.5), (10, 12, 1), (7.5, 19.5), (0, 23), (-7.5, 19.5)],
                  [(-6, 19), (0, 17.5), (6, 19), (5, 25), (-5, 25)]),
    "cheer": _hole([(-12, 11, 1), (0, 12.5), (12, 11, 1), (10, 20), (0, 25), (-10, 20)],
                   [(-8, 20), (0, 17.5), (8, 20), (7, 28), (-7, 28)], [(-12, 9), (12, 9), (10, 14), (-10, 14)]),
    "grit": _grit,
    "oh": _hole([(0, 12), (5, 14), (5.5, 19), (0, 23), (-5.5, 19), (-5, 14)], [(-4, 20), (0, 18.5), (4, 20), (3, 26), (-3, 26)]),
    "scream": _hole([(0, 11), (9, 13), (10.5, 20), (7, 28), (0, 30), (-7, 28), (-10.5, 20), (-9, 13)],
                    [(-7, 25), (0, 22), (7, 25), (6, 33), (-6, 33)]),
    "shout": _hole([(-7, 11.5), (0, 12.5), (7, 11.5), (13, 20), (12, 28), (0, 30), (-12, 28), (-13, 20)],
                   [(-8, 26), (0, 22.5), (8, 26), (7, 34), (-7, 34)], [(-12, 8), (12, 8), (10, 15.5), (0, 16.5), (-10, 15.5)]),
    "wobble": _lines([(-10, 17), (-6.5, 14.5), (-3, 17.8), (0.5, 14.8), (4, 17.8), (7.5, 14.8), (10, 16.8)]),
    "frown": _lines(LIP, [(-8, 18), (-4, 14.6), (0, 13.6), (4, 14.6), (8, 18)]),
    "pout": _lines(LIP, [(-7, 16.5), (-1, 14.4), (7, 14)], [(6, 11.5), (8.6, 14.6)]),
    "daze": _hole([(-6, 14), (0, 13), (6, 15), (5, 20), (0, 21.5), (-5, 19)], [(-3, 17), (3, 16.5), (4, 24), (0, 26), (-4, 24)]),
}
