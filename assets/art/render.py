"""Draws every picture of the game: `python3 render.py FOLDER`, FOLDER being the one that holds game/ and forms/.

Each picture is composed as SVG, rendered at 100 % and 200 %, and written in the format that its place asks for.
"""

from __future__ import annotations

import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Callable, Iterator, NamedTuple

from dialogs import STARS, WASHES, advert, application_icon, dialog_icon, head_icon, star_picture, wash
from diploma import curtain, diploma
from ink import Ink
from poses import POSES
from rig import draw
from scenes import STATIONS, background, cliff, ledge, turf_strip
from title import title

LEDGE_TOP = {"Zarpi5": 164.0}     # the pose that stands 120 twips lower, and where the ledge is in its picture


class Picture(NamedTuple):
    path: str                     # without the ending
    draw: Callable[[], Ink]
    ending: str                   # of the picture at 100 %
    double: str = ""              # of the one at 200 %; empty: none is kept
    quality: int = 88


def hero(name: str, ground: str = "#ffffff") -> Ink:
    pose = POSES[name]
    small = name == "small"
    ink = Ink(*pose.size, ground, weight=1.35 if small else 2.3, depth=1.3 if small else 3.0)
    if name in LEDGE_TOP:
        turf_strip(ink, LEDGE_TOP[name])
    draw(pose, ink)
    return ink


def pictures() -> Iterator[Picture]:
    for name in POSES:
        if name.startswith("Zarpi"):
            yield Picture(f"game/{name}", lambda n=name: hero(n), ".bmp", ".png")
    yield Picture("forms/falling", lambda: hero("falling"), ".png", ".png")
    yield Picture("forms/ground", lambda: hero("Zarpi8"), ".png", ".png")
    yield Picture("forms/standing", lambda: hero("Zarpi1"), ".png", ".png")
    yield Picture("forms/small", lambda: hero("small", ""), ".png", ".png")
    for number in STATIONS:
        yield Picture(f"forms/fondo{number}", lambda n=number: background(n), ".jpg", ".jpg")
    yield Picture("forms/ledge", ledge, ".jpg", ".jpg", 93)
    yield Picture("forms/cliff", cliff, ".jpg", ".jpg", 93)
    yield Picture("forms/title", title, ".jpg", ".jpg", 90)
    for players in (1, 2):
        yield Picture(f"forms/diploma{players}", lambda n=players: diploma(n), ".jpg", ".jpg", 92)
    yield Picture("forms/curtain", curtain, ".jpg", ".jpg")
    for design in STARS:
        yield Picture(f"forms/star{design}", lambda n=design: star_picture(n), ".png", ".png")
    yield Picture("forms/publi", advert, ".jpg", ".jpg", 93)
    for name in WASHES:
        yield Picture(f"forms/{name}", lambda n=name: wash(n), ".jpg")
    yield Picture("forms/icon", lambda: head_icon(32), ".png", ".png")
    yield Picture("forms/icondialogo", dialog_icon, ".png", ".png")
    yield Picture("forms/icon256", application_icon, ".png")


def write(picture: Picture, top: Path, work: Path) -> None:
    source = work / "picture.svg"
    source.write_text(picture.draw().svg(), encoding="utf-8")
    for zoom, suffix, ending in ((1, "", picture.ending), (2, "@2x", picture.double)):
        if not ending:
            continue
        plain = work / "picture.png"
        subprocess.run(["rsvg-convert", "-z", str(zoom), "-o", str(plain), str(source)], check=True)
        target = top / (picture.path + suffix + ending)
        target.parent.mkdir(parents=True, exist_ok=True)
        convert(plain, target, picture.quality - (8 if zoom == 2 else 0))


def convert(plain: Path, target: Path, quality: int) -> None:
    """Leaves out dates and names of programs, so that the same drawing gives the same bytes."""
    command = ["convert", str(plain), "-strip"]
    kinds = {
        ".bmp": ["-background", "white", "-alpha", "remove", "-alpha", "off", "-type", "TrueColor", f"BMP3:{target}"],
        ".jpg": ["-background", "white", "-alpha", "remove", "-alpha", "off", "-sampling-factor", "4:4:4" if quality > 84 else "4:2:0",
                 "-quality", str(quality), f"JPEG:{target}"],
        ".png": ["-depth", "8", "-define", "png:compression-level=9", "-define", "png:exclude-chunks=date,time", f"PNG:{target}"],
    }
    subprocess.run(command + kinds[target.suffix], check=True)


def main() -> None:
    top = Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as work:
        for picture in pictures():
            write(picture, top, Path(work))


if __name__ == "__main__":
    main()
