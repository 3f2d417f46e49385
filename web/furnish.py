#!/usr/bin/env python3
"""Puts the files of the page into one folder, pictures, sounds and fonts made small for the way through the network.

    furnish.py ASSETS PAGE PROGRAM SITE

ASSETS is the folder of the game's pictures and sounds, PAGE that of the page's own files, PROGRAM the program. Writes
SITE/assets.json, which tells the page what there is, and the list of files into SITE/worker.js.
"""

import hashlib
import json
import shutil
import subprocess
import sys
from pathlib import Path

from fontTools import subset
from PIL import Image

FONTS = Path("/usr/share/fonts/truetype/liberation")
# The characters of Windows-1252, all that the game can show; its letters in their boxes are capitals.
CHARACTERS = bytes(code for code in range(32, 256) if code not in (127, 129, 141, 143, 144, 157)).decode("cp1252")
CAPITALS = "ABCDEFGHIJKLMNÑOPQRSTUVWXYZÁÉÍÓÚ?"
FONT_FILES = {
    "sans": ("LiberationSans-Regular.ttf", CHARACTERS),
    "sans-bold": ("LiberationSans-Bold.ttf", CHARACTERS),
    "mono-bold": ("LiberationMono-Bold.ttf", CAPITALS),
    "serif-bold": ("LiberationSerif-Bold.ttf", CHARACTERS),
}
SIZES = (1, 2, 4)  # times that of the design
QUALITY = {1: 82, 2: 82, 4: 75}
ICON_SIZES = (32, 256)
MUSIC = "music"  # the folder of what is streamed
SOUND_QUALITY = "3"  # of Vorbis, about 64 kbit/s for one channel


def picture_sources(assets: Path):
    """Name and path of each picture of single size, those stored with forms and those opened by name."""
    for path in sorted(assets.glob("game/forms/*")) + sorted(assets.glob("game/*.bmp")):
        if "@" not in path.stem:
            yield path.stem, path


def versions(path: Path):
    """The files of a picture by their sizes, those that there are."""
    larger = {size: list(path.parent.glob(f"{path.stem}@{size}x.*")) for size in SIZES}
    return {1: path} | {size: files[0] for size, files in larger.items() if files}


def write_webp(source: Path, target: Path, quality: int):
    with Image.open(source) as image:
        has_alpha = image.mode in ("RGBA", "P", "LA")
        image.convert("RGBA" if has_alpha else "RGB").save(target, "WEBP", quality=quality, method=6)
        return image.size


def furnish_pictures(assets: Path, site: Path):
    folder = site / "pictures"
    folder.mkdir()
    for size in ICON_SIZES:
        shutil.copy(assets / f"icons/hicolor/{size}x{size}/apps/zarpi.png", folder / f"icon{size}.png")
    for path in sorted(assets.glob("icons/web/*")):
        shutil.copy(path, folder)
    pictures = {}
    for name, path in picture_sources(assets):
        files = {size: f"pictures/{name}@{size}x.webp" for size in versions(path)}
        sizes = {size: write_webp(file, site / files[size], QUALITY[size]) for size, file in versions(path).items()}
        width, height = sizes[1]
        pictures[name] = {"width": width, "height": height, "files": files}
    return pictures


def furnish_sounds(assets: Path, site: Path):
    """The sounds and the music, compressed alike, by the names that the game uses."""
    sounds = {}
    (site / "sounds").mkdir()
    for path in sorted(assets.glob("game/*.wav")):
        sounds[path.name] = f"sounds/{path.stem}.ogg"
        encode = ["oggenc", "--quiet", "--quality", SOUND_QUALITY, "--serial", "1", "--output", site / sounds[path.name], path]
        subprocess.run(encode, check=True)
    (site / MUSIC).mkdir()
    for path in sorted(assets.glob("game/*.ogg")):
        sounds[path.stem + ".mid"] = f"{MUSIC}/{path.name}"
        shutil.copy(path, site / MUSIC)
    return sounds


def furnish_fonts(site: Path):
    (site / "fonts").mkdir()
    for name, (file, characters) in FONT_FILES.items():
        options = subset.Options(flavor="woff2", hinting=False, layout_features=["kern"])
        options.drop_tables += ["FFTM"]
        font = subset.load_font(str(FONTS / file), options)
        subsetter = subset.Subsetter(options)
        subsetter.populate(text=characters)
        subsetter.subset(font)
        subset.save_font(font, str(site / "fonts" / f"{name}.woff2"), options)
    write_stars(site / "fonts" / "stars.woff2")


def write_stars(path: Path):
    """A font in which the dots that browsers show of a password are stars."""
    options = subset.Options(flavor="woff2", hinting=False, layout_features=[])
    options.drop_tables += ["FFTM"]
    font = subset.load_font(str(FONTS / "LiberationSans-Regular.ttf"), options)
    dots = {0x2022: "asterisk", 0x25CF: "asterisk"}
    for table in font["cmap"].tables:
        table.cmap = dict(dots)
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=dots)
    subsetter.subset(font)
    subset.save_font(font, str(path), options)


def write_worker(page: Path, site: Path):
    """The worker keeps all files but the music and the largest pictures, which it keeps when they have been asked for."""
    files = sorted(path for path in site.rglob("*") if path.is_file())
    digest = hashlib.sha256()
    for path in files:
        digest.update(path.read_bytes())
    kept = [path for path in files if path.parent.name != MUSIC and not path.stem.endswith(f"@{SIZES[-1]}x")]
    names = ["./"] + [path.relative_to(site).as_posix() for path in kept]
    head = f'const VERSION = "{digest.hexdigest()[:16]}";\nconst FILES = {json.dumps(names, ensure_ascii=False)};\n\n'
    (site / "worker.js").write_text(head + (page / "worker.js").read_text())


def main():
    assets, page, program, site = map(Path, sys.argv[1:])
    shutil.rmtree(site, ignore_errors=True)
    site.mkdir(parents=True)
    for path in sorted(page.iterdir()):
        if path.suffix in (".html", ".css", ".js", ".json") and path.name != "worker.js":
            shutil.copy(path, site)
    shutil.copy(program, site / "zarpi.wasm")
    contents = {"pictures": furnish_pictures(assets, site), "sounds": furnish_sounds(assets, site)}
    (site / "assets.json").write_text(json.dumps(contents, ensure_ascii=False))
    furnish_fonts(site)
    write_worker(page, site)


main()
