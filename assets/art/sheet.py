"""Lays all poses and the small icons side by side: `python3 sheet.py FOLDER`, FOLDER being the one that holds game/ and icons/.

The sheet is `sheet.png` beside this program. Look at it before and after a change of a pose.
"""

from __future__ import annotations

import subprocess
import sys
import tempfile
from pathlib import Path

from icons import SIZES
from poses import GROUND, LEDGE, POSES

GROUNDS = "#d5e2ee"
SHARE = "70%"          # of twice their size; all poses alike, so that their heads can be compared


def strip(pictures: list[Path], across: int, target: Path, pixels: bool = False) -> Path:
    """Pictures with their names, `across` in a row."""
    resize = ("-filter", "point", "-resize", "116x116") if pixels else ("-resize", SHARE)
    named = [word for p in pictures for word in ("-label", p.name.removesuffix(".png").removesuffix("@2x"), "(", str(p), *resize, ")")]
    subprocess.run(["montage", "-background", GROUNDS, "-font", "Liberation-Sans", "-pointsize", "15", *named, "-tile", f"{across}x", "-geometry", "+4+4", str(target)], check=True)
    return target


def large(folder: Path, name: str) -> Path:
    return folder / ("" if name.startswith("Zarpi") else "forms") / f"{name}@2x.png"


def main() -> None:
    top = Path(sys.argv[1])
    standing = [large(top / "game", name) for name, pose in POSES.items() if pose.size == LEDGE]
    others = [large(top / "game", name) for name, pose in POSES.items() if pose.size == GROUND] + [large(top / "game", "falling")]
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        icons = []
        for size in SIZES[:6]:
            icon = work / f"{size}.png"
            source = top / "icons" / "hicolor" / f"{size}x{size}" / "apps" / "zarpi.png"
            subprocess.run(["convert", str(source), "-background", "white", "-flatten", str(icon)], check=True)
            icons.append(icon)
        parts = [strip(standing, 5, work / "standing.png"), strip(others, 3, work / "others.png"), strip(icons, 6, work / "icons.png", pixels=True)]
        target = Path(__file__).with_name("sheet.png")
        subprocess.run(["convert", "-background", GROUNDS, "-gravity", "center", *map(str, parts), "-append", "-strip", "-define",
                        "png:exclude-chunks=date,time", str(target)], check=True)
        subprocess.run(["pngquant", "--speed", "1", "--strip", "--force", "--output", str(target), "48", str(target)], check=True)


if __name__ == "__main__":
    main()
