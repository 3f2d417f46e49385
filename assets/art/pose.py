"""What a pose is made of. Points are pixels of the picture; angles are degrees, clockwise."""

from __future__ import annotations

from dataclasses import dataclass, field

from geometry import Point


@dataclass(frozen=True)
class Hand:
    """A paw: where it is, how the arm swings out on the way there, where the fingers point."""

    at: Point
    bend: float = 0
    angle: float | None = None      # None: the fingers go on in the arm's own direction
    kind: str = "open"              # "open", "fist", "press": flat against a wall on his right, at angle 0
    layer: str = "front"            # "back": behind the body, "front": before it, "face": before the head
    elbow: Point | None = None      # where the arm is bent sharply; it then begins at the edge of the body


@dataclass(frozen=True)
class Foot:
    """A foot: the middle of its sole, how the leg swings out, its tilt, and which way the toes go (1: right)."""

    at: Point
    bend: float = 0
    angle: float = 0
    toes: float = 1
    sole: bool = False              # seen from below, as when he sits
    knee: Point | None = None       # where the leg is bent sharply


@dataclass(frozen=True)
class Eyes:
    kind: str = "open"              # a row of face.EYES
    look: Point = (0, 0)            # where the pupils go, -1 to 1
    size: float = 1
    pupil: float = 1
    lid: float = 0                  # how far the upper lid comes down, 0 to 1
    slant: float = 0                # lid and brow: positive is angry, negative is afraid
    brow: float | None = None       # height over the eye; None: no brow


@dataclass(frozen=True)
class Face:
    eyes: Eyes = Eyes()
    mouth: str = "smile"            # a row of face.MOUTHS
    turn: float = 0.5               # -1: looks left, 0: at us, 1: right
    nod: float = 0                  # positive: down


@dataclass(frozen=True)
class Pose:
    size: tuple[int, int]
    hips: Point
    neck: Point
    head: Point                     # the middle of the face
    hands: tuple[Hand, Hand]        # left and right as we see them
    feet: tuple[Foot, Foot]
    face: Face = Face()
    tilt: float = 0                 # of the head
    ears: tuple[float, float] = (0, 0)   # positive: folded outwards and down
    scarf: tuple[Point, ...] = ()        # the line of its flying end
    tail: tuple[Point, ...] = ()
    scale: float = 1
    head_size: float = 1
    back: bool = False              # seen from behind
    squash: Point = (1, 1)          # of the head
    under: tuple[tuple, ...] = ()   # effects behind him: (name of effects.EFFECTS, arguments ...)
    over: tuple[tuple, ...] = field(default=())   # effects before him
