"""Reworks a PDF that Chromium has written.

Chromium sets Arabic script well, but the text behind the glyphs comes out of most viewers with the vowel signs before
their letters, and Urdu with blanks inside the words. Here every Arabic or Urdu word gets its text back, its place in
the structure tree its language, and the file a fixed date and the digest of its sources. Objects are packed, so that
the file is small.
"""

import re
import unicodedata
import zlib

# The time of Chromium's run must not be in the file: the same sources give the same bytes.
DATE = "D:20260101000000+00'00'"

RIGHT_TO_LEFT_MARK = "\u200f"


class Pdf:
    def __init__(self, data):
        table = int(re.search(rb"startxref\s+(\d+)", data[-64:])[1])
        count = int(re.match(rb"xref\n0 (\d+)\n", data[table:])[1])
        entries = data[data.index(b"\n", table + 5) + 1:]
        self.dictionaries = {}  # by object number: what stands before a stream, or the whole object
        self.streams = {}  # by object number: the stream, unpacked
        for number in range(1, count):
            offset = int(entries[20 * number:20 * number + 10])
            start = data.index(b"obj\n", offset) + 4
            end = data.index(b"\nendobj", start)
            stream = data.find(b">> stream\n", start, end)
            if stream < 0:
                self.dictionaries[number] = data[start:end]
                continue
            head = data[start:stream + 2]
            length = int(re.search(rb"/Length (\d+)", head)[1])
            body = data[stream + 10:stream + 10 + length]
            if b"/FlateDecode" in head:
                body = zlib.decompress(body)
            self.streams[number] = body
            self.dictionaries[number] = re.sub(rb"\n?/(Length \d+|Filter /FlateDecode)(?=[\n>])", b"", head)
        self.root = int(re.search(rb"/Root (\d+) 0 R", data[table:])[1])
        self.info = int(re.search(rb"/Info (\d+) 0 R", data[table:])[1])

    def pages(self):
        """The numbers of the page objects, in order."""
        def walk(number):
            node = self.dictionaries[number]
            if b"/Type /Pages" not in node:
                return [number]
            kids = re.search(rb"/Kids \[(.*?)\]", node, re.S)[1]
            return [page for kid in re.findall(rb"(\d+) 0 R", kids) for page in walk(int(kid))]
        return walk(int(re.search(rb"/Pages (\d+) 0 R", self.dictionaries[self.root])[1]))

    def destinations(self):
        """The page number of each anchor that a link of the document leads to."""
        found = re.search(rb"/Dests (\d+) 0 R", self.dictionaries[self.root])
        if not found:
            return {}
        place = {number: i + 1 for i, number in enumerate(self.pages())}
        dests = re.findall(rb"/(\S+) \[(\d+) 0 R", self.dictionaries[int(found[1])])
        return {name.decode(): place[int(page)] for name, page in dests}

    def write(self):
        """The file, with all objects but streams packed into one."""
        plain = [n for n in sorted(self.dictionaries) if n not in self.streams and n != self.info]
        packed, index = b"", []
        for number in plain:
            index.append(b"%d %d" % (number, len(packed)))
            packed += self.dictionaries[number] + b"\n"
        head = b" ".join(index) + b"\n"
        holder = max(self.dictionaries) + 1
        self.streams[holder] = head + packed
        self.dictionaries[holder] = b"<</Type /ObjStm /N %d /First %d>>" % (len(plain), len(head))
        out = bytearray(b"%PDF-1.5\n%\xe2\xe3\xcf\xd3\n")
        where = {number: (2, holder, i) for i, number in enumerate(plain)}
        for number in sorted(set(self.dictionaries) - set(plain)):
            where[number] = (1, len(out), 0)
            out += b"%d 0 obj\n" % number + self._body(number) + b"\nendobj\n"
        start = len(out)
        where[holder + 1] = (1, start, 0)
        rows = [where.get(n, (0, 0, 0)) for n in range(holder + 2)]
        self.streams[holder + 1] = b"".join(
            kind.to_bytes(1, "big") + place.to_bytes(4, "big") + i.to_bytes(2, "big") for kind, place, i in rows)
        self.dictionaries[holder + 1] = b"<</Type /XRef /Size %d /W [1 4 2] /Root %d 0 R /Info %d 0 R>>" % (
            holder + 2, self.root, self.info)
        out += b"%d 0 obj\n" % (holder + 1) + self._body(holder + 1) + b"\nendobj\nstartxref\n%d\n%%%%EOF\n" % start
        return bytes(out)

    def _body(self, number):
        head = self.dictionaries[number]
        if number not in self.streams:
            return head
        body = zlib.compress(self.streams[number], 9)
        return head[:-2] + b" /Filter /FlateDecode /Length %d>> stream\n" % len(body) + body + b"\nendstream"


def hexadecimal(text):
    return "FEFF" + text.encode("utf-16-be").hex().upper()


def glyph_texts(pdf, font):
    """The text of each glyph of a font, for the glyphs that stand for one character."""
    cmap = re.search(rb"/ToUnicode (\d+) 0 R", pdf.dictionaries[font])
    texts = {}
    if cmap:
        source = pdf.streams[int(cmap[1])].decode()
        for part in re.findall(r"beginbfchar(.*?)endbfchar", source, re.S):
            for glyph, code in re.findall(r"<(\w+)> <(\w+)>", part):
                texts[glyph] = bytes.fromhex(code).decode("utf-16-be")
        for part in re.findall(r"beginbfrange(.*?)endbfrange", source, re.S):
            for first, last, code in re.findall(r"<(\w+)> <(\w+)> <(\w+)>", part):
                for i in range(int(first, 16), int(last, 16) + 1):
                    texts[f"{i:04X}"] = chr(int(code, 16) + i - int(first, 16))
    return texts


class Words:
    """Gives the words of right-to-left text in a page's content their text, and notes what each marked passage says."""

    def __init__(self, pdf):
        self.pdf = pdf
        self.fonts = {}
        self.passages = {}  # by page and mark: the font and the text

    def rework(self, page, content):
        out, depth, mark = [], 0, None
        lines = iter(content.decode("latin-1").split("\n"))
        for line in lines:
            if line == "BT":
                block = [line]
                while block[-1] != "ET":
                    block.append(next(lines))
                if depth == 0:  # page numbers and running heads
                    block = ["/Artifact <</Type /Pagination>> BDC", *block, "EMC"]
                elif "/ReversedChars BMC" in block:
                    block = self._block(block, (page, mark))
                out += block
                continue
            if line.endswith("BDC") or line.endswith("BMC"):
                depth += 1
                found = re.search(r"/MCID (\d+)", line)
                mark = int(found[1]) if found else mark
            elif line == "EMC":
                depth -= 1
            out.append(line)
        return "\n".join(out).encode("latin-1")

    def _block(self, lines, passage):
        out, glyphs, texts, said = [], [], [], []
        font, span = None, False
        place = drawn = (0.0, 0.0)  # of the glyph that is read, and of the last one that was written

        def draw(x, y, show):
            nonlocal drawn
            out.append(f"{x - drawn[0]:.4f} {y - drawn[1]:.4f} Td {show}")
            drawn = (x, y)

        def end_word():
            if glyphs:
                # Viewers read right-to-left text from left to right and turn it round themselves.
                backwards = "".join(part[::-1] for part in texts)
                # At the end of a line a vowel sign would be taken for left-to-right text.
                if not said and unicodedata.combining(backwards[0]):
                    backwards = RIGHT_TO_LEFT_MARK + backwards
                out.append(f"/Span <</ActualText <{hexadecimal(backwards)}>>> BDC")
                # They take the line and the left end of a word from its first glyph, which must not be a raised one.
                glyphs.insert(0, glyphs.pop(min(range(len(glyphs)), key=lambda i: round(abs(glyphs[i][1]), 2))))
                for glyph in glyphs:
                    draw(*glyph)
                out.append("EMC")
                said.append("".join(reversed(texts)))
                glyphs.clear()
                texts.clear()

        for line in lines:
            if line.startswith("/Span"):
                span = True
                texts.append(bytes.fromhex(re.search(r"<FEFF(\w*)>", line)[1]).decode("utf-16-be"))
            elif line == "EMC" and span:
                span = False
            elif line.endswith(" Tf"):
                font = int(line.split()[0][2:])
                if font not in self.fonts:
                    self.fonts[font] = glyph_texts(self.pdf, font)
                out.append(line)
            elif not line.endswith(" Tj"):
                end_word()
                out.append(line)
                if line.endswith(" Tm"):
                    place = drawn = (0.0, 0.0)
            else:
                move, codes = re.fullmatch(r"(?:(.*) Td )?<(\w+)> Tj", line).groups()
                if move:
                    x, y = map(float, move.split())
                    place = (place[0] + x, place[1] + y)
                text = [self.fonts[font][code] for code in re.findall("....", codes)] if not span else []
                if text and any(not part.strip() for part in text):
                    end_word()
                    draw(*place, f"<{codes}> Tj")
                    said.append("".join(reversed(text)))
                else:
                    glyphs.append((*place, f"<{codes}> Tj"))
                    texts += text
        self.passages.setdefault(passage, []).append((font, "".join(reversed(said))))
        return out


def renumber_nodes(pdf):
    """Table cells name their heads by numbers of Chromium's own, which differ from one run to the next."""
    node = re.compile(rb"\(node\d+\)")
    names = sorted({name for body in pdf.dictionaries.values() for name in node.findall(body)})
    numbers = {name: b"(node%08d)" % i for i, name in enumerate(names)}
    for number, body in pdf.dictionaries.items():
        pdf.dictionaries[number] = node.sub(lambda found: numbers[found[0]], body)


def rework(data, keywords, languages):
    """The finished file. `languages` gives the language of each font that is used for one language alone."""
    pdf = Pdf(data)
    words = Words(pdf)
    for page in pdf.pages():
        content = int(re.search(rb"/Contents (\d+) 0 R", pdf.dictionaries[page])[1])
        pdf.streams[content] = words.rework(page, pdf.streams[content])
    for number, body in pdf.dictionaries.items():
        found = re.fullmatch(rb"<</Type /StructElem\n.*/Pg (\d+) 0 R\n/K (\d+)>>", body, re.S)
        passage = words.passages.get((int(found[1]), int(found[2]))) if found else None
        if passage:
            name = re.search(rb"/BaseFont /\w+\+([\w-]+)", pdf.dictionaries[passage[0][0]])[1].decode()
            text = " ".join(said for _, said in passage)
            body = body.replace(b"/S /NonStruct", b"/S /Span")
            pdf.dictionaries[number] = body[:-2] + (
                f"\n/Lang ({languages[name]})\n/ActualText <{hexadecimal(text)}>>>").encode()
    renumber_nodes(pdf)
    title = re.search(rb"/Title .*", pdf.dictionaries[pdf.info])[0].decode("latin-1")
    pdf.dictionaries[pdf.info] = (
        f"<<{title}\n/Keywords ({keywords})\n/Producer (Skia/PDF)\n/CreationDate ({DATE})\n/ModDate ({DATE})>>"
    ).encode("latin-1")
    return pdf.write()
