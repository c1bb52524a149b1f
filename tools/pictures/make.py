#!/usr/bin/python3 -B
"""Makes all pictures of the program and its icon in the usual sizes.

Usage: make.py [DIRECTORY]; the default is `pictures/`."""

import sys
from pathlib import Path

from PyQt6.QtGui import QImage, QPainter
from PyQt6.QtSvg import QSvgRenderer

from banner import make_banners
from captions import make_captions
from icons import make_icons
from scenes import make_scenes

PICTURES = Path(__file__).resolve().parents[2] / "pictures"

# Below this size the details of the icon would blur.
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


def main():
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else PICTURES
    make_captions(PICTURES / "terms.tsv", folder / "captions")
    make_scenes(folder)
    make_icons(folder)
    make_banners(folder)
    make_icon_sizes(folder)


if __name__ == "__main__":
    main()
