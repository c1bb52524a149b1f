"""What a document is made of. The test of the kept PDFs needs no more than this and a Python."""

import hashlib
import re
from pathlib import Path

SETTING = Path(__file__).resolve().parent
DOCUMENTS = SETTING.parent
PDFS = DOCUMENTS / "pdf"
TERMS = DOCUMENTS.parent / "pictures" / "terms.tsv"
NAMES = ("rules", "history", "development", "schools", "references", "relations", "verses")


def source(name):
    return DOCUMENTS / f"{name}.md"


def pdf(name):
    """The kept PDF of a source, which names it in its head."""
    return PDFS / re.search(r"^file: (.+)$", source(name).read_text(encoding="utf-8"), re.M)[1]


def digest(name):
    """The digest of the source, the style, the table of terms and the programs that set the document."""
    made_of = [source(name), TERMS, SETTING / "style.css", *sorted(SETTING.glob("*.py"))]
    total = hashlib.sha256()
    for file in made_of:
        total.update(hashlib.sha256(file.read_bytes()).digest())
    return "sources-sha256:" + total.hexdigest()
