"""Draws every picture of the game: `python3 render.py FOLDER [NAME ...]`, FOLDER being the one that holds game/ and icons/.

With names, only the pictures whose path without the ending is one of them (`game/forms/ledge`) are drawn.

Each picture is composed as SVG, rendered at 100 % and at what larger sizes are kept of it ("NAME@2x", "NAME@4x"), and
written in the format that its place asks for.
"""

from __future__ import annotations

import hashlib
import struct
import subprocess
import sys
import tempfile
import zlib
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

from dialogs import STARS, WASHES, advert, star_picture, wash
from diploma import curtain, diploma
from icons import DIALOG_SIZES, SIZES, WEB_SIZES, application_icon, dialog_icon, maskable_icon
from ink import Ink, sticker
from poses import POSES
from rig import draw
from scenes import STATIONS, background, cliff, ledge, turf_strip
from title import title

LEDGE_TOP = {"Zarpi5": 164.0}     # the pose that stands 120 twips lower, and where the ledge is in its picture
OVERSCAN = 16                     # rendered beyond each edge, and cut off
COARSER = {1: 0, 2: 8, 4: 20}     # how much less quality a JPEG needs at each size: its faults grow small with its pixels
ALL, TWICE, ONCE = (1, 2, 4), (1, 2), (1,)


class Picture(NamedTuple):
    path: str                     # without the ending
    draw: Callable[[], Ink]
    ending: str                   # of the picture at 100 %
    zooms: tuple[int, ...] = ALL
    quality: int = 88


def hero(name: str, ground: str = "#ffffff") -> Ink:
    pose = POSES[name]
    ink = Ink(*pose.size, ground)
    if name in LEDGE_TOP:
        turf_strip(ink, LEDGE_TOP[name])
    draw(pose, ink)
    return ink


def small_hero() -> Ink:
    pose = POSES["small"]
    ink = Ink(*pose.size, weight=1.25, depth=1.2)
    sticker(ink, lambda on: draw(pose, on), 1.5, 0.1, 0.9)
    return ink


def pictures() -> Iterator[Picture]:
    for name in POSES:
        if name.startswith("Zarpi"):
            yield Picture(f"game/{name}", lambda n=name: hero(n), ".bmp")
    yield Picture("game/forms/falling", lambda: hero("falling"), ".png")
    yield Picture("game/forms/ground", lambda: hero("Zarpi8"), ".png")
    yield Picture("game/forms/standing", lambda: hero("Zarpi1"), ".png")
    yield Picture("game/forms/small", small_hero, ".png")
    for number in STATIONS:
        yield Picture(f"game/forms/fondo{number}", lambda n=number: background(n), ".jpg")
    yield Picture("game/forms/ledge", ledge, ".jpg", quality=93)
    yield Picture("game/forms/cliff", cliff, ".jpg", quality=93)
    yield Picture("game/forms/title", title, ".jpg", quality=90)
    for players in (1, 2):
        yield Picture(f"game/forms/diploma{players}", lambda n=players: diploma(n), ".jpg", quality=92)
    yield Picture("game/forms/curtain", curtain, ".jpg")
    for design in STARS:
        yield Picture(f"game/forms/star{design}", lambda n=design: star_picture(n), ".png")
    yield Picture("game/forms/publi", advert, ".jpg", quality=93)
    for name in WASHES:
        yield Picture(f"game/forms/{name}", lambda n=name: wash(n), ".jpg", TWICE)
    for suffix, size in (("", 32), ("@2x", 64)):
        yield Picture(f"game/forms/icon{suffix}", lambda n=size: application_icon(n), ".png", ONCE)
        yield Picture(f"game/forms/icondialogo{suffix}", lambda n=size: dialog_icon(n), ".png", ONCE)
    for size in SIZES:
        yield Picture(f"icons/hicolor/{size}x{size}/apps/zarpi", lambda n=size: application_icon(n), ".png", ONCE)
    for size in WEB_SIZES:
        yield Picture(f"icons/web/icon{size}", lambda n=size: application_icon(n), ".png", ONCE)
    yield Picture(f"icons/web/maskable{WEB_SIZES[-1]}", lambda: maskable_icon(WEB_SIZES[-1]), ".png", ONCE)


# Icons of several sizes in one file: name, drawing, sizes.
COLLECTIONS = (("icons/zarpi.ico", application_icon, SIZES), ("icons/dialogo.ico", dialog_icon, DIALOG_SIZES))


def rendered(ink: Ink, zoom: int, work: Path) -> Path:
    source, plain = work / "picture.svg", work / "picture.png"
    source.write_text(ink.svg(OVERSCAN), encoding="utf-8")
    subprocess.run(["rsvg-convert", "-z", str(zoom), "-o", str(plain), str(source)], check=True)
    subprocess.run(["convert", str(plain), "-shave", f"{OVERSCAN * zoom}x{OVERSCAN * zoom}", "+repage", str(plain)], check=True)
    return plain


def write(picture: Picture, top: Path, work: Path) -> None:
    ink = picture.draw()
    for zoom in picture.zooms:
        suffix = "" if zoom == 1 else f"@{zoom}x"
        ending = ".png" if zoom > 1 and picture.ending == ".bmp" else picture.ending
        target = top / (picture.path + suffix + ending)
        target.parent.mkdir(parents=True, exist_ok=True)
        convert(rendered(ink, zoom, work), target, picture.quality - COARSER[zoom], picture.ending == ".bmp")
        if ending == ".png" and (zoom == 4 or picture.path.startswith("icons/web")):
            subprocess.run(["pngquant", "--speed", "1", "--strip", "--force", "--output", str(target), "256", str(target)], check=True)
        if ending != picture.ending:
            tell_source(target, top / (picture.path + picture.ending))


def tell_source(large: Path, picture: Path) -> None:
    """The game leaves a larger copy alone when the picture beside it is not the one that the copy was drawn with."""
    head = 33                     # signature and IHDR; the text stands before the pixels, so that it is read without them
    text = b"tEXtsource\0sha1:" + hashlib.sha1(picture.read_bytes()).hexdigest().encode()
    chunk = struct.pack(">I", len(text) - 4) + text + struct.pack(">I", zlib.crc32(text))
    plain = large.read_bytes()
    large.write_bytes(plain[:head] + chunk + plain[head:])


def convert(plain: Path, target: Path, quality: int, opaquely: bool) -> None:
    """Leaves out dates and names of programs, so that the same drawing gives the same bytes."""
    command = ["convert", str(plain), "-strip"]
    opaque = ["-background", "white", "-alpha", "remove", "-alpha", "off"]
    small = ["-depth", "8", "-define", "png:compression-level=9", "-define", "png:exclude-chunks=date,time"]
    kinds = {
        ".bmp": [*opaque, "-type", "TrueColor", f"BMP3:{target}"],
        ".jpg": [*opaque, "-sampling-factor", "4:4:4" if quality > 84 else "4:2:0", "-quality", str(quality), f"JPEG:{target}"],
        ".png": [*opaque, *small, f"PNG24:{target}"] if opaquely else [*small, f"PNG32:{target}"],
    }
    subprocess.run(command + kinds[target.suffix], check=True)


def write_icons(target: Path, draw_size: Callable[[int], Ink], sizes: tuple[int, ...], work: Path) -> None:
    plain = []
    for size in sizes:
        plain.append(rendered(draw_size(size), 1, work).rename(work / f"icon{size}.png"))
    subprocess.run(["convert", *map(str, plain), "-strip", str(target)], check=True)


def main() -> None:
    top, wanted = Path(sys.argv[1]), sys.argv[2:]
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        for picture in pictures():
            if not wanted or picture.path in wanted:
                write(picture, top, work)
        for name, draw_size, sizes in COLLECTIONS:
            if not wanted or name in wanted:
                write_icons(top / name, draw_size, sizes, work)


if __name__ == "__main__":
    main()
