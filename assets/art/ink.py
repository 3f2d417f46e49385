"""The one way in which every shape of the game is drawn: flat colour, one darker step, one outline."""

from __future__ import annotations

from typing import Callable, Sequence

from geometry import Knot, closed, number, opened
from palette import LINE, SHADE, Tone


class Ink:
    """Collects the elements of one SVG picture.

    The outline keeps its weight whatever the size of the figure, so all pictures look to be by one hand.
    """

    def __init__(self, width: float, height: float, ground: str = "", weight: float = 2.3, depth: float = 3.0):
        self.width, self.height = width, height
        self.weight, self.depth = weight, depth
        self._body: list[str] = []
        self._defs: list[str] = []
        self._count = 0
        if ground:
            self.raw(f'<rect width="{number(width)}" height="{number(height)}" fill="{ground}"/>')

    def raw(self, element: str) -> None:
        self._body.append(element)

    def define(self, template: str) -> str:
        """Adds a definition; `{id}` in the template is replaced by the name that is returned."""
        self._count += 1
        name = f"d{self._count}"
        self._defs.append(template.replace("{id}", name))
        return name

    def shape(self, knots: Sequence[Knot], tone: Tone, edge: Sequence[Knot] | None = None,
              outline: bool = True, depth: float | None = None) -> None:
        """A shaded shape. `edge` outlines only a part of it, where it grows out of another shape."""
        path = closed(knots)
        self.flat_shaded(path, tone, self.depth if depth is None else depth)
        if outline:
            self.line(edge, self.weight) if edge is not None else self.stroke(path, self.weight)

    def flat_shaded(self, path: str, tone: Tone, depth: float) -> None:
        """Light falls from the upper left: what the shape, moved that way, leaves bare is in shade."""
        if not depth or tone.base == tone.shade:
            self.raw(f'<path d="{path}" fill="{tone.base}"/>')
            return
        clip = self.define(f'<clipPath id="{{id}}"><path d="{path}"/></clipPath>')
        shift = f"translate({number(-depth * 0.8)} {number(-depth)})"
        self.raw(f'<g clip-path="url(#{clip})"><path d="{path}" fill="{tone.shade}"/>'
                 f'<path d="{path}" transform="{shift}" fill="{tone.base}"/></g>')

    def flat(self, knots: Sequence[Knot], colour: str, opacity: float = 1) -> None:
        self.raw(f'<path d="{closed(knots)}" fill="{colour}" opacity="{number(opacity)}"/>')

    def clipped(self, knots: Sequence[Knot], inside: Sequence[Knot], colour: str) -> None:
        """A flat shape that shows only where `inside` is."""
        clip = self.define(f'<clipPath id="{{id}}"><path d="{closed(inside)}"/></clipPath>')
        self.raw(f'<path clip-path="url(#{clip})" d="{closed(knots)}" fill="{colour}"/>')

    def line(self, knots: Sequence[Knot], weight: float | None = None, colour: str = LINE) -> None:
        self.stroke(opened(knots), self.weight if weight is None else weight, colour)

    def stroke(self, path: str, weight: float, colour: str = LINE) -> None:
        self.raw(f'<path d="{path}" fill="none" stroke="{colour}" stroke-width="{number(weight)}" '
                 'stroke-linecap="round" stroke-linejoin="round"/>')

    def svg(self, overscan: float = 0) -> str:
        """`overscan` adds a margin all round, to be cut off the rendered picture: what is blurred would pale towards its edges."""
        width, height = (number(side + 2 * overscan) for side in (self.width, self.height))
        box = f'viewBox="{number(-overscan)} {number(-overscan)} {width} {height}"'
        return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="{width}" height="{height}" {box}>'
                f'<defs>{"".join(self._defs)}</defs>{"".join(self._body)}</svg>\n')


class _Edge(Ink):
    """Leaves of a figure its outlines alone, broader and in one colour."""

    def __init__(self, under: Ink, grow: float, colour: str):
        super().__init__(under.width, under.height, weight=under.weight, depth=under.depth)
        self._under, self._grow, self._colour = under, grow, colour

    def raw(self, element: str) -> None:
        pass

    def stroke(self, path: str, weight: float, colour: str = LINE) -> None:
        self._under.stroke(path, weight + 2 * self._grow, self._colour)


def sticker(ink: Ink, figure: Callable[[Ink], None], paper: float, line: float = 0, shadow: float = 0) -> None:
    """A figure cut out of white paper: it stands out from any ground. Its outer line grows by `line`; round that is the paper."""
    if shadow:
        ink.raw(f'<g transform="translate({number(shadow * 0.8)} {number(shadow)})" opacity="0.5">')
        figure(_Edge(ink, line + paper, SHADE))
        ink.raw("</g>")
    figure(_Edge(ink, line + paper, "#ffffff"))
    if line:
        figure(_Edge(ink, line, LINE))
    figure(ink)
