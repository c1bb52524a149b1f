"""Writes drawings as SVG, no more of it than Qt's SVG module knows: groups, paths, plain fills and
strokes, linear and radial gradients."""

from pathlib import Path


def number(value):
    """Two decimals at most, so that the same drawing gives the same bytes."""
    text = f"{value:.2f}".rstrip("0").rstrip(".")
    return "0" if text in ("-0", "") else text


def path_data(outline):
    """An outline, a list of (command, points), as the text of a path."""
    parts = []
    for command, points in outline:
        parts.append(command + " ".join(number(v) for point in points for v in point))
    return "".join(parts)


def polygon(points):
    return [("M", [points[0]])] + [("L", [p]) for p in points[1:]] + [("Z", [])]


def line(*points):
    return [("M", [points[0]])] + [("L", [p]) for p in points[1:]]


class Drawing:
    """A picture of width by height units; one unit is one pixel at 100 percent."""

    def __init__(self, width, height):
        self.width, self.height = width, height
        self.lines = []
        self.defs = []

    def path(self, outline, fill="none", stroke="none", width=0, cap="butt", join="miter", evenodd=False,
             opacity=1):
        style = f' fill="{fill}"'
        if evenodd:
            style += ' fill-rule="evenodd"'
        if stroke != "none":
            style += f' stroke="{stroke}" stroke-width="{number(width)}"'
            style += f' stroke-linecap="{cap}" stroke-linejoin="{join}"'
        if opacity != 1:
            style += f' opacity="{number(opacity)}"'
        self.lines.append(f'<path{style} d="{path_data(outline)}"/>')

    def gradient(self, name, kind, place, stops):
        """A gradient over the units of the picture, its stops being (offset, colour, opacity)."""
        where = " ".join(f'{key}="{number(value)}"' for key, value in place.items())
        body = "".join(f'<stop offset="{number(at)}" stop-color="{colour}" stop-opacity="{number(opacity)}"/>'
                       for at, colour, opacity in stops)
        self.defs.append(f'<{kind} id="{name}" gradientUnits="userSpaceOnUse" {where}>{body}</{kind}>')
        return f"url(#{name})"

    def text(self):
        width, height = number(self.width), number(self.height)
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
                f'width="{width}" height="{height}" viewBox="0 0 {width} {height}">')
        defs = ["<defs>", *self.defs, "</defs>"] if self.defs else []
        return "\n".join([head, *defs, *self.lines, "</svg>", ""])

    def save(self, file):
        Path(file).parent.mkdir(parents=True, exist_ok=True)
        Path(file).write_text(self.text(), encoding="utf-8", newline="\n")
