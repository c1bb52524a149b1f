#!/usr/bin/python3 -B
"""The pictures that are kept are those of the table and the tools, and the program can draw them.

What needs the authoring packages is skipped without them."""

import csv
import importlib.util
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
PICTURES = ROOT / "pictures"
INK = "#123456"
DRAWABLE = {"svg", "g", "path", "defs", "linearGradient", "radialGradient", "stop"}
HAS_QT = importlib.util.find_spec("PyQt6") is not None
HAS_TOOLS = HAS_QT and importlib.util.find_spec("fontTools") is not None and shutil.which("hb-shape") is not None


def files_below(folder, pattern):
    return {path.relative_to(folder).as_posix(): path for path in sorted(folder.rglob(pattern))}


class Pictures(unittest.TestCase):
    def setUp(self):
        self.drawings = files_below(PICTURES, "*.svg")

    def test_each_term_has_its_captions(self):
        with open(PICTURES / "terms.tsv", encoding="utf-8", newline="") as file:
            terms = list(csv.DictReader(file, delimiter="\t", quoting=csv.QUOTE_NONE, strict=True))
        # Twelve class II terms share the pictures of three columns.
        names = {t["box"] for t in terms if not t["box"].startswith("classII-")}
        self.assertEqual(len(terms) - len(names), 12)
        names |= {f"classII-{column}" for column in range(3)}
        wanted = {f"captions/{script}-{name}.svg" for script in ("urdu", "arabic") for name in names}
        self.assertEqual(wanted, {name for name in self.drawings if name.startswith("captions/")})
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
                self.assertEqual(file.read_text(encoding="utf-8").count(INK), expected)

    def test_resources_name_each_drawing(self):
        listed = {entry.text for entry in xml.parse(PICTURES / "pictures.qrc").iter("file")}
        self.assertEqual(listed, set(self.drawings))

    @unittest.skipUnless(HAS_QT, "needs python3-pyqt6.qtsvg")
    def test_qt_draws_each_within_its_bounds(self):
        from PyQt6.QtCore import QRectF
        from PyQt6.QtGui import QImage, QPainter
        from PyQt6.QtSvg import QSvgRenderer
        rim = 8
        for name, file in self.drawings.items():
            with self.subTest(name):
                drawing = QSvgRenderer(str(file))
                self.assertTrue(drawing.isValid())
                width, height = drawing.defaultSize().width(), drawing.defaultSize().height()
                image = QImage(width + 2 * rim, height + 2 * rim, QImage.Format.Format_ARGB32)
                image.fill(0)
                painter = QPainter(image)
                drawing.render(painter, QRectF(rim, rim, width, height))
                painter.end()
                empty = QImage(image.size(), image.format())
                empty.fill(0)
                self.assertNotEqual(image, empty)
                painter.begin(image)
                painter.setCompositionMode(QPainter.CompositionMode.CompositionMode_Clear)
                painter.fillRect(rim, rim, width, height, 0)
                painter.end()
                self.assertEqual(image, empty, "ink outside the picture")

    @unittest.skipUnless(HAS_TOOLS, "needs the authoring packages")
    def test_made_again_they_are_the_same(self):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([sys.executable, "-B", ROOT / "tools/pictures/make.py", folder], check=True)
            made = files_below(Path(folder), "*.*")
            kept = files_below(PICTURES, "*.*")
            for own in ("README.md", "terms.tsv"):
                kept.pop(own, None)
            self.assertEqual(set(made), set(kept))
            different = [name for name in made if made[name].read_bytes() != kept[name].read_bytes()]
            self.assertEqual(different, [])


if __name__ == "__main__":
    unittest.main()
