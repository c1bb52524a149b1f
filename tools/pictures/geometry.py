"""Points, polygons and the star patterns that grow out of a tiling. Angles are in degrees, clockwise from
the right, since y grows downwards."""

import math


def polar(centre, radius, angle):
    a = math.radians(angle)
    return centre[0] + radius * math.cos(a), centre[1] + radius * math.sin(a)


def between(p, q, share):
    return p[0] + (q[0] - p[0]) * share, p[1] + (q[1] - p[1]) * share


def regular(centre, sides, radius, turn=0):
    return [polar(centre, radius, turn + 360 * k / sides) for k in range(sides)]


def star(centre, points, outer, inner, turn=-90):
    """A star with its first point straight up."""
    return [polar(centre, (outer, inner)[k % 2], turn + 180 * k / points) for k in range(2 * points)]


# Two squares, one turned by half a right angle: the notches of the eight-pointed star.
KHATAM = math.cos(math.pi / 4) / math.cos(math.pi / 8)


def khatam(centre, radius, turn=-90):
    return star(centre, 8, radius, radius * KHATAM, turn)


def rectangle(left, top, right, bottom):
    return [(left, top), (right, top), (right, bottom), (left, bottom)]


def arc(centre, radius, start, end, first="M"):
    """The outline of an arc, in curves of at most a quarter."""
    pieces = max(1, math.ceil(abs(end - start) / 90))
    step = (end - start) / pieces
    reach = radius * 4 / 3 * math.tan(math.radians(step) / 4)
    outline = [(first, [polar(centre, radius, start)])]
    for k in range(pieces):
        a, b = start + k * step, start + (k + 1) * step
        outline.append(("C", [polar(polar(centre, radius, a), reach, a + 90),
                              polar(polar(centre, radius, b), reach, b - 90), polar(centre, radius, b)]))
    return outline


def circle(centre, radius):
    return arc(centre, radius, 0, 360) + [("Z", [])]


def sector(centre, inner, outer, start, end):
    """A piece of a ring; of a disc when the inner radius is 0."""
    back = arc(centre, inner, end, start, "L") if inner else [("L", [centre])]
    return arc(centre, outer, start, end) + back + [("Z", [])]


def rounded(left, top, right, bottom, radius):
    corners = ((right - radius, top + radius, -90), (right - radius, bottom - radius, 0),
               (left + radius, bottom - radius, 90), (left + radius, top + radius, 180))
    outline = []
    for x, y, start in corners:
        outline += arc((x, y), radius, start, start + 90, "L" if outline else "M")
    return outline + [("Z", [])]


def pointed_arch(middle, half, spring, apex, foot):
    """An arch of the given half width, from the foot of its left pillar over the apex to the right."""
    rise = spring - apex
    left, right = middle - half, middle + half
    return [("M", [(left, foot)]), ("L", [(left, spring)]),
            ("C", [(left, spring - rise * 0.52), (middle - half * 0.5, apex + rise * 0.26), (middle, apex)]),
            ("C", [(middle + half * 0.5, apex + rise * 0.26), (right, spring - rise * 0.52), (right, spring)]),
            ("L", [(right, foot)]), ("Z", [])]


def tile(centre, sides, edge, facing):
    """A regular polygon with edges of the given length, one of them facing the given direction."""
    radius = edge / 2 / math.sin(math.pi / sides)
    return regular(centre, sides, radius, facing - 180 / sides)


def crossing(p, towards_p, q, towards_q):
    """Where the line from p meets the line from q."""
    det = towards_p[0] * -towards_q[1] + towards_q[0] * towards_p[1]
    t = ((q[0] - p[0]) * -towards_q[1] + towards_q[0] * (q[1] - p[1])) / det
    return p[0] + t * towards_p[0], p[1] + t * towards_p[1]


def contact_star(polygon, angle):
    """The star that stands in a tile when two straps leave the middle of each edge at the given angle to
    it: the corners of the star, middles and bends in turn."""
    middles, rays = [], []
    for k, p in enumerate(polygon):
        q = polygon[(k + 1) % len(polygon)]
        along = math.degrees(math.atan2(q[1] - p[1], q[0] - p[0]))
        middles.append(between(p, q, 0.5))
        rays.append((polar((0, 0), 1, along + angle), polar((0, 0), 1, along + 180 - angle)))
    corners = []
    for k, middle in enumerate(middles):
        following = (k + 1) % len(middles)
        corners += [middle, crossing(middle, rays[k][0], middles[following], rays[following][1])]
    return corners


def clip_polygon(points, left, top, right, bottom):
    """The part of a polygon inside a rectangle."""
    for axis, limit, sign in ((0, left, 1), (0, right, -1), (1, top, 1), (1, bottom, -1)):
        kept = []
        for k, p in enumerate(points):
            q = points[(k + 1) % len(points)]
            p_in, q_in = sign * (p[axis] - limit) >= 0, sign * (q[axis] - limit) >= 0
            if p_in:
                kept.append(p)
            if p_in != q_in:
                kept.append(between(p, q, (limit - p[axis]) / (q[axis] - p[axis])))
        points = kept
    return points


def clip_line(p, q, left, top, right, bottom):
    """The part of a straight line inside a rectangle, or None."""
    start, end = 0.0, 1.0
    for axis, low, high in ((0, left, right), (1, top, bottom)):
        way = q[axis] - p[axis]
        if abs(way) < 1e-9:
            if not low <= p[axis] <= high:
                return None
            continue
        enter, leave = sorted(((low - p[axis]) / way, (high - p[axis]) / way))
        start, end = max(start, enter), min(end, leave)
    return (between(p, q, start), between(p, q, end)) if start < end else None
