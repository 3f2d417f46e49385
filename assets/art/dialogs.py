"""The quiet grounds of the dialogs, the stars and the advertisement."""

from __future__ import annotations

import math
import random

from brush import blotches, blur, fill, radial, vertical
from geometry import Affine, Knot, ellipse, star
from ink import Ink
from palette import LINE, PLATE, SCARF, SHADE, STAR, WASH, WASH_DEEP, WASH_LIGHT, Tone

WASHES: dict[str, tuple[int, int]] = {
    "nivel": (568, 337), "puntos": (470, 337), "nombre": (330, 148), "guardar": (318, 249), "reanudar": (449, 445),
    "cuadro": (737, 603), "fecha": (580, 480), "acerca": (309, 542), "normas": (693, 567), "fondodiploma": (800, 600),
    "ultimas": (765, 626),
}

PAD = [(-6, 3), (-3.5, -3.4), (0, -5), (3.5, -3.4), (6, 3), (3, 6), (0, 5), (-3, 6)]
TOES = ((-7.6, -5, -24), (-2.8, -10, -8), (2.8, -10, 8), (7.6, -5, 24))


def paw_print(ink: Ink, frame: Affine, colour: str, opacity: float = 1) -> None:
    ink.flat(frame.knots(PAD), colour, opacity)
    for x, y, angle in TOES:
        ink.flat(frame.move(x, y).turn(angle).knots(ellipse(0, 0, 2.2, 3.3)), colour, opacity)


def wash(name: str) -> Ink:
    """Orange paper with a trail of paw prints, so pale that a text can lie on it."""
    width, height = WASHES[name]
    ink = Ink(width, height)
    fill(ink, WASH)
    fill(ink, radial(ink, (0, WASH_LIGHT + "70"), (0.6, WASH_LIGHT + "20"), (1, WASH_DEEP + "c0"), centre=(0.5, 0.42), reach=0.75))
    seed = sum(map(ord, name))
    blotches(ink, "#ffd48a", 0.24, 0.006, seed)
    _trail(ink, seed)
    if name == "nivel":
        _portrait_card(ink, 420, 76, 105, 171)
    return ink


def _portrait_card(ink: Ink, left: float, top: float, width: float, height: float) -> None:
    """A framed card where the window lays the hero's picture. Its inner line goes on in the picture's own first column."""
    def plate(grow: float, paint: str, more: str = "") -> None:
        ink.raw(f'<rect x="{left - grow}" y="{top - grow}" width="{width + 2 * grow}" height="{height + 2 * grow}" rx="{grow}" fill="{paint}" {more}/>')

    ink.raw(f'<g transform="translate(2 2.5)" opacity="0.35" filter="url(#{blur(ink, 1.2)})">')
    plate(4.6, SHADE)
    ink.raw("</g>")
    plate(4.4, SCARF.base, f'stroke="{LINE}" stroke-width="1.2"')
    plate(2.6, "#ffffff")
    right, low = left + width, top + height
    ink.raw(f'<path d="M{left + 8} {top - 0.5}H{right - 8}M{right + 0.5} {top + 9}V{top + 167}M{right - 4} {low + 0.5}H{left + 4}" fill="none" '
            f'stroke="{PLATE}" stroke-width="1"/>')


def _trail(ink: Ink, seed: int) -> None:
    draw = random.Random(seed)
    x, y = ink.width * draw.uniform(0.02, 0.2), ink.height + 10
    heading, side = draw.uniform(-65, -40), 1
    while -20 < y < ink.height + 30 and x < ink.width + 20:
        step = Affine().move(x, y).turn(heading + 90).move(9 * side, 0).turn(6 * side).scale(1.05)
        paw_print(ink, step, "#ffffff", 0.13)
        heading = max(-85, min(-5, heading + draw.uniform(-17, 17)))
        x += 25 * math.cos(math.radians(heading))
        y += 25 * math.sin(math.radians(heading))
        side = -side


# --- stars ----------------------------------------------------------------------------------------------------------

SKY = Tone("#8fdcf2", "#4fb3d4")


def _rounded(knots: list[Knot], soften: float) -> list[Knot]:
    """Cuts each corner, so that the curve through the cuts has soft points."""
    out: list[Knot] = []
    for i, k in enumerate(knots):
        for j in (i - 1, (i + 1) % len(knots)):
            o = knots[j]
            out.append((k[0] + (o[0] - k[0]) * soften, k[1] + (o[1] - k[1]) * soften))
    return out


def star_picture(design: int) -> Ink:
    ink = Ink(49, 46, weight=2)
    STARS[design](ink, 24.5, 22.5)
    return ink


def _five(ink: Ink, x: float, y: float) -> None:
    ink.shape(_rounded(star(x, y + 1.8, 22.4, 10.9, 5), 0.1), STAR)
    for dx in (-4, 4):
        ink.flat(ellipse(x + dx, y + 1, 1.9, 3), LINE)
    ink.line([(x - 4.5, y + 6.5), (x, y + 9), (x + 4.5, y + 6.5)], 1.8)


def _sparkle(ink: Ink, x: float, y: float) -> None:
    y += 0.5
    ink.shape(star(x, y, 21, 7.2, 4), Tone("#fff3b0", "#ffd43b"))
    ink.flat(star(x, y, 11.5, 4.2, 4), "#ffffff")
    for dx, dy in ((14, -13), (-14, 13)):
        ink.shape(star(x + dx, y + dy, 5.8, 2.3, 4), SKY, depth=1)


def _eight(ink: Ink, x: float, y: float) -> None:
    y += 0.5
    ink.shape(star(x, y, 20.6, 12.5, 8), Tone("#ffb13b", "#ee7f1f"))
    ink.shape(ellipse(x, y, 8.4, 8.4, 14), STAR, depth=2)


def _paw_star(ink: Ink, x: float, y: float) -> None:
    ink.shape(_rounded(star(x, y + 1.8, 22.6, 12.8, 5), 0.2), SCARF)
    paw_print(ink, Affine().move(x, y + 4).scale(0.93), "#ffffff")


STARS = {1: _five, 2: _sparkle, 3: _eight, 4: _paw_star}


# --- advertisement --------------------------------------------------------------------------------------------------

def advert() -> Ink:
    """Dorvanquil: a tower on a lake by night, and someone on the way there with a lantern."""
    ink = Ink(181, 56)
    fill(ink, vertical(ink, (0, "#1b1f52"), (0.55, "#5a3b86"), (1, "#d9718a")))
    ink.flat(ellipse(32, 17, 9.5, 9.5, 16), "#fff2c4")
    ink.flat(ellipse(36, 14.5, 8.4, 8.4, 16), "#2c2a63")
    for x, y, r in ((64, 7, 0.8), (90, 5, 1), (120, 8, 0.8), (171, 9, 1), (10, 8, 0.8), (52, 15, 0.7), (140, 5, 0.7)):
        ink.flat(ellipse(x, y, r, r), "#ffffff", 0.9)
    ink.flat([(-10, 42), (12, 33), (40, 41), (80, 46), (120, 42), (160, 30), (195, 36), (195, 66, 1), (-10, 66, 1)], "#251a4d")
    for x, w, top in ((158, 7, 19), (168, 10, 10), (178, 6, 22)):
        ink.flat([(x - w / 2, 40, 1), (x - w / 2, top, 1), (x + w / 2, top, 1), (x + w / 2, 40, 1)], "#251a4d")
        ink.flat([(x - w / 2 - 1.4, top + 0.4, 1), (x, top - w, 1), (x + w / 2 + 1.4, top + 0.4, 1)], "#251a4d")
    ink.flat(ellipse(168, 17, 1.2, 1.8), "#ffd86b")
    ink.flat(ellipse(158, 25, 0.9, 1.4), "#ffd86b")
    ink.flat(ellipse(17, 30, 6, 6), "#ffd86b", 0.35)
    ink.flat([(9, 36, 1), (10, 29), (12, 27), (14, 29), (15, 36, 1)], "#120c2e")
    ink.flat(ellipse(17, 30.5, 1.5, 1.9), "#ffe9a6")
    style = 'font-family="Lobster Two" font-style="italic" font-weight="700" font-size="27" text-anchor="middle"'
    ink.raw(f'<text x="88" y="37" {style} fill="#1a1140" stroke="#1a1140" stroke-width="4" stroke-linejoin="round">Dorvanquil</text>')
    ink.raw(f'<text x="88" y="36" {style} fill="#ffe08a">Dorvanquil</text>')
    ink.raw('<text x="88" y="50.5" font-family="Liberation Sans" font-weight="700" font-size="7.6" letter-spacing="1.1" '
            'text-anchor="middle" fill="#ffffff">LA TORRE DEL LAGO</text>')
    return ink
