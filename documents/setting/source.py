"""Reads the source of a document and turns it into a page for the browser.

A source is a head of `name: value` lines and Markdown. What Markdown has no words for stands in fences and braces:
worked cases, verses, tables of heirs, figures. documents/README.md describes them.
"""

import html
import re

import markdown

import figures
from tanwin import TANWIN

COMMANDS = re.compile(r"(Residuaries|Aul & Radd|All Individual|Execute Selected|Full Report|Then type|Message|Files"
                      r"|Double click .+):$")
ARABIC_SCRIPT = "\u0600-\u06ff\u08a0-\u08ff\u200c"
# A stretch of Arabic script; blanks and marks between two of its words belong to it.
STRETCH = re.compile(f"[{ARABIC_SCRIPT}](?:[{ARABIC_SCRIPT} \n]*[{ARABIC_SCRIPT}])?")
URDU_LETTER = re.compile("[ٹپچڈڑژکگںھہیےۓ]")
ARTICLE_AND_WORD = re.compile(r"(?<![\w-])((?:wa-)?(?:al|bi|li|wa|l)-(?:l-)?[^\W\d_][\wʿʾ’]*)", re.I)


class SourceError(Exception):
    pass


def read_head(text):
    """The `name: value` lines up to the first empty line, and the rest."""
    head, _, body = text.partition("\n\n")
    values = dict(line.split(": ", 1) for line in head.split("\n"))
    if sorted(values) != ["arabic", "file", "subtitle", "title"]:
        raise SourceError("the head needs title, arabic, subtitle and file")
    return values, body


def in_script(lang, text):
    return f'<span lang="{lang}" dir="rtl">{text}</span>'


def mark_languages(page):
    """Marks the Arabic and the Urdu in a page, and sets apostrophes and articles as in print."""
    out, quiet = [], 0
    for piece in re.split(r"(<[^>]+>)", page):
        if piece.startswith("<"):
            # What is marked in the source, and what the program prints, stays as it is.
            if re.match(r'<(span|td|div|p|pre)\b[^>]*(lang="(ar|ur)"|class="as-is")', piece):
                quiet = 1
            elif quiet:
                quiet += 0 if re.match(r"<(br|hr|/)", piece) else 1
                quiet -= 1 if piece.startswith("</") else 0
            out.append(piece)
        elif quiet:
            out.append(piece)
        else:
            piece = piece.replace("'", "’")
            piece = ARTICLE_AND_WORD.sub(r'<span class="whole">\1</span>', piece)
            out.append(STRETCH.sub(
                lambda found: in_script("ur" if URDU_LETTER.search(found[0]) else "ar", found[0]), piece))
    return "".join(out)


def case(lines, number):
    """A worked case: its title, the fields that are typed into, and what the program answers."""
    title, typed, answers = lines[0], [], []
    for line in lines[1:]:
        command = COMMANDS.match(line)
        if command:
            answers.append((command[1], []))
        elif answers:
            answers[-1][1].append(line.strip())
        else:
            typed.append(line.strip())
    if not answers:
        raise SourceError(f"a case without an answer: {title}")
    escape = lambda rows: "<br>".join(html.escape(row, quote=False) for row in rows)
    shown = "".join(f'<p class="label">The program answers: {html.escape(command)}</p><p class="as-is">{escape(rows)}</p>'
                    for command, rows in answers)
    return (f'<figure class="case"><figcaption>Case {number}. {html.escape(title, quote=False)}</figcaption>'
            f'<div class="typed"><p class="label">Typed</p><p class="as-is">{escape(typed)}</p></div>'
            f'<div class="answer">{shown}</div></figure>')


def verse(lines):
    place, name, arabic = lines[0].split(" ", 2)
    text = lines[1].strip().translate(TANWIN)
    # No verse ends in one word alone.
    words = text.split(" ")
    text = " ".join(words[:-3] + ["\u00a0".join(words[-3:])])
    return (f'<div class="verse"><p class="label">Sūrat {name} ({in_script("ar", arabic)}) {place}</p>'
            f'<p lang="ar" dir="rtl">{text}</p></div>')


def terms_table(keys, terms):
    cell = lambda lang, term: (f'<td><span lang="{lang}" dir="rtl">{term["urdu" if lang == "ur" else "arabic"]}</span>'
                               f'<br><em>{term["urdu_latin" if lang == "ur" else "arabic_latin"]}</em></td>')
    rows = "".join(f'<tr><th scope="row">{html.escape(terms[key]["english"], quote=False)}</th>'
                   f'<td>{terms[key]["meaning"]}</td>{cell("ar", terms[key])}{cell("ur", terms[key])}</tr>'
                   for key in keys)
    return (f'<table class="terms"><colgroup><col style="width:21%"><col style="width:27%"><col style="width:26%">'
            f'<col style="width:26%"></colgroup><thead><tr><th>Caption</th><th>Who is meant</th><th>Arabic</th>'
            f'<th>Urdu</th></tr></thead><tbody>{rows}</tbody></table>')


def replace_blocks(body, terms):
    """Puts HTML in the place of fences and braces."""
    cases = 0

    def fence(found):
        nonlocal cases
        lines = [line for line in found[2].split("\n") if line.strip()]
        if found[1] == "case":
            cases += 1
            return case(lines, cases)
        if found[1] == "verse":
            return verse(lines)
        raise SourceError(f"no fence {found[1]}")

    def brace(found):
        name, *words = found[1].split()
        if name == "terms":
            return terms_table(words, terms)
        if name == "figure":
            return figures.FIGURES[words[0]](terms)
        if name == "page":
            return '<div class="new-page"></div>'
        raise SourceError(f"nothing is called {name}")

    body = re.sub(r"^```(\w+)\n(.*?)^```$", fence, body, flags=re.M | re.S)
    return re.sub(r"^\{(.+)\}$", brace, body, flags=re.M)


def set_column_widths(page, body):
    """The dashes below the heads of a table give the relative widths of its columns."""
    rows = iter(re.findall(r"^\|(?:-+:?\|)+$", body, re.M))

    def columns(_):
        dashes = [len(part) for part in next(rows).strip("|").split("|")]
        wide = "".join(f'<col style="width:{100 * dash / sum(dashes):.1f}%">' for dash in dashes)
        return f"<table><colgroup>{wide}</colgroup>\n<thead>"

    return re.sub(r"<table>\n<thead>", columns, page)


def keep_together(page):
    """What introduces a list, a table, a case or a quotation stays with it."""
    def introduction(found):
        heading, text, block = found.groups()
        introduces = block != "figure" or text.rstrip().endswith(":") or (heading and len(text) < 200)
        return f'{heading or ""}<p class="introduces">{text}</p>' if introduces else found[0]

    return re.sub(r"(</h[123]>\s*)?<p>((?:(?!</p>).)*)</p>(?=\s*<(ul|ol|table|figure)\b)", introduction, page, flags=re.S)


def contents(page, pages):
    """The headings of the first two levels, with the pages on which they stand."""
    rows = []
    for level, anchor, title in re.findall(r'<h([12]) id="([^"]+)">(.*?)</h\1>', page, re.S):
        # Arabic in brackets has no place here.
        title = re.sub(r" \([^()]*<span lang[^()]*\)", "", title)
        rows.append(f'<li class="level{level}"><a href="#{anchor}"><span>{title}</span>'
                    f'<span class="dots"></span><span>{pages.get(anchor, 0)}</span></a></li>')
    return f'<nav><p class="label">Contents</p><ul>{"".join(rows)}</ul></nav>'


def to_html(text, terms, style, pages):
    """The whole document as a page. `pages` holds the page number of each heading, as far as known."""
    head, body = read_head(text)
    converter = markdown.Markdown(extensions=["tables", "toc", "sane_lists"])
    page = converter.convert(replace_blocks(body, terms))
    page = mark_languages(keep_together(set_column_widths(page, body)))
    title = head["title"]
    return f"""<!doctype html>
<html lang="en"><head><meta charset="utf-8"><title>{title}</title>
<style>{style}
@page {{ @top-left {{ content: "{title}" }} }}
@page :first {{ @top-left {{ content: none }} }}
</style></head><body>
<header><p class="title-arabic" lang="ar" dir="rtl">{head["arabic"]}</p><p class="title">{title}</p>
<p class="subtitle">{mark_languages(head["subtitle"])}</p></header>
{contents(page, pages)}
<main>{page}</main></body></html>"""
