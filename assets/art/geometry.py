"""Points, affine maps and smooth outlines: all that the drawings need of geometry."""

from __future__ import annotations

import math
from dataclasses import dataclass
from typing import Iterable, Sequence

Point = tuple[float, float]
# A third member marks a corner: the outline passes through it without being rounded.
Knot = tuple


def number(value: float) -> str:
    return f"{value:.2f}".rstrip("0").rstrip(".")


@dataclass(frozen=True)
class Affine:
    """x' = a x + c y + e, y' = b x + d y + f."""

    a: float = 1
    b: float = 0
    c: float = 0
    d: float = 1
    e: float = 0
    f: float = 0

    def __call__(self, p: Sequence) -> Point:
        return (self.a * p[0] + self.c * p[1] + self.e, self.b * p[0] + self.d * p[1] + self.f)

    def then(self, inner: "Affine") -> "Affine":
        """The map that does `inner` first and this one after it."""
        x, y = self((inner.e, inner.f))
        return Affine(
            self.a * inner.a + self.c * inner.b, self.b * inner.a + self.d * inner.b,
            self.a * inner.c + self.c * inner.d, self.b * inner.c + self.d * inner.d, x, y)

    def move(self, x: float, y: float) -> "Affine":
        return self.then(Affine(e=x, f=y))

    def turn(self, degrees: float) -> "Affine":
        s, c = math.sin(math.radians(degrees)), math.cos(math.radians(degrees))
        return self.then(Affine(c, s, -s, c))

    def scale(self, x: float, y: float | None = None) -> "Affine":
        return self.then(Affine(a=x, d=x if y is None else y))

    def knots(self, knots: Iterable[Knot]) -> list[Knot]:
        return [self(k) + tuple(k[2:]) for k in knots]


def _tangent(before: Knot, at: Knot, after: Knot) -> Point:
    if len(at) > 2:
        return (0.0, 0.0)
    return ((after[0] - before[0]) / 6, (after[1] - before[1]) / 6)


def _curve(p: Knot, q: Knot, tp: Point, tq: Point) -> str:
    xs = (p[0] + tp[0], p[1] + tp[1], q[0] - tq[0], q[1] - tq[1], q[0], q[1])
    return "C" + " ".join(number(v) for v in xs)


def closed(knots: Sequence[Knot]) -> str:
    """A closed smooth outline through the knots."""
    n = len(knots)
    tangents = [_tangent(knots[i - 1], knots[i], knots[(i + 1) % n]) for i in range(n)]
    parts = [f"M{number(knots[0][0])} {number(knots[0][1])}"]
    for i in range(n):
        j = (i + 1) % n
        parts.append(_curve(knots[i], knots[j], tangents[i], tangents[j]))
    return "".join(parts) + "Z"


def opened(knots: Sequence[Knot]) -> str:
    """A smooth line from the first knot to the last."""
    last = len(knots) - 1
    tangents = [_tangent(knots[max(i - 1, 0)], knots[i], knots[min(i + 1, last)]) for i in range(last + 1)]
    parts = [f"M{number(knots[0][0])} {number(knots[0][1])}"]
    for i in range(last):
        parts.append(_curve(knots[i], knots[i + 1], tangents[i], tangents[i + 1]))
    return "".join(parts)


def ellipse(x: float, y: float, rx: float, ry: float, steps: int = 10) -> list[Knot]:
    turns = (2 * math.pi * i / steps for i in range(steps))
    return [(x + rx * math.cos(t), y + ry * math.sin(t)) for t in turns]


def star(x: float, y: float, outer: float, inner: float, points: int, start: float = -90) -> list[Knot]:
    knots: list[Knot] = []
    for i in range(2 * points):
        radius = inner if i % 2 else outer
        t = math.radians(start + 180 * i / points)
        knots.append((x + radius * math.cos(t), y + radius * math.sin(t), True))
    return knots


def bow(start: Point, end: Point, bend: float, steps: int = 16) -> list[Point]:
    """Points along an arc from start to end that swings out sideways by `bend`."""
    mx, my = (start[0] + end[0]) / 2, (start[1] + end[1]) / 2
    length = math.dist(start, end) or 1
    nx, ny = -(end[1] - start[1]) / length, (end[0] - start[0]) / length
    cx, cy = mx + 2 * bend * nx, my + 2 * bend * ny
    line = []
    for i in range(steps + 1):
        t = i / steps
        u, v, w = (1 - t) ** 2, 2 * t * (1 - t), t * t
        line.append((u * start[0] + v * cx + w * end[0], u * start[1] + v * cy + w * end[1]))
    return line


def jointed(start: Point, joint: Point, end: Point, steps: int = 8) -> list[Point]:
    """Points along two straight bones that meet at a joint, rounded there."""
    def between(p: Point, q: Point, t: float) -> Point:
        return (p[0] + (q[0] - p[0]) * t, p[1] + (q[1] - p[1]) * t)

    before, after = between(start, joint, 0.35), between(joint, end, 0.6)
    turn = [between(between(before, joint, i / steps), between(joint, after, i / steps), i / steps) for i in range(steps + 1)]
    return [between(start, before, i / 4) for i in range(4)] + turn + [between(after, end, i / 4) for i in range(1, 5)]


def ribbon(line: Sequence[Point], widths: Sequence[float]) -> tuple[list[Knot], list[Knot]]:
    """The two edges of a band of changing width along a line: one side, and the other one backwards."""
    left: list[Knot] = []
    right: list[Knot] = []
    halves: list[float] = []
    last = len(line) - 1
    for i, (x, y) in enumerate(line):
        before, after = line[max(i - 1, 0)], line[min(i + 1, last)]
        length = math.dist(before, after) or 1
        nx, ny = -(after[1] - before[1]) / length, (after[0] - before[0]) / length
        at = i / last * (len(widths) - 1)
        low = min(int(at), len(widths) - 2)
        half = (widths[low] + (widths[low + 1] - widths[low]) * (at - low)) / 2
        left.append((x + nx * half, y + ny * half))
        right.append((x - nx * half, y - ny * half))
        halves.append(half)
    return _outside(left, line, halves), _outside(right, line, halves)[::-1]


def _outside(edge: list[Knot], line: Sequence[Point], halves: Sequence[float]) -> list[Knot]:
    """An edge without the loop that it would make on the inner side of a sharp bend. Both its ends stay."""
    clear = [k for k in edge[1:-1] if all(math.dist(k, p) > 0.96 * half for p, half in zip(line, halves))]
    return [edge[0], *clear, edge[-1]]


def heading(start: Point, end: Point) -> float:
    """The direction from start to end in degrees: 0 is right, 90 is down."""
    return math.degrees(math.atan2(end[1] - start[1], end[0] - start[0]))
