#!/usr/bin/env python3
"""Checks translation sources against the texts in the code.

Usage: check-translations.py TEXTS.ts FILE.ts...
TEXTS.ts is what lupdate makes of the code alone. Prints what is wrong with the other files; the status is 1 if
anything is.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

HEADER = re.compile(r"<!DOCTYPE TS>\n<!-- .+?-->\n<TS ", re.DOTALL)
# What a translation takes over as it stands: placeholders, ampersands (two show as one), and names.
KEPT = re.compile(r"%\d|&+|185kHz|avrdude|UsbAsp|JSON|FLASH|EEPROM", re.IGNORECASE)


def read(path):
    """Context, source text and translation element of each message of a file."""
    return [
        (context.findtext("name"), message.findtext("source"), message.find("translation"))
        for context in ElementTree.parse(path).iter("context")
        for message in context.iter("message")
    ]


def kept(text):
    """What of a text its translation has to have too, empty lines included."""
    return sorted(KEPT.findall(text.lower())), [not line for line in text.split("\n")]


def complaints(path, texts):
    with open(path, encoding="utf-8") as file:
        if not HEADER.search(file.read()):
            yield "no comment at the top that tells the choice of terms"
    messages = read(path)
    for context, source in texts - {message[:2] for message in messages}:
        yield f"lacks {context}: {source!r}"
    chosen = {}
    for context, source, translation in messages:
        if (context, source) not in texts:
            yield f"has what the code no longer has: {context}: {source!r}"
        elif translation.get("type") or not translation.text or len(translation):
            yield f"unfinished or with plural forms: {context}: {source!r}"
        elif kept(source) != kept(translation.text):
            yield f"placeholders, names or line breaks differ: {context}: {source!r}"
        elif chosen.setdefault(source, translation.text) != translation.text:
            yield f"translated in two ways, and language files have no contexts: {source!r}"


def main():
    texts = {message[:2] for message in read(sys.argv[1])}
    found = [f"{path}: {complaint}" for path in sys.argv[2:] for complaint in complaints(path, texts)]
    print("\n".join(found) if found else f"translations: {len(sys.argv) - 2} files are in order")
    return bool(found)


sys.exit(main())
