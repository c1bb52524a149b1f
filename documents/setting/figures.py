"""The two family trees of the document on the relations. Places and sizes are in points from the top left corner."""

import html

HEIGHT = 60
ROW = 80
NARROW = 84
WIDE = 110


class Tree:
    def __init__(self, terms, width):
        self.terms = terms
        self.width = width
        self.lines = []
        self.nodes = []

    def heir(self, key, kind, centre, top, number=0):
        """An heir of the screen with the caption, the Arabic and the Urdu name; `number` is a place in an order."""
        term = self.terms[key]
        self.node(term["english"], term["arabic"], term["urdu"], kind, centre, top, number)

    def node(self, english, arabic, urdu, kind, centre, top, number=0):
        badge = f'<b class="number">{number}</b>' if number else ""
        self.nodes.append(
            f'<div class="node {kind}" style="left:{centre - self.width / 2}pt;top:{top}pt;width:{self.width}pt;'
            f'height:{HEIGHT}pt">{badge}<p>{html.escape(english, quote=False)}</p>'
            f'<p lang="ar" dir="rtl">{arabic}</p><p lang="ur" dir="rtl">{urdu}</p></div>')

    def line(self, *points):
        self.lines.append("M" + " L".join(f"{x} {y}" for x, y in points))

    def descent(self, parent, foot, child, top):
        """From a parent's foot down to the middle, across, and down to the top of a child."""
        middle = (foot + top) / 2
        self.line((parent, foot), (parent, middle), (child, middle), (child, top))

    def figure(self, name, width, height, caption):
        return (f'<figure class="tree {name}"><div class="drawing" style="width:{width}pt;height:{height}pt">'
                f'<svg aria-hidden="true" width="{width}pt" height="{height}pt" viewBox="0 0 {width} {height}">'
                f'<path d="{" ".join(self.lines)}" fill="none" stroke="#1d5c4a" stroke-width="0.8"/></svg>'
                f'{"".join(self.nodes)}</div><figcaption>{caption}</figcaption></figure>')


def family(terms):
    tree = Tree(terms, NARROW)
    own = 3 * ROW
    second = own + HEIGHT + 6
    deceased = own + 33
    below = second + HEIGHT + 28
    foot = HEIGHT

    tree.heir("15", "man", 42, 0)
    tree.heir("20", "woman", 134, 0)
    tree.heir("21", "woman", 240, 0)
    tree.heir("18", "woman", 384, 0)
    tree.line((84, foot / 2), (92, foot / 2))
    tree.line((88, foot / 2), (88, ROW))
    tree.line((240, foot), (240, ROW))
    tree.line((384, foot), (384, ROW))
    tree.heir("14", "man", 88, ROW)
    tree.heir("19", "woman", 240, ROW)
    tree.heir("17", "woman", 384, ROW)
    tree.line((130, ROW + foot / 2), (198, ROW + foot / 2))
    tree.line((164, ROW + foot / 2), (164, 2 * ROW))
    tree.line((384, ROW + foot), (384, 2 * ROW))
    tree.heir("13", "man", 164, 2 * ROW)
    tree.heir("16", "woman", 384, 2 * ROW)
    tree.line((206, 2 * ROW + foot / 2), (342, 2 * ROW + foot / 2))

    parents = 2 * ROW + HEIGHT
    tree.descent(150, parents, 42, own)
    tree.descent(398, parents, 434, own)
    tree.line((262, parents - HEIGHT / 2), (262, parents + 14), (142, parents + 14), (142, own))
    tree.line((242, parents + 14), (242, deceased))
    tree.heir("31", "man", 42, own)
    tree.heir("30", "woman", 42, second)
    tree.heir("22", "man", 142, own)
    tree.heir("23", "woman", 142, second)
    tree.heir("wives", "woman", 338, own)
    tree.heir("husband", "man", 338, second)
    tree.heir("33", "man", 434, own)
    tree.heir("32", "woman", 434, second)
    tree.line((284, second - 3), (296, second - 3))
    tree.node("The deceased", "الميت", "میت", "deceased", 242, deceased)

    tree.line((242, deceased + foot), (242, below - 14))
    tree.descent(242, below - 28, 182, below)
    tree.descent(242, below - 28, 302, below)
    tree.heir("2", "man", 182, below)
    tree.heir("3", "woman", 302, below)
    tree.descent(182, below + foot, 132, below + ROW)
    tree.descent(182, below + foot, 232, below + ROW)
    tree.descent(302, below + foot, 332, below + ROW)
    tree.heir("4", "man", 132, below + ROW)
    tree.heir("5", "woman", 232, below + ROW)
    tree.node("Daughters’ children", "أولاد البنات", "نواسے، نواسیاں", "no-heir", 332, below + ROW)
    tree.descent(132, below + ROW + foot, 82, below + 2 * ROW)
    tree.descent(132, below + ROW + foot, 182, below + 2 * ROW)
    tree.heir("6", "man", 82, below + 2 * ROW)
    tree.heir("7", "woman", 182, below + 2 * ROW)
    return tree.figure(
        "family", 476, below + 2 * ROW + HEIGHT,
        "Under each caption stand the Arabic and the Urdu name. Square corners are men, round corners women. The broken "
        "line marks distant kindred, who have no field. Of the two spouses only one kind can be alive: the wives of a "
        "man, or the husband of a woman.")


def class_two(terms):
    """The male line beyond the brothers: four columns, one generation a row, in the order of succession."""
    tree = Tree(terms, WIDE)
    columns = (61, 179, 297, 415)
    tree.heir("14", "man", columns[2], 0)
    tree.descent(columns[2], HEIGHT, 120, ROW)
    tree.descent(columns[2], HEIGHT, columns[2], ROW)
    tree.descent(columns[2], HEIGHT, columns[3], ROW)
    tree.heir("13", "man", 120, ROW)
    tree.descent(120, ROW + HEIGHT, columns[0], 2 * ROW)
    tree.descent(120, ROW + HEIGHT, columns[1], 2 * ROW)
    tree.heir("22", "man", columns[0], 2 * ROW)
    tree.heir("31", "man", columns[1], 2 * ROW)
    for i in range(12):
        uncle = i >= 4
        centre = columns[(2 if uncle else 0) + i % 2]
        place = 1 + (i - 4) // 2 if uncle else 3 + i // 2
        if i not in (4, 5):
            tree.line((centre, (place - 1) * ROW + HEIGHT), (centre, place * ROW))
        tree.heir(f"classII-{i}", "man", centre, place * ROW, i + 1)
    return tree.figure(
        "class-two", 476, 4 * ROW + HEIGHT,
        "The numbers are the order of succession. The first of them who is alive takes the whole residue, together "
        "with all others of his kind, and excludes the rest. The brothers come before all of them.")


FIGURES = {"family": family, "class-two": class_two}
