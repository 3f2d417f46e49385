"""Every colour of the game's pictures, by what it is for."""

from typing import NamedTuple


class Tone(NamedTuple):
    """A colour with the one darker step that shades it."""

    base: str
    shade: str


# The hero: six colours. LINE is the outline, the nose, the tufts and the marks of the fur.
LINE = "#3a2117"
FUR = Tone("#f6a22f", "#dd7d1d")
CREAM = Tone("#fff3d9", "#f0d6a4")
SCARF = Tone("#1fa79c", "#13807d")
TONGUE = Tone("#ee6a6a", "#c9464f")
WHITE = Tone("#ffffff", "#dfe8ee")

TUFT = Tone("#4b2c1e", "#3a2117")
GLOOM = Tone("#8f93a8", "#6c7088")
DUST = Tone("#efe3cf", "#d9c6a5")
STAR = Tone("#ffd43b", "#f2a71b")
FLASH = Tone("#fff6c9", "#ffe98f")
SWEAT = Tone("#8fdcf2", "#4fb3d4")
SHADOW = "#c9c3b8"
SHADE = "#7a3d0a"       # below paper figures

# The place: rock and turf of the ledge and of the cliff.
TURF = Tone("#7cc8a6", "#55a98f")
PLATE = "#0000ff"      # of the pusher, as the window paints it
ROCK = Tone("#5fa7a8", "#3f8590")
ROCK_DEEP = "#2f6c7b"
ROCK_LIGHT = "#93cbc5"

# The washes behind the dialogs lie close to this orange.
WASH = "#feb440"
WASH_LIGHT = "#ffc86b"
WASH_DEEP = "#f7a52f"

GOLD = Tone("#e3b341", "#b07f1d")
NAVY = "#1d2f6f"
CLOTH = Tone("#a3182f", "#5e0b1e")
