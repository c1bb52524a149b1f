#!/usr/bin/python3
"""The PDFs in the repository are up to date with their sources and style, and their Arabic can be searched and copied."""

import json
import re
import subprocess
import sys
import unittest
import zlib
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(PROJECT / "documents" / "setting"))

import digest  # noqa: E402
from tanwin import TANWIN  # noqa: E402


def text_of(pdf):
    """The words of a PDF, without the marks of direction that pdftotext adds."""
    text = subprocess.run(["pdftotext", pdf, "-"], check=True, capture_output=True, text=True).stdout
    return re.sub("[\u200e\u200f\u202a-\u202e]", "", text).split()


def packed_objects(pdf):
    """The objects of a PDF that are no streams."""
    packed = re.search(rb"/Type /ObjStm .*?/Length (\d+)>> stream\n", pdf.read_bytes())
    return zlib.decompress(pdf.read_bytes()[packed.end():packed.end() + int(packed[1])])


class Documents(unittest.TestCase):
    def test_each_pdf_is_made_from_its_source_as_it_is_now(self):
        for name in digest.NAMES:
            with self.subTest(name):
                kept = digest.pdf(name).read_bytes()
                self.assertIn(digest.digest(name).encode(), kept, "run tools/documents")

    def test_each_pdf_is_tagged_and_has_title_outline_and_languages(self):
        for name in digest.NAMES:
            with self.subTest(name):
                title = re.match("title: (.+)", digest.source(name).read_text(encoding="utf-8"))[1]
                about = subprocess.run(["pdfinfo", digest.pdf(name)], check=True, capture_output=True, text=True).stdout
                self.assertRegex(about, f"(?m)^Title: +{re.escape(title)}$")
                self.assertRegex(about, "(?m)^Tagged: +yes$")
                objects = packed_objects(digest.pdf(name))
                languages = ["en", "ar"] + (["ur"] if name in ("relations", "verses") else [])
                for mark in ["/Type /Outlines", *(f"/Lang ({language})" for language in languages)]:
                    self.assertIn(mark.encode(), objects)

    def test_the_verses_are_quoted_letter_for_letter(self):
        data = json.loads((digest.DOCUMENTS / "quran-verses.json").read_text(encoding="utf-8"))
        expected = sorted(f"{verse['surah']}:{verse['verse']} {verse['arabic']}" for verse in data["verses"])
        source = digest.source("verses").read_text(encoding="utf-8")
        quoted = sorted(f"{place} {arabic}" for place, arabic in re.findall(r"```verse\n(\S+) .*\n(.+)\n```", source))
        self.assertEqual(len(expected), 21)
        self.assertEqual(quoted, expected)

    def test_every_verse_can_be_found_and_copied_word_by_word(self):
        words = text_of(digest.pdf("verses"))
        source = digest.source("verses").read_text(encoding="utf-8").translate(TANWIN)
        for place, arabic in re.findall(r"```verse\n(\S+) .*\n(.+)\n```", source):
            with self.subTest(place):
                self.assertIn(f" {arabic} ", f" {' '.join(words)} ")

    def test_the_arabic_and_urdu_of_the_relations_can_be_found(self):
        words = text_of(digest.pdf("relations"))
        for row in digest.TERMS.read_text(encoding="utf-8").splitlines()[1:]:
            fields = row.split("\t")
            for name in (fields[3], fields[5]):
                self.assertEqual([word for word in name.split() if word not in words], [], fields[1])


if __name__ == "__main__":
    unittest.main()
