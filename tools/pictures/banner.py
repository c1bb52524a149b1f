"""The banner of the main menu: the basmala between two stars, on light and on dark."""

from geometry import khatam, rounded
from lettering import Face, bounds, moved
from style import AMBER, CLAY, GOLD, IVORY, NIGHT, TEAL, eight_star
from svg import Drawing, polygon

# The small alif of the third word stands on a stretch of its own, clear of the other signs.
BASMALA = "بِسْمِ ٱللَّهِ ٱلرَّحْمَـٰنِ ٱلرَّحِيمِ"
WIDTH, HEIGHT = 420, 80
FONT = "/usr/share/fonts/opentype/fonts-hosny-amiri/Amiri-Regular.ttf"

# The background, the text, the star, its heart.
TONES = ((IVORY, TEAL, GOLD, CLAY), (NIGHT, AMBER, TEAL, IVORY))


def make_banners(folder):
    face = Face(FONT, "ar")
    for index, (background, writing, ornament, heart) in enumerate(TONES):
        drawing = Drawing(WIDTH, HEIGHT)
        drawing.path(rounded(1, 1, WIDTH - 1, HEIGHT - 1, 10), background, GOLD, 1.5)
        drawing.path(rounded(5, 5, WIDTH - 5, HEIGHT - 5, 7), stroke=ornament, width=0.8)
        for x in (40, WIDTH - 40):
            eight_star(drawing, (x, HEIGHT / 2), 23, ornament)
            drawing.path(polygon(khatam((x, HEIGHT / 2), 18)), stroke=background, width=1.5)
            eight_star(drawing, (x, HEIGHT / 2), 9, background)
            eight_star(drawing, (x, HEIGHT / 2), 5, heart)
        words = face.outline(BASMALA, 35.5, 0.55)
        left, top, right, bottom = bounds(words)
        drawing.path(moved(words, (WIDTH - left - right) / 2, (HEIGHT - top - bottom) / 2), writing)
        drawing.save(folder / f"image5-{index}.svg")
