"""The six pictures of the main menu: three woven star patterns, and between them the fixed shares, a niche
and a garden."""

import math

from geometry import (between, circle, clip_line, clip_polygon, contact_star, khatam, pointed_arch, polar,
                      rectangle, regular, sector, star, tile)
from style import AMBER, CLAY, DEEP, GOLD, IVORY, JADE, MIST, NIGHT, SAND, TEAL, WATER, eight_star
from svg import Drawing, line, polygon

WIDTH, HEIGHT = 320, 240
FIELD = (9, 9, WIDTH - 9, HEIGHT - 9)
# What is drawn of a pattern: somewhat more than the field, since a strap outside reaches in with its width.
DRAWN = (4, 4, WIDTH - 4, HEIGHT - 4)
CENTRE = (WIDTH / 2, HEIGHT / 2)


def scene(background):
    drawing = Drawing(WIDTH, HEIGHT)
    drawing.path(polygon(rectangle(0, 0, WIDTH, HEIGHT)), NIGHT)
    drawing.path(polygon(rectangle(*FIELD)), background)
    return drawing


def frame(drawing):
    """The border that all six have; it covers the ends of the straps."""
    left, top, right, bottom = FIELD
    outline = polygon(rectangle(0, 0, WIDTH, HEIGHT)) + polygon(rectangle(left, top, right, bottom))
    drawing.path(outline, NIGHT, evenodd=True)
    drawing.path(polygon(rectangle(left - 0.75, top - 0.75, right + 0.75, bottom + 0.75)), stroke=GOLD, width=1.5)
    drawing.path(polygon(rectangle(3, 3, WIDTH - 3, HEIGHT - 3)), stroke=JADE, width=1)
    for corner in rectangle(6, 6, WIDTH - 6, HEIGHT - 6):
        eight_star(drawing, corner, 5.5, AMBER, NIGHT, 1)


# The tilings. Each gives its tiles as (sides, polygon).

def lattice(first, second, reach):
    for i in range(-reach, reach + 1):
        for j in range(-reach, reach + 1):
            yield (CENTRE[0] + i * first[0] + j * second[0], CENTRE[1] + i * first[1] + j * second[1])


def octagons_and_squares(edge):
    step = edge * (1 + math.sqrt(2))
    for x, y in lattice((step, 0), (0, step), 6):
        yield 8, tile((x, y), 8, edge, 0)
        yield 4, tile((x + step / 2, y + step / 2), 4, edge, 45)


def dodecagons_and_triangles(edge):
    step = edge * (2 + math.sqrt(3))
    for at in lattice(polar((0, 0), step, 0), polar((0, 0), step, 60), 6):
        yield 12, tile(at, 12, edge, 0)
        yield 3, tile(polar(at, step / math.sqrt(3), 30), 3, edge, 210)
        yield 3, tile(polar(at, step / math.sqrt(3), 90), 3, edge, 270)


def dodecagons_hexagons_and_squares(edge):
    step = edge * (3 + math.sqrt(3))
    for at in lattice(polar((0, 0), step, 0), polar((0, 0), step, 60), 6):
        yield 12, tile(at, 12, edge, 0)
        for angle in (0, 60, 120):
            yield 4, tile(polar(at, step / 2, angle), 4, edge, angle)
        yield 6, tile(polar(at, step / math.sqrt(3), 30), 6, edge, 210)
        yield 6, tile(polar(at, step / math.sqrt(3), 90), 6, edge, 270)


def weave(drawing, tiles, angle, fills, strap, edge, width, gap):
    """The pattern of a tiling: a filled star in each tile, and straps that go over and under in turn.

    At the middle of an edge two straps cross, one leaning left and one leaning right, and each strap leans
    left and right in turn. So the left one goes over at every crossing."""
    tiles = [(sides, corners) for sides, corners in tiles if clip_polygon(corners, *DRAWN)]
    stars = [(sides, contact_star(corners, angle)) for sides, corners in tiles]
    for wanted, fill in fills.items():
        outline = []
        for sides, corners in stars:
            inside = clip_polygon(corners, *DRAWN) if sides == wanted else []
            outline += polygon(inside) if inside else []
        drawing.path(outline, fill)
    straps, over, seen = [], [], set()
    both = width + 2 * gap
    steep = math.radians(2 * angle)
    reach = both / 2 * (1 / math.sin(steep) + abs(1 / math.tan(steep))) + 0.3
    for _, corners in stars:
        count = len(corners)
        for k in range(0, count, 2):
            middle, bend, following = corners[k], corners[k + 1], corners[(k + 2) % count]
            straps += clipped(past(bend, middle, 0.4), bend, past(bend, following, 0.4))
            key = (round(middle[0], 1), round(middle[1], 1))
            if key not in seen:
                seen.add(key)
                over.append((past(bend, middle, reach), between(middle, bend, reach / math.dist(middle, bend))))
    drawing.path(straps, stroke=edge, width=both)
    drawing.path(straps, stroke=strap, width=width)
    crossings = [piece for p, q in over for piece in clipped(p, q)]
    longer = [piece for p, q in over for piece in clipped(past(q, p, 0.6), past(p, q, 0.6))]
    drawing.path(crossings, stroke=edge, width=both)
    drawing.path(longer, stroke=strap, width=width)


def past(start, end, length):
    """A point beyond the end of a line."""
    return between(start, end, 1 + length / math.dist(start, end))


def clipped(*points):
    left, top, right, bottom = DRAWN
    if all(left <= x <= right and top <= y <= bottom for x, y in points):
        return line(*points)
    pieces = [clip_line(p, q, *DRAWN) for p, q in zip(points, points[1:])]
    return [command for piece in pieces if piece for command in line(*piece)]


def rosettes(drawing, tiles, wanted, layers):
    """Stars, one on the other, in the middle of each tile of a kind. A layer is (fill, shape), where the
    shape gives the corners around a middle."""
    for fill, shape in layers:
        outline = []
        for sides, corners in tiles:
            middle = sum(p[0] for p in corners) / sides, sum(p[1] for p in corners) / sides
            inside = clip_polygon(shape(middle), *DRAWN) if sides == wanted else []
            outline += polygon(inside) if inside else []
        drawing.path(outline, fill)


def eightfold():
    drawing = scene(TEAL)
    tiles = list(octagons_and_squares(31))
    weave(drawing, tiles, 67.5, {8: NIGHT, 4: CLAY}, SAND, NIGHT, 4, 1.2)
    rosettes(drawing, tiles, 8, ((AMBER, lambda at: khatam(at, 11)), (NIGHT, lambda at: regular(at, 8, 4))))
    frame(drawing)
    return drawing


def twelvefold():
    drawing = scene(SAND)
    tiles = list(dodecagons_and_triangles(28))
    weave(drawing, tiles, 54, {12: TEAL, 3: CLAY}, IVORY, NIGHT, 3, 1)
    rosettes(drawing, tiles, 12, ((NIGHT, lambda at: star(at, 12, 27, 17)), (AMBER, lambda at: star(at, 12, 22, 11)),
                                  (TEAL, lambda at: regular(at, 12, 5))))
    frame(drawing)
    return drawing


def sixfold():
    drawing = scene(MIST)
    tiles = list(dodecagons_hexagons_and_squares(23.6))
    weave(drawing, tiles, 64, {12: JADE, 6: AMBER, 4: NIGHT}, IVORY, NIGHT, 2.6, 0.9)
    rosettes(drawing, tiles, 12, ((TEAL, lambda at: star(at, 6, 20, 11.6)), (IVORY, lambda at: star(at, 6, 13, 7.5))))
    frame(drawing)
    return drawing


def fixed_shares():
    """The six fixed shares as parts of six circles: from the outside a half, a quarter, an eighth, two
    thirds, a third, a sixth."""
    drawing = scene(DEEP)
    outline = [c for sides, corners in octagons_and_squares(18)
               for c in closed_clip(contact_star(corners, 60))]
    drawing.path(outline, stroke=TEAL, width=1.4)
    drawing.path(circle(CENTRE, 106), NIGHT, GOLD, 1.2)
    shares = ((1 / 2, AMBER), (1 / 4, GOLD), (1 / 8, SAND), (2 / 3, JADE), (1 / 3, MIST), (1 / 6, IVORY))
    for k, (share, colour) in enumerate(shares):
        outer = 100 - 11.5 * k
        drawing.path(circle(CENTRE, outer) + circle(CENTRE, outer - 8), TEAL, evenodd=True, opacity=0.55)
        drawing.path(sector(CENTRE, outer - 8, outer, -90, -90 + 360 * share), colour)
    eight_star(drawing, CENTRE, 25, CLAY)
    eight_star(drawing, CENTRE, 17, NIGHT)
    eight_star(drawing, CENTRE, 10, AMBER)
    frame(drawing)
    return drawing


def closed_clip(points):
    """The outline of a polygon as lines, only inside the field, so that no line runs along its border."""
    return [c for p, q in zip(points, points[1:] + points[:1]) for c in clipped(p, q)]


def niche():
    drawing = scene(TEAL)
    left, top, right, bottom = FIELD
    middle = CENTRE[0]
    # The wall: a quiet net of stars, and a rosette on either side of the arch.
    net = [c for _, corners in octagons_and_squares(13) for c in closed_clip(contact_star(corners, 67.5))]
    drawing.path(net, stroke=JADE, width=1, opacity=0.7)
    for x in (left + 38, right - 38):
        drawing.path(circle((x, top + 40), 24), NIGHT, GOLD, 1.5)
        eight_star(drawing, (x, top + 40), 19, SAND)
        eight_star(drawing, (x, top + 40), 12, CLAY, turn=-67.5)
        eight_star(drawing, (x, top + 40), 6, NIGHT)
    # The niche: arch within arch, deeper and deeper.
    drawing.path(pointed_arch(middle, 86, 128, top + 4, bottom), NIGHT)
    drawing.path(pointed_arch(middle, 81, 128, top + 12, bottom), SAND)
    drawing.path(pointed_arch(middle, 72, 130, top + 25, bottom), NIGHT)
    sky = drawing.gradient("sky", "linearGradient", {"x1": 0, "y1": top + 30, "x2": 0, "y2": bottom},
                           ((0, NIGHT, 1), (1, JADE, 1)))
    drawing.path(pointed_arch(middle, 68, 131, top + 31, bottom), sky, GOLD, 1.5)
    for k in range(9):
        for side in (-1, 1):
            drawing.path(polygon(regular((middle + side * 76.5, bottom - 8 - 11 * k), 4, 3)), CLAY)
    # The lamp: its light, the cord, and a star within a star.
    lamp = (middle, 128)
    glow = drawing.gradient("glow", "radialGradient", {"cx": lamp[0], "cy": lamp[1], "r": 58},
                            ((0, AMBER, 0.75), (0.5, AMBER, 0.2), (1, AMBER, 0)))
    drawing.path(circle(lamp, 58), glow)
    drawing.path(line((middle, top + 33), (middle, lamp[1] - 24)), stroke=AMBER, width=1.5)
    drawing.path(polygon(khatam(lamp, 27)), IVORY)
    drawing.path(polygon(khatam(lamp, 22)), GOLD)
    drawing.path(polygon(khatam(lamp, 14, -67.5)), IVORY)
    drawing.path(polygon(khatam(lamp, 7)), CLAY)
    # The steps.
    for k, colour in enumerate((SAND, IVORY, SAND)):
        half = 68 + 9 * k if k else 64
        drawing.path(polygon(rectangle(middle - half, bottom - 18 + 6 * k, middle + half, bottom - 12 + 6 * k)),
                     colour, NIGHT, 0.8)
    frame(drawing)
    return drawing


def garden():
    """A garden seen from above: four beds, four runnels, and a pool in the middle."""
    drawing = scene(SAND)
    left, top, right, bottom = FIELD
    x, y = CENTRE
    drawing.path(polygon(rectangle(left + 5, top + 5, right - 5, bottom - 5)), stroke=CLAY, width=2)
    for bed in ((left + 12, top + 12, x - 20, y - 20), (x + 20, top + 12, right - 12, y - 20),
                (left + 12, y + 20, x - 20, bottom - 12), (x + 20, y + 20, right - 12, bottom - 12)):
        plant_bed(drawing, *bed)
    for run in ((left + 5, y - 8, right - 5, y + 8), (x - 8, top + 5, x + 8, bottom - 5)):
        drawing.path(polygon(rectangle(*run)), IVORY, NIGHT, 1)
    for run in ((left + 6, y - 4.5, right - 6, y + 4.5), (x - 4.5, top + 6, x + 4.5, bottom - 6)):
        drawing.path(polygon(rectangle(*run)), WATER)
    drawing.path(polygon(khatam(CENTRE, 60)), IVORY, NIGHT, 1)
    drawing.path(polygon(khatam(CENTRE, 53)), CLAY)
    drawing.path(polygon(khatam(CENTRE, 50)), IVORY)
    drawing.path(polygon(khatam(CENTRE, 42)), WATER, TEAL, 1.5)
    for radius in (28, 21, 14):
        drawing.path(polygon(khatam(CENTRE, radius)), stroke=IVORY, width=1.2)
    eight_star(drawing, CENTRE, 8, AMBER, NIGHT, 1)
    frame(drawing)
    return drawing


def plant_bed(drawing, left, top, right, bottom):
    drawing.path(polygon(rectangle(left, top, right, bottom)), TEAL, NIGHT, 1)
    drawing.path(polygon(rectangle(left + 4, top + 4, right - 4, bottom - 4)), JADE, IVORY, 1)
    across, down = 5, 3
    wide, high = (right - left - 8) / across, (bottom - top - 8) / down
    for i in range(across):
        for j in range(down):
            at = (left + 4 + wide * (i + 0.5), top + 4 + high * (j + 0.5))
            if (i + j) % 2:
                drawing.path(polygon(regular(at, 8, 8, 22.5)), TEAL)
                drawing.path(polygon(regular(at, 4, 4, 0)), MIST)
            else:
                eight_star(drawing, at, 10, TEAL)
                eight_star(drawing, at, 7.5, MIST)
                eight_star(drawing, at, 4, AMBER)


SCENES = (fixed_shares, eightfold, niche, twelvefold, garden, sixfold)


def make_scenes(folder):
    for index, draw in enumerate(SCENES):
        draw().save(folder / f"image3-{index}.svg")
