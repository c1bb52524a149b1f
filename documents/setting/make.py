#!/usr/bin/python3
"""Sets the documents: `make.py` all of them, `make.py rules schools` these. tools/documents calls it."""

import csv
import re
import subprocess
import sys
import tempfile
from pathlib import Path

import digest
import pdf
import source

CHROMIUM = ("chromium --headless --no-sandbox --disable-gpu --no-first-run --disable-background-networking "
            "--disable-component-update --disable-sync --no-pdf-header-footer "
            "--generate-pdf-document-outline").split()
LANGUAGES = {"Amiri-Regular": "ar", "Amiri-Bold": "ar", "NotoNastaliqUrdu-Regular": "ur"}
FONTS = re.compile(r"Noto(Serif|Sans)-\w+|" + "|".join(LANGUAGES))


def read_terms():
    with open(digest.TERMS, encoding="utf-8", newline="") as file:
        rows = (line for line in file if line.strip() and not line.startswith("#"))
        return {row["box"]: row for row in csv.DictReader(rows, delimiter="\t", quoting=csv.QUOTE_NONE)}


def print_page(page):
    """The page as Chromium prints it."""
    with tempfile.TemporaryDirectory() as folder:
        target = Path(folder, "out.pdf")
        Path(folder, "page.html").write_text(page, encoding="utf-8")
        subprocess.run([*CHROMIUM, f"--user-data-dir={folder}/profile", f"--print-to-pdf={target}",
                        f"file://{folder}/page.html"], check=True, capture_output=True, timeout=120)
        return target.read_bytes()


def check_fonts(data):
    for font in set(re.findall(rb"/BaseFont /\w+\+([\w-]+)", data)):
        if not FONTS.fullmatch(font.decode()):
            raise source.SourceError(f"a character is in none of the documents' fonts, but in {font.decode()}")


def make(name, terms):
    text = digest.source(name).read_text(encoding="utf-8")
    style = (digest.SETTING / "style.css").read_text(encoding="utf-8")
    # The first print finds out on which page each heading stands.
    pages = pdf.Pdf(print_page(source.to_html(text, terms, style, {}))).destinations()
    data = print_page(source.to_html(text, terms, style, pages))
    if pdf.Pdf(data).destinations() != pages:
        raise source.SourceError("the table of contents moves the headings")
    check_fonts(data)
    target = digest.pdf(name)
    target.parent.mkdir(exist_ok=True)
    target.write_bytes(pdf.rework(data, digest.digest(name), LANGUAGES))
    print(f"{target.name}: {len(pdf.Pdf(data).pages())} pages, {target.stat().st_size // 1024} KB")


def main():
    terms = read_terms()
    for name in sys.argv[1:] or digest.NAMES:
        try:
            make(name, terms)
        except source.SourceError as error:
            sys.exit(f"{name}.md: {error}")


if __name__ == "__main__":
    main()
