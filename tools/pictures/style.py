"""The colours of all pictures, and the few shapes that they share."""

from geometry import khatam, polar, rounded, sector
from svg import line, polygon

NIGHT = "#14323d"
DEEP = "#1a424d"
TEAL = "#1f5c63"
JADE = "#3f8f83"
MIST = "#bfdcd2"
IVORY = "#f7f1e1"
SAND = "#e6d3a7"
GOLD = "#c79a3b"
AMBER = "#e3bd62"
CLAY = "#b4593c"
WATER = "#8fc3c0"

# A wife, a daughter and a son: an eighth, seven twenty-fourths and seven twelfths of the circle.
SHARES = ((1 / 8, AMBER), (7 / 24, CLAY), (7 / 12, IVORY))


def shared_disc(drawing, centre, radius, gap, background):
    """A disc divided among the heirs of SHARES, the first share beginning at the top. The gaps between
    them show the background."""
    start = -90
    for share, colour in SHARES:
        drawing.path(sector(centre, 0, radius, start, start + 360 * share), colour)
        start += 360 * share
    cuts = []
    for share, _ in SHARES:
        cuts += line(centre, polar(centre, radius + 0.5, start))
        start += 360 * share
    drawing.path(cuts, stroke=background, width=gap)


def plate(drawing, fill, edge):
    """The background of the small ornaments: both pictures of a pair cover the same background."""
    drawing.path(rounded(0.5, 0.5, drawing.width - 0.5, drawing.height - 0.5, 6), fill, edge, 1)


def eight_star(drawing, centre, radius, fill, stroke="none", width=0, turn=-90):
    drawing.path(polygon(khatam(centre, radius, turn)), fill, stroke, width)
