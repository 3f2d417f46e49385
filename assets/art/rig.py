"""Zarpi's body. Every picture of him is drawn by `draw`, from the same parts in the same order."""

from __future__ import annotations

import math

from effects import EFFECTS
from face import draw_face
from geometry import Affine, Point, bow, closed, ellipse, heading, jointed, ribbon
from ink import Ink
from palette import CREAM, FUR, SCARF, TUFT
from pose import Foot, Hand, Pose

ARM = (10.5, 9.5, 9)                # widths from shoulder to wrist
LEG = (15, 12.5, 11)
TAIL = (9, 11, 10)
TORSO_LENGTH = 34
TORSO = [(-9, -18), (9, -18), (14.5, -8), (18.5, 6), (17, 16), (8, 22), (-8, 22), (-17, 16), (-18.5, 6), (-14.5, -8)]
BELLY = [(0, -14), (9, -8), (12, 5), (9, 17), (0, 21), (-9, 17), (-12, 5), (-9, -8)]
SPOTS = [(-15, 1, 2.4), (-11.5, 10, 2), (15.5, 3, 2.2)]
SKULL = [(0, -26), (16, -23.5), (27, -12), (29.5, 1), (38, 9, 1), (32, 12), (34, 21, 1), (22, 21), (10, 25.5), (0, 26.5),
         (-10, 25.5), (-22, 21), (-34, 21, 1), (-32, 12), (-38, 9, 1), (-29.5, 1), (-27, -12), (-16, -23.5)]
RUFFS = [[(24, 7), (40, 7, 1), (33, 13), (36, 23, 1), (21, 22.5), (18, 14)],
         [(-24, 7), (-40, 7, 1), (-33, 13), (-36, 23, 1), (-21, 22.5), (-18, 14)]]
EAR = [(-11, 5), (-10.5, -8), (-2.5, -24), (2.5, -32, 1), (6, -22), (10.5, -8), (11, 5)]
EAR_INSIDE = [(-6, 4), (-5, -7), (1, -19, 1), (6, -7), (6.5, 4)]
TUFT_KNOTS = [(-3.8, -20), (0, -29), (5, -42, 1), (6.5, -29), (6.8, -19.5), (2, -22)]
NAPE = [[(0, -22), (0, -13)], [(-7, -20.5), (-5.5, -13.5)], [(7, -20.5), (5.5, -13.5)], [(-13.5, -17), (-11.5, -12)], [(13.5, -17), (11.5, -12)]]
FOOT = [(-8, 0), (-9.5, -5), (-5, -10), (4, -10.5), (12, -7.5), (14.5, -2.5), (13, 0), (3, 0.6)]
SOLE = [(-8.5, -4), (-8, -13), (0, -16.5), (8, -13), (8.5, -4), (6, 2), (0, 4), (-6, 2)]
PAW = [(-6, 5), (-7.6, -1), (-7, -6.5), (-4.6, -9.2), (-2.2, -7.6), (0, -10.6), (2.4, -7.8), (4.8, -9), (7.2, -6), (7.6, -1), (6, 5), (0, 7)]
PRESS = [(-5.4, -8.6), (0, -9.4), (5, -6.5), (7.4, 0), (5, 6.5), (0, 9.4), (-5.4, 8.6), (-6.6, 5), (-6.6, 0), (-6.6, -5)]
FIST = [(-6, 5.5), (-7.8, 0), (-6, -6), (0, -7.8), (6, -6), (7.8, 0), (6, 5.5), (0, 7)]


def draw(pose: Pose, ink: Ink) -> None:
    _effects(pose.under, ink)
    body = _body_frame(pose)
    if not pose.back:
        _tail(pose, ink)
    for hand, side in _arms(pose, "back"):
        _arm(pose, ink, body, hand, side)
    for foot, side in zip(pose.feet, (-1, 1)):
        _leg(pose, ink, body, foot, side)
    _torso(pose, ink, body)
    if pose.back:
        _tail(pose, ink)
    _scarf_end(pose, ink)
    for hand, side in _arms(pose, "front"):
        _arm(pose, ink, body, hand, side)
    _scarf_band(pose, ink)
    draw_head(pose, ink)
    for hand, side in _arms(pose, "face"):
        _arm(pose, ink, body, hand, side)
    _effects(pose.over, ink)


def _effects(rows: tuple[tuple, ...], ink: Ink) -> None:
    for name, *arguments in rows:
        EFFECTS[name](ink, *arguments)


def _arms(pose: Pose, layer: str) -> list[tuple[Hand, int]]:
    return [(hand, side) for hand, side in zip(pose.hands, (-1, 1)) if hand.layer == layer]


def _body_frame(pose: Pose) -> Affine:
    """The torso's own coordinates: the neck is at (0, -17), the hips at (0, 17)."""
    (hx, hy), (nx, ny) = pose.hips, pose.neck
    stretch = math.dist(pose.hips, pose.neck) / (TORSO_LENGTH * pose.scale)
    middle = Affine().move((hx + nx) / 2, (hy + ny) / 2).turn(heading(pose.hips, pose.neck) + 90)
    wide = 1 / math.sqrt(max(stretch, 0.4))     # what he loses in height he gains in breadth
    return middle.scale(pose.scale * wide, pose.scale * stretch)


def _torso(pose: Pose, ink: Ink, body: Affine) -> None:
    torso = body.knots(TORSO)
    ink.shape(torso, FUR, outline=False)
    if not pose.back:
        shift = 5 * pose.face.turn
        ink.clipped(body.move(shift, 0).knots(BELLY), torso, CREAM.shade)
        ink.clipped(body.move(shift - 1.5, -1.5).knots(BELLY), torso, CREAM.base)
    for x, y, r in SPOTS:
        ink.clipped(body.knots(ellipse(x, y, r, r * 1.2)), torso, FUR.shade)
    ink.stroke(closed(torso), ink.weight)


def _limb(ink: Ink, line: list[Point], widths: tuple[float, ...], scale: float) -> None:
    """A limb is outlined along its sides only, so that it grows out of the body without a seam."""
    left, right = ribbon(line, [w * scale for w in widths])
    ink.shape(left + right, FUR, outline=False)
    ink.line(left)
    ink.line(right)


def _arm(pose: Pose, ink: Ink, body: Affine, hand: Hand, side: int) -> None:
    shoulder = body((side * (12.5 if hand.elbow else 10.5), -9))
    line = jointed(shoulder, hand.elbow, hand.at) if hand.elbow else bow(shoulder, hand.at, hand.bend * pose.scale)
    ink.flat(ellipse(*shoulder, 4.6 * pose.scale, 4.6 * pose.scale), FUR.base)
    _limb(ink, line, ARM, pose.scale)
    angle = heading(line[-3], line[-1]) + 90 if hand.angle is None else hand.angle
    frame = Affine().move(*hand.at).turn(angle).scale(pose.scale * 1.08)
    HANDS[hand.kind](ink, frame)


def _open_paw(ink: Ink, frame: Affine) -> None:
    ink.shape(frame.knots(PAW), CREAM)
    for x in (-2.3, 2.4):
        ink.line([frame((x, -7)), frame((x, -3.6))], ink.weight * 0.7)


def _fist(ink: Ink, frame: Affine) -> None:
    ink.shape(frame.knots(FIST), CREAM)
    for x in (-2.6, 2.2):
        ink.line([frame((x, -7)), frame((x, -1.5))], ink.weight * 0.7)


def _press(ink: Ink, frame: Affine) -> None:
    ink.shape(frame.knots(PRESS), CREAM)
    for y in (-4.4, 0, 4.4):
        ink.line([frame((-5.8, y)), frame((-2.2, y * 0.9))], ink.weight * 0.7)


HANDS = {"open": _open_paw, "fist": _fist, "press": _press}


def _leg(pose: Pose, ink: Ink, body: Affine, foot: Foot, side: int) -> None:
    """It begins so deep in the torso that its edges come out from under the torso's own outline."""
    frame = Affine().move(*foot.at).turn(foot.angle).scale(pose.scale * foot.toes, pose.scale)
    hip, ankle = body((side * 8, 12)), frame((-1, -7))
    _limb(ink, jointed(hip, foot.knee, ankle) if foot.knee else bow(hip, ankle, foot.bend * pose.scale), LEG, pose.scale)
    (_sole if foot.sole else _foot)(ink, frame)


def _foot(ink: Ink, frame: Affine) -> None:
    ink.shape(frame.knots(FOOT), CREAM)
    for x in (5, 9.5):
        ink.line([frame((x, -1.2)), frame((x - 0.6, -4.6))], ink.weight * 0.7)


def _sole(ink: Ink, frame: Affine) -> None:
    ink.shape(frame.knots(SOLE), CREAM)
    ink.flat(frame.knots(ellipse(0, -3.5, 4.2, 3.4)), TUFT.base)
    for x, y in ((-5, -10), (0, -12), (5, -10)):
        ink.flat(frame.knots(ellipse(x, y, 1.9, 2.2)), TUFT.base)


def _tail(pose: Pose, ink: Ink) -> None:
    if not pose.tail:
        return
    line = _through(pose.tail)
    (ax, ay), (bx, by) = line[-2], line[-1]
    length = math.dist(line[-2], line[-1]) or 1
    reach = 5.5 * pose.scale / length
    end = (bx + (bx - ax) * reach, by + (by - ay) * reach)
    for part, tone, widths in ((line, FUR, TAIL), (line[len(line) * 5 // 9:], TUFT, TAIL[1:])):
        left, right = ribbon(part, [w * pose.scale for w in widths])
        ink.shape(left + [end] + right, tone, edge=left + [end] + right)


def _through(points: tuple[Point, ...]) -> list[Point]:
    """Enough points along a smooth line through a few."""
    if len(points) == 3:
        (ax, ay), (bx, by), (cx, cy) = points
        px, py = 2 * bx - (ax + cx) / 2, 2 * by - (ay + cy) / 2
        return [((1 - t) ** 2 * ax + 2 * t * (1 - t) * px + t * t * cx,
                 (1 - t) ** 2 * ay + 2 * t * (1 - t) * py + t * t * cy) for t in (i / 9 for i in range(10))]
    return list(points)


def _neck_frame(pose: Pose) -> Affine:
    return Affine().move(*pose.neck).turn((heading(pose.hips, pose.neck) + 90 + pose.tilt) / 2).scale(pose.scale)


def _scarf_end(pose: Pose, ink: Ink) -> None:
    """Two loose ends that tell which way the wind of the movement blows."""
    if not pose.scarf:
        return
    line = _through(pose.scarf)
    for lift, cut in ((5, 0.8), (0, 1)):
        part = [(x, y + lift * pose.scale * i / len(line)) for i, (x, y) in enumerate(line)]
        part = part[:max(4, round(len(part) * cut))]
        left, right = ribbon(part, [6 * pose.scale, 9 * pose.scale, 12 * pose.scale])
        (ax, ay), (bx, by), (cx, cy) = left[-1], right[0], part[-3]
        notch = ((ax + bx) / 2 * 0.45 + cx * 0.55, (ay + by) / 2 * 0.45 + cy * 0.55, True)
        ink.shape(left[:-1] + [(ax, ay, True), notch, (bx, by, True)] + right[1:], SCARF)


def _scarf_band(pose: Pose, ink: Ink) -> None:
    neck = _neck_frame(pose)
    band = neck.knots([(-14, -6), (0, -8), (14, -6), (16.5, 1), (12, 6.5), (0, 9), (-12, 6.5), (-16.5, 1)])
    ink.shape(band, SCARF)


def head_frame(pose: Pose) -> Affine:
    size = pose.scale * pose.head_size
    return Affine().move(*pose.head).turn(pose.tilt).scale(size * pose.squash[0], size * pose.squash[1])


def draw_head(pose: Pose, ink: Ink) -> None:
    frame = head_frame(pose)
    for side, fold in zip((-1, 1), pose.ears):
        _ear(pose, ink, frame, side, fold)
    skull = frame.knots(SKULL)
    ink.shape(skull, FUR, outline=False, depth=ink.depth * 1.3)
    for ruff in RUFFS:
        ink.clipped(frame.knots(ruff), skull, CREAM.shade if pose.back else CREAM.base)
    draw_ruff_marks(ink, frame)
    ink.stroke(closed(skull), ink.weight)
    if pose.back:
        for knots in NAPE:
            ink.line(frame.knots(knots), ink.weight * 0.95, TUFT.base)
    else:
        draw_face(pose.face, ink, frame, skull)


def draw_ruff_marks(ink: Ink, frame: Affine) -> None:
    for side in (-1, 1):
        ink.line(frame.knots([(side * 26, 7.5), (side * 32.5, 10)]), ink.weight * 0.8, TUFT.base)
        ink.line(frame.knots([(side * 24.5, 14), (side * 29.5, 17.5)]), ink.weight * 0.8, TUFT.base)


def _ear(pose: Pose, ink: Ink, frame: Affine, side: int, fold: float) -> None:
    shift = -2.5 * pose.face.turn
    short = 1 - 0.45 * max(0.0, math.sin(math.radians(12 + fold)) - 0.35)     # a folded ear points at us or away
    ear = frame.move(side * 18 + shift, -17).turn(side * (12 + fold)).scale(side, short)
    ink.shape(ear.knots(EAR), FUR)
    if not pose.back:
        ink.flat(ear.knots(EAR_INSIDE), CREAM.shade)
    ink.shape(ear.knots(TUFT_KNOTS), TUFT, depth=0)

