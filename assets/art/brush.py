"""Soft things: gradients, blotches of watercolour, hills, trees and ways. Used by the scenes and the washes."""

from __future__ import annotations

import math
import random
from typing import Sequence

from geometry import Knot, Point, closed, ellipse, number, ribbon
from ink import Ink


def vertical(ink: Ink, *stops: tuple[float, str]) -> str:
    """A gradient from top to bottom; the answer is what a `fill` takes."""
    return _gradient(ink, "linearGradient", 'x1="0" y1="0" x2="0" y2="1"', stops)


def column(ink: Ink, top: float, bottom: float, *colours: str) -> str:
    """A gradient over rows of the picture, for shapes and strokes that are to share one."""
    stops = "".join(f'<stop offset="{i / (len(colours) - 1)}" stop-color="{c}"/>' for i, c in enumerate(colours))
    name = ink.define(f'<linearGradient id="{{id}}" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1="{top}" y2="{bottom}">{stops}</linearGradient>')
    return f"url(#{name})"


def radial(ink: Ink, *stops: tuple[float, str], centre: Point = (0.5, 0.5), reach: float = 0.7) -> str:
    return _gradient(ink, "radialGradient", f'cx="{centre[0]}" cy="{centre[1]}" r="{reach}"', stops)


def _gradient(ink: Ink, kind: str, where: str, stops: Sequence[tuple[float, str]]) -> str:
    rows = "".join(f'<stop offset="{number(at)}" stop-color="{colour[:7]}" stop-opacity="{_alpha(colour)}"/>'
                   for at, colour in stops)
    name = ink.define(f'<{kind} id="{{id}}" {where}>{rows}</{kind}>')
    return f"url(#{name})"


def _alpha(colour: str) -> str:
    """Colours may carry their opacity as a fourth pair of digits."""
    return number(int(colour[7:9], 16) / 255) if len(colour) == 9 else "1"


def fill(ink: Ink, paint: str, opacity: float = 1) -> None:
    ink.raw(f'<rect width="{number(ink.width)}" height="{number(ink.height)}" fill="{paint}" opacity="{number(opacity)}"/>')


def blur(ink: Ink, amount: float) -> str:
    return ink.define(f'<filter id="{{id}}" x="-20%" y="-20%" width="140%" height="140%">'
                      f'<feGaussianBlur stdDeviation="{number(amount)}"/></filter>')


def soft(ink: Ink, knots: Sequence[Knot], colour: str, amount: float, opacity: float = 1) -> None:
    ink.raw(f'<path d="{closed(knots)}" fill="{colour}" opacity="{number(opacity)}" filter="url(#{blur(ink, amount)})"/>')


def blotches(ink: Ink, colour: str, strength: float, grain: float, seed: int) -> None:
    """Pigment that has run in wet paper: noise that lets one colour through."""
    r, g, b = (int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5))
    name = ink.define(
        f'<filter id="{{id}}" x="0" y="0" width="100%" height="100%" color-interpolation-filters="sRGB">'
        f'<feTurbulence type="fractalNoise" baseFrequency="{grain}" numOctaves="3" seed="{seed}"/>'
        f'<feColorMatrix values="0 0 0 0 {r:.3f} 0 0 0 0 {g:.3f} 0 0 0 0 {b:.3f} 0 0 0 {strength} {-strength * 0.32:.3f}"/></filter>')
    ink.raw(f'<rect width="{number(ink.width)}" height="{number(ink.height)}" filter="url(#{name})"/>')


def hill(ink: Ink, line: Sequence[Point], colour: str, amount: float = 1.2) -> None:
    """Everything below a smooth line, which goes from edge to edge."""
    w, h = ink.width, ink.height
    knots: list[Knot] = [(-30, line[0][1])] + list(line) + [(w + 30, line[-1][1]), (w + 40, h + 40, 1), (-40, h + 40, 1)]
    soft(ink, knots, colour, amount)


def way(ink: Ink, line: Sequence[Point], near: float, far: float, colour: str, amount: float = 1) -> None:
    """A path that grows narrow with distance."""
    points = smooth(line)
    left, right = ribbon(points, [near, near * 0.55 + far * 0.2, near * 0.28 + far * 0.4, far])
    soft(ink, left + right, colour, amount)


def smooth(line: Sequence[Point], steps: int = 8) -> list[Point]:
    out: list[Point] = []
    for i in range(len(line) - 1):
        a, b, c, d = line[max(i - 1, 0)], line[i], line[i + 1], line[min(i + 2, len(line) - 1)]
        for k in range(steps):
            t = k / steps
            out.append(tuple(0.5 * (2 * b[j] + (c[j] - a[j]) * t + (2 * a[j] - 5 * b[j] + 4 * c[j] - d[j]) * t * t
                                    + (3 * b[j] - a[j] - 3 * c[j] + d[j]) * t ** 3) for j in (0, 1)))
    return out + [line[-1]]


def round_tree(ink: Ink, x: float, y: float, size: float, leaf: str, trunk: str) -> None:
    soft(ink, [(x - size * 0.1, y, 1), (x - size * 0.07, y - size, 1), (x + size * 0.07, y - size, 1), (x + size * 0.1, y, 1)], trunk, 0.6)
    lean = random.Random(round(x * 7 + y)).random()
    knots = []
    for i in range(48):
        t = 2 * math.pi * i / 48
        r = size * (0.47 + 0.1 * abs(math.cos(2.5 * t + lean)))
        knots.append((x + r * math.cos(t), y - size * 1.15 + r * 0.92 * math.sin(t)))
    soft(ink, knots, leaf, 0.7)


def pointed_tree(ink: Ink, x: float, y: float, size: float, leaf: str, trunk: str) -> None:
    soft(ink, [(x - 2, y, 1), (x - 2, y - size * 0.3, 1), (x + 2, y - size * 0.3, 1), (x + 2, y, 1)], trunk, 0.5)
    for i, wide in enumerate((0.36, 0.28, 0.2)):
        low = y - size * (0.14 + 0.27 * i)
        soft(ink, [(x - size * wide, low), (x, low - size * 0.44, 1), (x + size * wide, low), (x, low + 2)], leaf, 0.8)


def cloud(ink: Ink, x: float, y: float, size: float, colour: str, opacity: float) -> None:
    for dx, dy, r in ((-0.7, 0.1, 0.42), (0, -0.1, 0.6), (0.7, 0.08, 0.45)):
        soft(ink, ellipse(x + dx * size, y + dy * size, r * size, r * size * 0.6), colour, size * 0.07, opacity)
