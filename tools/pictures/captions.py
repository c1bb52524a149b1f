"""The caption pictures: the heirs' names in Urdu and Arabic, from the table of terms.

All pictures of a script have one text size and one baseline when they are shown at one height. The colour
is the same in all and occurs nowhere else, so that the program can put another in its place.
"""

import csv
import math

from lettering import Face, bounds, check_letters, moved
from svg import Drawing, path_data

CAPTION_COLOUR = "#123456"
HEIGHT = 26
MARGIN = 0.5
COLUMNS = 3

# Each script: its column of the table, its language, its font.
SCRIPTS = (
    ("urdu", "ur", "/usr/share/fonts/truetype/noto/NotoNastaliqUrdu-Regular.ttf"),
    ("arabic", "ar", "/usr/share/fonts/opentype/fonts-hosny-amiri/Amiri-Regular.ttf"),
)


def read_terms(table):
    with open(table, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE, strict=True))


def write_lines(file, outlines, baseline):
    """One line of text below the other, each HEIGHT high, all beginning at the left edge, where the
    check boxes are."""
    placed = []
    for row, outline in enumerate(outlines):
        placed += moved(outline, MARGIN - bounds(outline)[0], row * HEIGHT + baseline)
    drawing = Drawing(math.ceil(bounds(placed)[2] + MARGIN), HEIGHT * len(outlines))
    drawing.lines.append(f'<g fill="{CAPTION_COLOUR}"><path d="{path_data(placed)}"/></g>')
    drawing.save(file)


def make_captions(table, folder):
    terms = read_terms(table)
    for column, language, font in SCRIPTS:
        face = Face(font, language)
        outlines = {}
        for term in terms:
            check_letters(term[column], language)
            outlines[term["box"]] = face.outline(term[column], 1)
        top = min(bounds(o)[1] for o in outlines.values())
        bottom = max(bounds(o)[3] for o in outlines.values())
        size = (HEIGHT - 2 * MARGIN) / (bottom - top)
        columns = [[] for _ in range(COLUMNS)]
        for term in terms:
            box = term["box"]
            outline = face.outline(term[column], size)
            if box.startswith("classII-"):
                columns[int(box.removeprefix("classII-")) % COLUMNS].append(outline)
            else:
                write_lines(folder / f"{column}-{box}.svg", [outline], MARGIN - top * size)
        for index, column_outlines in enumerate(columns):
            write_lines(folder / f"{column}-classII-{index}.svg", column_outlines, MARGIN - top * size)
