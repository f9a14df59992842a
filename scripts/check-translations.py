#!/usr/bin/env python3
"""Checks translation sources against the texts in the code.

Usage: check-translations.py TEXTS.ts FILE.ts...
TEXTS.ts is what lupdate makes of the code alone. Prints what is wrong with the other files; the status is 1 if
anything is.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

HEADER = re.compile(r"<!DOCTYPE TS>\n<!-- .+? -->\n<TS ", re.DOTALL)
# What a translation takes over as it stands: placeholders, line breaks, and the "&&" that shows as one "&".
KEPT = re.compile(r"%\d|\n|&&")


def read(path):
    """The translation elements of a file by context and source text."""
    return {
        (context.findtext("name"), message.findtext("source")): message.find("translation")
        for context in ElementTree.parse(path).iter("context")
        for message in context.iter("message")
    }


def complaints(path, texts):
    with open(path, encoding="utf-8") as file:
        if not HEADER.search(file.read()):
            yield "no comment at the top that tells the choice of terms"
    messages = read(path)
    for context, source in texts - messages.keys():
        yield f"lacks {context}: {source!r}"
    chosen = {}
    for (context, source), translation in messages.items():
        if chosen.setdefault(source, translation.text) != translation.text:
            yield f"translated in two ways, and language files have no contexts: {source!r}"
        if (context, source) not in texts:
            yield f"has what the code no longer has: {context}: {source!r}"
        elif translation.get("type") or not translation.text or len(translation):
            yield f"unfinished or with plural forms: {context}: {source!r}"
        elif sorted(KEPT.findall(source)) != sorted(KEPT.findall(translation.text)):
            yield f"placeholders or line breaks differ: {context}: {source!r}"


def main():
    texts = read(sys.argv[1]).keys()
    found = [f"{path}: {complaint}" for path in sys.argv[2:] for complaint in complaints(path, texts)]
    print("\n".join(found) if found else f"translations: {len(sys.argv) - 2} files are in order")
    return bool(found)


sys.exit(main())
