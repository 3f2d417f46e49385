"""The icons: each size is drawn for itself, the smaller the fewer strokes."""

from __future__ import annotations

from dataclasses import replace

from brush import radial
from dialogs import paw_print
from geometry import Affine, Knot, closed, ellipse
from ink import Ink, sticker
from palette import CREAM, FUR, LINE, SCARF, TUFT
from pose import Eyes, Face
from poses import POSES
from rig import draw_head

SIZES = (16, 22, 24, 32, 48, 64, 128, 256)
DIALOG_SIZES = (16, 24, 32, 48, 64)

# The head on a grid of 16, for sizes at which whiskers and lids would be mud. The left half; the right one mirrors it.
HEAD = [(8, 4.7), (5.6, 5), (3.2, 6.9), (2.3, 9.6), (0.9, 11.6, 1), (2.6, 12.2), (2.4, 14, 1), (5, 14.2), (8, 14.9)]
EAR = [(2.5, 8.2), (2, 5), (2.1, 0.9, 1), (4.6, 2.9), (6.6, 5.4), (5, 8)]
TIP = [(1.9, 3.9), (2.1, 0.9, 1), (4.4, 2.7), (3.4, 4.1)]
EAR_INSIDE = [(3.4, 7), (3.1, 4.6), (4.2, 4), (5.4, 6)]
# Pixels of an eye at each size: width, height, from the middle, lower end.
EYE = {16: (2, 3, 2, 11), 22: (3, 4, 2, 14), 24: (3, 4, 3, 15), 32: (5, 6, 3, 20)}
MUZZLE = [(8, 10.2), (10.4, 10.5), (11.6, 12.2), (10.2, 14.2), (8, 14.7), (5.8, 14.2), (4.4, 12.2), (5.6, 10.5)]


def application_icon(size: int) -> Ink:
    return _face(size) if size < 48 else _tile(size)


def _mirrored(knots: list[Knot]) -> list[Knot]:
    return [(16 - k[0], *k[1:]) for k in knots]


def _face(size: int) -> Ink:
    """Outline, eyes, muzzle, nose: what is left at the size of a line of text."""
    ink = Ink(size, size, weight=0.25 + size / 26, depth=size / 22)
    paper = 0.45 + size / 60
    margin = paper + ink.weight / 2
    grid = Affine().move(margin, margin).scale((size - 2 * margin) / 14.2, (size - 2 * margin) / 14).move(-0.9, -0.9)
    sticker(ink, lambda on: _features(on, grid), paper)
    for side in (-1, 1):
        _eye(ink, size, side)
    return ink


def _features(ink: Ink, grid: Affine) -> None:
    head = grid.knots(HEAD + _mirrored(HEAD)[-2:0:-1])
    for turn in (list, _mirrored):
        ear = grid.knots(turn(EAR))
        ink.shape(ear, FUR, depth=0)
        if ink.width > 16:
            ink.flat(grid.knots(turn(EAR_INSIDE)), CREAM.shade)
        ink.clipped(grid.knots(turn(TIP)), ear, TUFT.base)
        ink.stroke(closed(ear), ink.weight)
    ink.shape(head, FUR)
    ink.clipped(grid.knots(MUZZLE), head, CREAM.base)
    ink.stroke(closed(head), ink.weight)
    ink.flat(grid.knots([(6.8, 11.2), (8, 10.9), (9.2, 11.2), (8, 12.7)]), LINE)


def _eye(ink: Ink, size: int, side: int) -> None:
    """On whole pixels, so that both eyes are alike and sharp."""
    wide, tall, apart, low = EYE[size]
    x, y = size / 2 + side * (apart + wide / 2), low - tall / 2
    if size == 16:
        ink.raw(f'<rect x="{x - wide / 2}" y="{y - tall / 2}" width="{wide}" height="{tall}" fill="{LINE}"/>')
        ink.raw(f'<rect x="{x - wide / 2}" y="{y - tall / 2}" width="1" height="1" fill="#ffffff"/>')
        return
    ink.flat(ellipse(x, y, wide / 2 + 0.75, tall / 2 + 0.75, 12), "#ffffff")
    ink.flat(ellipse(x, y, wide / 2, tall / 2, 12), LINE)
    ink.flat(ellipse(x - wide * 0.16, y - tall * 0.2, size / 42, size / 36), "#ffffff")


def _portrait(ink: Ink, x: float, y: float, scale: float, paper: float, line: float = 0) -> None:
    pose = replace(POSES["Zarpi1"], head=(x, y), tilt=0, scale=scale, ears=(-3, -3), face=Face(Eyes(look=(0.15, 0)), "smile", 0.2))
    sticker(ink, lambda on: draw_head(pose, on), paper, line)


def _tile(size: int) -> Ink:
    """The head looks out of a window of its scarf's colour."""
    ink = Ink(size, size, weight=size * (0.03 if size > 64 else 0.036), depth=size * 0.035)
    edge = max(1.5, size * 0.03)
    tile = radial(ink, (0, "#43d0be"), (1, "#12807f"), centre=(0.4, 0.3), reach=0.9)
    ink.raw(f'<rect x="{edge / 2}" y="{size * 0.1 + edge / 2}" width="{size - edge}" height="{size * 0.9 - edge}" rx="{size * 0.2}" '
            f'fill="{tile}" stroke="{LINE}" stroke-width="{edge}"/>')
    if size > 64:
        for x, y, angle in ((0.15, 0.84, -20), (0.86, 0.86, 24)):
            paw_print(ink, Affine().move(size * x, size * y).turn(angle).scale(size * 0.0072), "#ffffff", 0.2)
    _portrait(ink, size * 0.5, size * 0.645, size * 0.0108, size * 0.026, size * 0.004)
    return ink


def dialog_icon(size: int) -> Ink:
    """A paw print on a tile; at the smallest size the paw alone fills it."""
    weight = 0.8 + size / 32
    ink = Ink(size, size, weight=weight)
    ink.raw(f'<rect x="{weight / 2}" y="{weight / 2}" width="{size - weight}" height="{size - weight}" rx="{size * 0.22}" '
            f'fill="{SCARF.base}" stroke="{LINE}" stroke-width="{weight}"/>')
    paw_print(ink, Affine().move(size / 2, size * 0.58).scale(size * (0.041 if size < 32 else 0.037)), "#ffffff")
    return ink
