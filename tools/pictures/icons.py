"""The small pictures: the program's icon and emblem, the buttons, and the ornaments that answer the mouse."""

from geometry import circle, pointed_arch, polar, rectangle, regular, sector, star
from style import (AMBER, CLAY, DEEP, GOLD, IVORY, JADE, MIST, NIGHT, SAND, TEAL, eight_star, plate, shared_disc)
from svg import Drawing, line, polygon


def icon():
    """An estate divided within the eight-pointed star."""
    drawing = Drawing(256, 256)
    middle = (128, 128)
    eight_star(drawing, middle, 125, NIGHT)
    eight_star(drawing, middle, 117, GOLD)
    eight_star(drawing, middle, 109, TEAL)
    for angle in range(0, 360, 45):
        drawing.path(polygon(regular(polar(middle, 92, angle), 4, 7, angle)), AMBER)
    drawing.path(circle(middle, 78), NIGHT)
    shared_disc(drawing, middle, 70, 6, NIGHT)
    eight_star(drawing, middle, 27, NIGHT)
    eight_star(drawing, middle, 19, AMBER)
    return drawing


def small_icon():
    """The icon where there is no room for its details."""
    drawing = Drawing(32, 32)
    middle = (16, 16)
    eight_star(drawing, middle, 16, NIGHT)
    eight_star(drawing, middle, 14.2, TEAL)
    shared_disc(drawing, middle, 9.6, 1.6, TEAL)
    return drawing


def emblem():
    drawing = Drawing(48, 48)
    middle = (24, 24)
    eight_star(drawing, middle, 24, NIGHT)
    eight_star(drawing, middle, 22, GOLD)
    eight_star(drawing, middle, 20.4, TEAL)
    shared_disc(drawing, middle, 13.5, 1.6, TEAL)
    eight_star(drawing, middle, 5, TEAL)
    eight_star(drawing, middle, 3.2, AMBER)
    return drawing


def full_report(page, text, seal, edge):
    """A page with two shares as fractions, the line beside each, and the sum below a double line."""
    drawing = Drawing(40, 40)
    drawing.path(polygon([(4, 1.5), (26, 1.5), (34, 9.5), (34, 38.5), (4, 38.5)]), page, edge, 1.5, join="round")
    drawing.path(polygon([(26, 1.5), (26, 9.5), (34, 9.5)]), edge, edge, 1.5, join="round")
    for y, below in ((11.5, 2), (22.5, 3)):
        drawing.path(polygon(rectangle(7.5, y - 0.75, 18.5, y + 0.75)), text)
        blocks = polygon(rectangle(11.5, y - 4.6, 14.5, y - 2))
        for k in range(below):
            x = 13 + 3.8 * (k - (below - 1) / 2)
            blocks += polygon(rectangle(x - 1.4, y + 2, x + 1.4, y + 4.6))
        drawing.path(blocks, text)
        drawing.path(polygon(rectangle(21.5, y - 0.75, 30.5, y + 0.75)), text, opacity=0.6)
    drawing.path(polygon(rectangle(7.5, 31, 30.5, 32.2)) + polygon(rectangle(7.5, 33.4, 30.5, 34.6)), text)
    eight_star(drawing, (31.6, 31.6), 7.6, edge)
    eight_star(drawing, (31.6, 31.6), 5.8, seal)
    return drawing


def report_button():
    return full_report(IVORY, TEAL, AMBER, NIGHT)


def report_button_hovered():
    return full_report(TEAL, IVORY, CLAY, GOLD)


def clear():
    """An eraser that leaves a clean path behind."""
    drawing = Drawing(40, 40)
    middle, slant = (22, 17.5), -45

    def block(start, end, half=7):
        """A piece of the eraser, measured along it from its middle."""
        axis = [polar(middle, start, slant), polar(middle, end, slant)]
        return polygon([polar(axis[0], half, slant - 90), polar(axis[1], half, slant - 90),
                        polar(axis[1], half, slant + 90), polar(axis[0], half, slant + 90)])

    drawing.path(line((3, 37), (37, 37)), stroke=JADE, width=2, cap="round")
    drawing.path(line((3, 31.5), (6, 31.5)) + line((25, 31.5), (37, 31.5)), stroke=JADE, width=2, cap="round",
                 opacity=0.6)
    drawing.path(block(-14.5, 14.5), NIGHT, NIGHT, 2.5, join="round")
    drawing.path(block(-4.5, 14.5), TEAL)
    drawing.path(block(-14.5, -6), IVORY)
    drawing.path(block(-4.5, -2) + block(11, 12.5), AMBER)
    eight_star(drawing, polar(middle, 4.5, slant), 4.8, AMBER, turn=slant)
    return drawing


def turning_star(step):
    """One of three frames: the star turns by a third of its symmetry, and a third of the disc lights up."""
    drawing = Drawing(48, 48)
    middle = (24, 24)
    turn = -90 + 15 * step
    eight_star(drawing, middle, 23, NIGHT, turn=turn)
    eight_star(drawing, middle, 21, GOLD, turn=turn)
    eight_star(drawing, middle, 19.4, TEAL, turn=turn)
    drawing.path(circle(middle, 12.5), NIGHT)
    for k in range(3):
        start = -90 + 120 * k
        drawing.path(sector(middle, 4.2, 11, start + 4, start + 116), AMBER if k == step else JADE)
    drawing.path(circle(middle, 2.8), IVORY)
    return drawing


def bud(open_up):
    """A rosette of eight petals."""
    drawing = Drawing(40, 40)
    plate(drawing, DEEP, GOLD)
    middle = (20, 20)
    length, colour, heart = (17.5, AMBER, CLAY) if open_up else (12, JADE, MIST)
    drawing.path(circle(middle, 17), stroke=TEAL, width=1.2)
    for angle in range(0, 360, 45):
        sides = [polar(middle, length * 0.62, angle - 19), polar(middle, length * 0.62, angle + 19)]
        drawing.path(polygon([middle, sides[0], polar(middle, length, angle), sides[1]]), colour, DEEP, 0.8)
    drawing.path(polygon(star(middle, 8, length * 0.58, length * 0.3)), heart, DEEP, 0.8)
    drawing.path(circle(middle, 2.2), IVORY if open_up else TEAL)
    return drawing


def gate(open_up):
    """A gate of two leaves; behind it stands a star."""
    drawing = Drawing(40, 40)
    plate(drawing, DEEP, GOLD)
    drawing.path(pointed_arch(20, 14, 17, 3, 36), SAND)
    if open_up:
        drawing.path(pointed_arch(20, 11, 18, 7, 36), NIGHT)
        for wall, edge in ((9, 13), (31, 27)):
            drawing.path(polygon([(wall, 17), (edge, 20), (edge, 33), (wall, 36)]), JADE)
        eight_star(drawing, (20, 22), 7, AMBER)
        eight_star(drawing, (20, 22), 3.4, NIGHT)
    else:
        drawing.path(pointed_arch(20, 11, 18, 7, 36), JADE)
        drawing.path(line((20, 7), (20, 36)), stroke=NIGHT, width=1.2)
        for x in (14.7, 25.3):
            for y in (20, 30):
                drawing.path(polygon(regular((x, y), 4, 4.2)), TEAL, NIGHT, 0.8)
                drawing.path(polygon(regular((x, y), 4, 1.6)), AMBER)
    drawing.path(line((4, 36), (36, 36)), stroke=SAND, width=1.6)
    return drawing


def two_squares(open_up):
    """A square in a square; opened, one turns and they make the star."""
    drawing = Drawing(40, 40)
    plate(drawing, DEEP, GOLD)
    middle = (20, 20)
    if open_up:
        eight_star(drawing, middle, 17, SAND)
        eight_star(drawing, middle, 13.6, CLAY)
        for turn in (0, 45):
            drawing.path(polygon(regular(middle, 4, 15.2, turn)), stroke=NIGHT, width=0.9)
        eight_star(drawing, middle, 7.4, AMBER, NIGHT, 0.9)
        drawing.path(circle(middle, 2.2), NIGHT)
    else:
        for radius, colour in ((17, SAND), (14.2, NIGHT), (12.4, CLAY), (8.6, NIGHT), (6.8, JADE)):
            drawing.path(polygon(regular(middle, 4, radius, 45)), colour)
        drawing.path(circle(middle, 2.2), AMBER)
    return drawing


def dial(open_up):
    """The sessions: a dial, and with the time that has gone by."""
    drawing = Drawing(64, 64)
    middle = (32, 32)
    eight_star(drawing, middle, 31, NIGHT)
    eight_star(drawing, middle, 29, GOLD if open_up else JADE)
    eight_star(drawing, middle, 27.4, TEAL)
    drawing.path(circle(middle, 19.5), IVORY, NIGHT, 1.2)
    if open_up:
        drawing.path(sector(middle, 0, 16.5, -90, 60), AMBER)
    ticks = []
    for hour in range(12):
        ticks += line(polar(middle, 15.2 if hour % 3 else 13.6, 30 * hour), polar(middle, 17.4, 30 * hour))
    drawing.path(ticks, stroke=TEAL, width=1.5)
    hands = line(middle, polar(middle, 12.5, -90)) + line(middle, polar(middle, 10, 60 if open_up else -150))
    drawing.path(hands, stroke=NIGHT, width=2.4, cap="round")
    drawing.path(circle(middle, 2.6), CLAY)
    return drawing


# The picture that lies above in a pair is the closed one.
ICONS = {
    "icon": icon(),
    "icon-small": small_icon(),
    "image2": clear(),
    "image4-0": gate(False),
    "image4-1": gate(True),
    "image6-0": bud(False),
    "image6-1": bud(True),
    "image7-0": two_squares(True),
    "image7-1": two_squares(False),
    "image38": emblem(),
    "image39": report_button_hovered(),
    "image40": report_button(),
    "image42-0": turning_star(0),
    "image42-1": turning_star(1),
    "image42-2": turning_star(2),
    "session-0": dial(True),
    "session-1": dial(False),
}


def make_icons(folder):
    for name, drawing in ICONS.items():
        drawing.save(folder / f"{name}.svg")
