"""Text as filled outlines: shaped by HarfBuzz, drawn with the glyphs of the font.

Qt 6.4 misplaces the joined letters of Nastaliq and a user need not have the fonts, so the writing is
turned into outlines here, once and for all.
"""

import json
import subprocess
import unicodedata

from fontTools.misc.bezierTools import calcCubicBounds, calcQuadraticBounds
from fontTools.pens.basePen import BasePen
from fontTools.ttLib import TTFont


class OutlinePen(BasePen):
    """Collects the outline of a glyph at (x, y), with y growing downwards."""

    def __init__(self, glyphs, x, y, scale, outline):
        super().__init__(glyphs)
        self.x, self.y, self.scale, self.outline = x, y, scale, outline

    def put(self, command, *points):
        placed = [((self.x + px) * self.scale, -(self.y + py) * self.scale) for px, py in points]
        self.outline.append((command, placed))

    def _moveTo(self, p):
        self.put("M", p)

    def _lineTo(self, p):
        self.put("L", p)

    def _qCurveToOne(self, p1, p2):
        self.put("Q", p1, p2)

    def _curveToOne(self, p1, p2, p3):
        self.put("C", p1, p2, p3)

    def _closePath(self):
        self.put("Z")


class Face:
    """A font and the language that it writes."""

    def __init__(self, path, language):
        self.path, self.language = path, language
        font = TTFont(path)
        self.units = font["head"].unitsPerEm
        self.names = font.getGlyphOrder()
        self.glyphs = font.getGlyphSet()

    def shape(self, text):
        """The glyphs of the text from left to right, each with its offset and its advance."""
        command = ["hb-shape", "--output-format=json", "--no-glyph-names", "--direction=rtl", "--script=arab",
                   "--language=" + self.language, self.path, text]
        shaped = json.loads(subprocess.run(command, check=True, capture_output=True).stdout)
        if any(g["g"] == 0 for g in shaped):
            raise ValueError(f"{self.path} lacks a letter of {text}")
        return shaped

    def outline(self, text, size, space=1):
        """The outline of the text, its baseline at y = 0, one em being `size` high. The blanks between
        words are `space` times as wide as the font has them."""
        outline, x, y = [], 0, 0
        for g in self.shape(text):
            name = self.names[g["g"]]
            pen = OutlinePen(self.glyphs, x + g["dx"], y + g["dy"], size / self.units, outline)
            self.glyphs[name].draw(pen)
            x += g["ax"] * (space if name == "space" else 1)
            y += g["ay"]
        return outline


def bounds(outline):
    """The bounding box of an outline: left, top, right, bottom."""
    boxes, at = [], None
    for command, points in outline:
        if command == "Q":
            boxes.append(calcQuadraticBounds(at, *points))
        elif command == "C":
            boxes.append(calcCubicBounds(at, *points))
        elif points:
            boxes.append(points[0] * 2)
        at = points[-1] if points else at
    return (min(b[0] for b in boxes), min(b[1] for b in boxes),
            max(b[2] for b in boxes), max(b[3] for b in boxes))


def moved(outline, dx, dy):
    return [(command, [(x + dx, y + dy) for x, y in points]) for command, points in outline]


# The letters that Urdu and Arabic write differently. One form in place of the other looks right
# in some positions and wrong in others, and no search finds it.
FOREIGN = {"ur": "يكهةىأإ", "ar": "یکہھےںپٹڑچگ"}


def check_letters(text, language):
    for letter in text:
        if letter in FOREIGN[language] or not (letter == " " or "ARABIC" in unicodedata.name(letter)):
            raise ValueError(f"{unicodedata.name(letter)} does not belong in {text}")
