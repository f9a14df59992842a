#!/usr/bin/env python3
"""Writes the names of all microcontrollers and programmers that ship into docs/devices.md."""

import json
import pathlib
import re
import textwrap

TOP = pathlib.Path(__file__).resolve().parent.parent
PAGE = TOP / 'docs/devices.md'


def names(folder):
    """What data/FOLDER describes, as a paragraph: each name with avrdude's behind it."""
    entries = [(path.stem, json.loads(path.read_text())['id']) for path in sorted((TOP / 'data' / folder).glob('*.json'))]
    listed = [f'{name} (`{identifier}`)'.replace(' ', '\0') for name, identifier in entries]
    return textwrap.fill(', '.join(listed), 120, break_long_words=False, break_on_hyphens=False).replace('\0', ' ')


def filled(page):
    """The text of the page with the lists as they should be."""
    for title, folder in (('Microcontrollers', 'mcu'), ('Programmers', 'programmer')):
        page = re.sub(rf'(\n## {title}\n\n).*?(\n\n## )', lambda match: match[1] + names(folder) + match[2], page, flags=re.S)
    return page


if __name__ == '__main__':
    PAGE.write_text(filled(PAGE.read_text()))
