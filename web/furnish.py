#!/usr/bin/env python3
"""Puts the files of the page into one folder, made small for the way through the network.

    furnish.py assets ASSETS STAGE
    furnish.py page STAGE PAGE PROGRAM SITE

The first makes STAGE of ASSETS, the folder of the game's pictures and sounds. The second makes SITE of it, of PAGE, the
folder of the page's own files, and of PROGRAM. All but index.html, worker.js and manifest.json goes into a folder of SITE
whose name is the checksum of what is in it, so that files of two versions never meet.
"""

import base64
import gzip
import hashlib
import json
import re
import shutil
import subprocess
import sys
import tempfile
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
CONTENTS = "contents.json"  # of the stage: what pictures and sounds there are


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


def checksum(data: bytes):
    return base64.b64encode(hashlib.sha256(data).digest()).decode()


def esbuild(*arguments):
    return subprocess.run(["esbuild", "--minify", "--charset=utf8", *map(str, arguments)], check=True, capture_output=True).stdout


def furnish_program(program: Path, folder: Path):
    """The program packed, so that it comes small from servers that do not pack; plain for browsers that cannot unpack."""
    plain = program.read_bytes()
    packed = gzip.compress(plain, 9, mtime=0)
    (folder / "zarpi.bin").write_bytes(packed)
    (folder / "zarpi.wasm").write_bytes(plain)
    return {"packed": {"file": "zarpi.bin", "size": len(packed)}, "plain": {"file": "zarpi.wasm", "size": len(plain)}}


def furnish_scripts(page: Path, folder: Path, contents: dict):
    """All modules in one file, and in it what there is in the folder; the style."""
    style = esbuild(page / "style.css")
    (folder / "style.css").write_bytes(style)
    contents["style"] = {"file": "style.css", "integrity": f"sha256-{checksum(style)}"}
    with tempfile.TemporaryDirectory() as work:
        for module in page.glob("*.js"):
            shutil.copy(module, work)
        (Path(work) / "assets.json").write_text(json.dumps(contents, ensure_ascii=False))
        (folder / "main.js").write_bytes(esbuild("--bundle", "--format=esm", "--target=es2022", Path(work) / "main.js"))


def name_of(folder: Path):
    """The checksum of all files of a folder and their names."""
    digest = hashlib.sha256()
    for path in sorted(folder.rglob("*")):
        if path.is_file():
            digest.update(f"{path.relative_to(folder)} {hashlib.sha256(path.read_bytes()).hexdigest()}\n".encode())
    return digest.hexdigest()[:16]


def write_index(page: Path, folder: Path, site: Path):
    named = {name: esbuild("--format=iife", "--target=es2018", page / f"{name}.js") for name in ("whole", "watch")}
    named["look"] = esbuild(page / "look.css")
    named = {name: text.strip() for name, text in named.items()}
    values = {"folder": folder.name} | {name: text.decode() for name, text in named.items()}
    named |= {"main": (folder / "main.js").read_bytes(), "style": (folder / "style.css").read_bytes()}
    values |= {f"{name}-hash": f"sha256-{checksum(text)}" for name, text in named.items()}
    for name in ("index.html", "manifest.json"):
        (site / name).write_text(re.sub(r"{{([\w-]+)}}", lambda found: values[found[1]], (page / name).read_text()))


def write_worker(page: Path, folder: Path, site: Path):
    """The worker keeps all files but the music and the largest pictures, which it keeps when they have been asked for."""
    kept, later = {}, {}
    for path in sorted(folder.rglob("*")):
        name = path.relative_to(folder).as_posix()
        is_large = path.stem.endswith(f"@{SIZES[-1]}x") or path.stem.startswith("screen-")
        is_later = path.parent.name == MUSIC or is_large or name == "zarpi.wasm"
        if path.is_file():
            (later if is_later else kept)[name] = checksum(path.read_bytes())
    lists = [f"const {name} = {json.dumps(value, ensure_ascii=False)};" for name, value in
             (("VERSION", folder.name), ("FILES", kept), ("LATER", later))]
    (site / "worker.js").write_text("\n".join(lists) + "\n\n" + (page / "worker.js").read_text())


def furnish_assets(assets: Path, stage: Path):
    shutil.rmtree(stage, ignore_errors=True)
    stage.mkdir(parents=True)
    contents = {"pictures": furnish_pictures(assets, stage), "sounds": furnish_sounds(assets, stage)}
    furnish_fonts(stage)
    (stage / CONTENTS).write_text(json.dumps(contents, ensure_ascii=False))


def furnish_page(stage: Path, page: Path, program: Path, site: Path):
    shutil.rmtree(site, ignore_errors=True)
    folder = Path(shutil.copytree(stage, site / "version"))
    contents = json.loads((folder / CONTENTS).read_text())
    (folder / CONTENTS).unlink()
    contents["program"] = furnish_program(program, folder)
    furnish_scripts(page, folder, contents)
    folder = folder.rename(site / name_of(folder))
    write_index(page, folder, site)
    write_worker(page, folder, site)


deed, *paths = sys.argv[1:]
{"assets": furnish_assets, "page": furnish_page}[deed](*map(Path, paths))
