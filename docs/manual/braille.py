#!/usr/bin/env python3
"""Writes a text of one line for each paragraph in the six dots of Spanish braille, as embossers and braille displays take it
(BRF): pages of 25 lines of 40 cells, of which the first line has the page's number, after a table of contents.

    braille.py TEXT BRF

The first line is the title. A heading begins with a number, an item with a dash; what belongs to a term is indented.
"""

import pathlib
import re
import subprocess
import sys
import textwrap

CELLS, LINES = 40, 25
# Without contractions, with the underscore, which Debian's table has not; in the ASCII that stands for the cells.
TABLES = "en-us-brf.dis,es-g1.ctb"
UNDERSCORE = "⠨⠤"


def braille(lines):
    text = "".join(line.replace("\\", "\\\\").replace("_", UNDERSCORE) + "\n" for line in lines)
    done = subprocess.run(["lou_translate", "--forward", TABLES], input=text, capture_output=True, encoding="utf-8", check=True)
    all_dots = done.stdout.splitlines()
    if done.stderr or len(all_dots) != len(lines):
        sys.exit(f"lou_translate has not translated each line: {done.stderr}")
    for line, dots in zip(lines, all_dots):
        if not dots.isascii() or any(len(word) > CELLS - 4 for word in dots.split()):
            sys.exit(f"there is a word that is too long, or a character that Spanish braille has not: {line}")
    return all_dots


def number(page):
    return "#" + str(page).translate(str.maketrans("1234567890", "ABCDEFGHIJ"))


def paragraphs_of(text):
    """Whether each is a heading, and its lines."""
    text = [line for line in text.splitlines() if line.strip()]
    kinds = [re.match(r"(?P<heading>\d+\.(?:\d+\.)? (?! ))|(?P<item>- +)|(?P<inside> +)|", line).lastgroup for line in text]
    indents = {"heading": ("", ""), "item": ("", "  "), "inside": ("    ", "  ")}
    for kind, line in zip(kinds, braille([re.sub(r"^(- +| +)", "", line) for line in text])):
        first, other = indents.get(kind, ("  ", ""))
        yield kind == "heading", textwrap.wrap(line, CELLS, initial_indent=first, subsequent_indent=other, break_on_hyphens=False)


def pages_of(paragraphs, first):
    """The lines of the pages, from this number on, and where each heading is. A heading has a line below it."""
    pages, contents = [[]], []
    for is_heading, lines in paragraphs:
        if is_heading:
            if len(pages[-1]) + len(lines) + 3 > LINES - 1:
                pages.append([])
            elif pages[-1]:
                pages[-1].append("")
            contents.append((lines, first + len(pages) - 1))
        for line in lines:
            if len(pages[-1]) == LINES - 1:
                pages.append([])
            pages[-1].append(line)
    return pages, contents


def entry(lines, page):
    """A heading in the table of contents: with the page behind it, in a line of its own where there is no room."""
    lines = lines + [""] if len(lines[-1]) + 1 + len(number(page)) > CELLS else lines
    return lines[:-1] + [lines[-1] + number(page).rjust(CELLS - len(lines[-1]))]


(_, title), *body = paragraphs_of(pathlib.Path(sys.argv[1]).read_text())
before = []
while True:  # until the contents take as many pages as have been counted
    counted = len(before)
    pages, headings = pages_of(body, counted + 1)
    before, _ = pages_of([(False, title)] + [(False, entry(*heading)) for heading in headings], 1)
    if len(before) == counted:
        break
with open(sys.argv[2], "w", newline="") as written:
    for place, page in enumerate(before + pages, 1):
        lines = [number(place).rjust(CELLS)] + page + [""] * (LINES - 1 - len(page))
        written.write("".join(line.rstrip() + "\r\n" for line in lines) + "\f")
