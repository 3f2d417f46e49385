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
WEB_SIZES = (192, 512)
DIALOG_SIZES = (16, 24, 32, 48, 64)

# The head on a grid of 16, for sizes at which whiskers and lids would be mud. The left half; the right one mirrors it.
HEAD = [(8, 5.6), (5.2, 5.7), (2.9, 7), (2.1, 9.1), (0.4, 10.8, 1), (1.9, 12), (1.3, 14.2, 1), (4.4, 14.1), (8, 15)]
EAR = [(2.5, 8.6), (2, 6), (2.3, 3.3, 1), (4.7, 4.3), (6.9, 6.2), (5.4, 8)]
TIP = [(1.4, 4.8), (1.5, 2.6), (1.4, 0.4, 1), (2.6, 2.2), (3.8, 3.8), (2.6, 4.1)]
EAR_INSIDE = [(3.4, 7.4), (3.2, 5.6), (4.2, 5.4), (5.4, 6.4)]
RUFF = [(0, 10), (2.7, 10.8), (3.5, 12.5), (3.4, 15), (0, 15)]
# Pixels of an eye at each size: width, height, from the middle, lower end.
EYE = {16: (2, 3, 2, 11), 22: (3, 4, 2, 14), 24: (3, 4, 3, 15), 32: (5, 6, 3, 20)}
MUZZLE = [(8, 10.6), (9.9, 10.9), (10.9, 12.4), (9.9, 14.2), (8, 14.7), (6.1, 14.2), (5.1, 12.4), (6.1, 10.9)]


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
        tip = grid.knots(turn(TIP))
        ink.flat(tip, TUFT.base)
        ink.stroke(closed(tip), ink.weight * 0.5)
    ink.shape(head, FUR)
    for part in (RUFF, _mirrored(RUFF), MUZZLE):
        ink.clipped(grid.knots(part), head, CREAM.base)
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


def maskable_icon(size: int) -> Ink:
    """For systems that cut icons to a shape of their own: the head within the inner four fifths, the ground to the edges."""
    ink = Ink(size, size, weight=size * 0.024, depth=size * 0.028)
    ground = radial(ink, (0, "#43d0be"), (1, "#12807f"), centre=(0.4, 0.3), reach=0.9)
    ink.raw(f'<rect x="-9" y="-9" width="{size + 18}" height="{size + 18}" fill="{ground}"/>')
    _portrait(ink, size * 0.5, size * 0.58, size * 0.0064, size * 0.018, size * 0.003)
    return ink


def dialog_icon(size: int) -> Ink:
    """A paw print on a tile; at the smallest size the paw alone fills it."""
    weight = 0.8 + size / 32
    ink = Ink(size, size, weight=weight)
    ink.raw(f'<rect x="{weight / 2}" y="{weight / 2}" width="{size - weight}" height="{size - weight}" rx="{size * 0.22}" '
            f'fill="{SCARF.base}" stroke="{LINE}" stroke-width="{weight}"/>')
    paw_print(ink, Affine().move(size / 2, size * 0.58).scale(size * (0.041 if size < 32 else 0.037)), "#ffffff")
    return ink
