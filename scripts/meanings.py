#!/usr/bin/env python3
"""What data/mcu/meanings says of fuses, in the phrases that are translated.

Run as a program, it prints them all as C++ for lupdate. FuseMeanings composes and takes apart in the same way.
"""

import json
import pathlib
import re

FOLDER = pathlib.Path(__file__).parent.parent / 'data/mcu/meanings'
FIELDS, WORDS = (json.loads((FOLDER / f'{name}.json').read_text()) for name in ('fields', 'words'))
RULES = [(re.compile(pattern), replacement) for pattern, replacement in WORDS['rules']]
UNITS = ('Hz', 'ms')
NUMBER = re.compile(r'(?<![\w.-])(0x[0-9a-f]+|\d+(\.\d+)?K?)(?!\w)')


def meaning(field, symbol):
    """The meaning of the symbol that a setting of the field with that name has."""
    text = WORDS['symbols'].get(f'{field}:{symbol}', WORDS['symbols'].get(symbol))
    if text is None:
        text = symbol
        for pattern, replacement in RULES:
            text = pattern.sub(replacement, text)
    return text


def phrases(text):
    """What is translated of a meaning: each phrase between semicolons, with %1, %2 ... for its numbers."""
    for phrase in text.split('; '):
        parts = NUMBER.split(phrase)[::3]  # between them the number and its decimals
        yield ''.join(part + f'%{number}' for number, part in enumerate(parts[:-1], 1)) + parts[-1]


def has_word(phrase):
    """Whether there is anything to translate beside numbers, units and names."""
    return any(word[1:].islower() or word == 'on' for word in re.findall('[A-Za-z]+', phrase) if word not in UNITS)


def main():
    symbols = {(key.split(' ')[0], symbol) for key, settings in FIELDS.items() for symbol in settings.values()}
    texts = {meaning(field, symbol) for field, symbol in symbols if isinstance(symbol, str)}
    texts |= {meaning('', symbol) for symbol in ('', 'to_256b', '512b_256w', '512b_256w_0x3e00')}
    texts |= set(WORDS['fields'].values())
    for phrase in sorted({phrase for text in texts for phrase in phrases(text) if has_word(phrase)}):
        print(f'QT_TRANSLATE_NOOP("FuseMeanings", {json.dumps(phrase)})')


if __name__ == '__main__':
    main()
