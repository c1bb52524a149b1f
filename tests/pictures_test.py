#!/usr/bin/python3 -B
"""The pictures in the repository are those that the tools make from the table of terms, and Qt can draw them."""

import csv
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

from PyQt6.QtCore import QRectF
from PyQt6.QtGui import QImage, QPainter
from PyQt6.QtSvg import QSvgRenderer

ROOT = Path(__file__).resolve().parents[1]
PICTURES = ROOT / "pictures"
CAPTION_COLOUR = "#123456"
DRAWABLE = {"svg", "g", "path", "defs", "linearGradient", "radialGradient", "stop"}


def files_below(folder, pattern):
    return {path.relative_to(folder).as_posix(): path for path in sorted(folder.rglob(pattern))}


class Pictures(unittest.TestCase):
    def setUp(self):
        self.drawings = files_below(PICTURES, "*.svg")

    def test_no_two_heirs_share_a_term(self):
        with open(PICTURES / "terms.tsv", encoding="utf-8", newline="") as file:
            terms = list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE, strict=True))
        for column in ("english", "meaning", "urdu", "arabic"):
            values = [t[column] for t in terms]
            self.assertEqual(len(set(values)), len(terms), f"two heirs share their {column}")

    def test_drawings_are_outlines_only(self):
        for name, file in self.drawings.items():
            with self.subTest(name):
                tags = [element.tag.rpartition("}")[2] for element in xml.parse(file).iter()]
                self.assertLessEqual(set(tags), DRAWABLE)
                self.assertIn("path", tags)
                # The program recolours a caption by this one colour, and nothing else.
                expected = 1 if name.startswith("captions/") else 0
                self.assertEqual(file.read_text(encoding="utf-8").count(CAPTION_COLOUR), expected)

    def test_qt_draws_each_within_its_bounds(self):
        margin = 8
        for name, file in self.drawings.items():
            with self.subTest(name):
                drawing = QSvgRenderer(str(file))
                self.assertTrue(drawing.isValid())
                width, height = drawing.defaultSize().width(), drawing.defaultSize().height()
                image = QImage(width + 2 * margin, height + 2 * margin, QImage.Format.Format_ARGB32)
                image.fill(0)
                painter = QPainter(image)
                drawing.render(painter, QRectF(margin, margin, width, height))
                painter.end()
                empty = QImage(image.size(), image.format())
                empty.fill(0)
                self.assertNotEqual(image, empty)
                painter.begin(image)
                painter.setCompositionMode(QPainter.CompositionMode.CompositionMode_Clear)
                painter.fillRect(margin, margin, width, height, 0)
                painter.end()
                self.assertEqual(image, empty, "drawn outside the picture")

    def test_they_are_reproducible(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", ROOT / "tools/pictures/make.py", folder], check=True)
            made = files_below(Path(folder), "*.*")
            kept = files_below(PICTURES, "*.*")
            for source in ("README.md", "terms.tsv"):
                del kept[source]
            self.assertEqual(set(made), set(kept))
            different = [name for name in made if made[name].read_bytes() != kept[name].read_bytes()]
            self.assertEqual(different, [])


if __name__ == "__main__":
    unittest.main()
