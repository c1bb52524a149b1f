#!/usr/bin/python3 -B
"""Makes all pictures of the program, its icon in the usual sizes, and the list of resources.

Usage: make.py [folder]; without a folder they go where the program takes them from."""

import sys
from pathlib import Path

from PyQt6.QtGui import QImage, QPainter
from PyQt6.QtSvg import QSvgRenderer

from banner import make_banners
from captions import make_captions
from icons import make_icons
from scenes import make_scenes

PICTURES = Path(__file__).resolve().parents[2] / "pictures"

# Below this size the icon's details would run together.
DETAILED = 48
ICON_SIZES = (16, 24, 32, 48, 64, 128, 256, 512)


def make_icon_sizes(folder):
    (folder / "icons").mkdir(exist_ok=True)
    for size in ICON_SIZES:
        image = QImage(size, size, QImage.Format.Format_ARGB32)
        image.fill(0)
        painter = QPainter(image)
        painter.setRenderHint(QPainter.RenderHint.Antialiasing)
        QSvgRenderer(str(folder / ("icon.svg" if size >= DETAILED else "icon-small.svg"))).render(painter)
        painter.end()
        image.save(str(folder / "icons" / f"{size}.png"))


def list_resources(folder):
    files = sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*.svg"))
    lines = ["<RCC>", '  <qresource prefix="/pictures">', *(f"    <file>{name}</file>" for name in files),
             "  </qresource>", "</RCC>", ""]
    (folder / "pictures.qrc").write_text("\n".join(lines), encoding="utf-8", newline="\n")


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else PICTURES
    make_captions(PICTURES / "terms.tsv", folder / "captions")
    make_scenes(folder)
    make_icons(folder)
    make_banners(folder)
    make_icon_sizes(folder)
    list_resources(folder)


if __name__ == "__main__":
    main()
