#!/usr/bin/env python3
"""Holds the descriptions of microcontrollers and programmers, and the samples, against facts: the table in
tests/data/parts.txt, the installed avrdude, which may be any from 7.0 to 8.2, and what docs/devices.md says. Prints a
line for each difference and ends with 1 when there is one."""
import json
import pathlib
import re
import subprocess
import sys

from devices import PAGE, filled
from meanings import FIELDS, WORDS, meaning

top = pathlib.Path(__file__).resolve().parent.parent
faults = []


def check(holds, *words):
    if not holds:
        faults.append(' '.join(str(word) for word in words))


def load(folder):
    """The files of a folder by their names, which have no dot, as the program lists them."""
    files = {path.stem: json.loads(path.read_text()) for path in (top / 'data' / folder).glob('*.json')}
    for name, content in files.items():
        check('.' not in name and isinstance(content, dict), folder, name, 'is no object or has a dot in its name')
    return files


def avrdude_says(*arguments):
    run = subprocess.run(['avrdude', *arguments], capture_output=True, text=True)
    return run.stdout + run.stderr


def avrdude_table(option):
    """avrdude's own description of its parts ("-p") or programmers ("-c"), in cells: kind, name, property, value. All
    that 7.0 has is a list of identifiers and names."""
    kind = {'-p': '.pt', '-c': '.prog'}[option]
    table = [line.split('\t') for line in avrdude_says(option, '*/St').split('\n')]
    if not any(cells[0] == kind for cells in table):
        listed = re.findall(r'^  (\S+) += (.+)$', avrdude_says(option, '?'), re.MULTILINE)
        table = [[kind, name if option == '-p' else identifier, 'id', f'"{identifier}"'] for identifier, name in listed]
    return table


def devices(title='', page='devices'):
    """A section of the list of devices or of another page, or what stands above the first."""
    text = (top / f'docs/{page}.md').read_text()
    return (text.split('\n## ' + title, 1)[1] if title else text).split('\n## ')[0]


def is_known_rightly(known, is_newer):
    """Whether it is in order that the installed avrdude knows something or not. What docs/devices.md lists as newer
    than 7.1 came with some version up to 8.2; what 7.0 lacks of the rest is not listed."""
    may, must = not is_newer or version > (7, 1), version >= ((8, 2) if is_newer else (7, 1))
    return may if known else not must


def has_word(text, word):
    return re.search(r'(?<![\w-])' + re.escape(word) + r'\b', text) is not None


def check_other_names(name, entry):
    """What people call a thing, which is found by its name and identifier anyway."""
    def essence(text):
        return re.sub(r'[\s_-]', '', text).casefold()

    own = essence(name), essence(entry['id'])
    words = entry.pop('aka', [])
    check(isinstance(words, list) and len(set(map(essence, words))) == len(words), name, 'is also called', words)
    for word in words:
        check(word.strip() and not any(essence(word) in text for text in own), name, 'is also called', word)


facts = {}  # what the table says, in the form of our files
for line in (top / 'tests/data/parts.txt').read_text().splitlines():
    name, *cells = line.split(' ')
    if len(cells) < 5 or name == '#':
        continue
    identifier, signature, flash, eeprom, interfaces, *memories = cells
    description = {'mcu': name, 'id': identifier, 'signature': ' '.join(re.findall('..', signature)),
                   'flash': int(flash)}
    if eeprom != '-':
        description['eeprom'] = int(eeprom)
    description['interfaces'] = interfaces.split('+')
    bytes_ = [m.replace('*', '') + ('' if '/' in m else '/FF') for m in memories if not m.startswith('(')]
    facts[name] = description, 'ISP' in interfaces, bytes_

found = re.search(r'version (\d+)\.(\d+)', avrdude_says('-?'), re.IGNORECASE)
check(found, 'avrdude does not tell its version')
version = tuple(map(int, found.groups())) if found else (7, 1)
identifiers, memories_of = {}, {}  # of the parts that avrdude knows; the memories are those of one byte
for cells in avrdude_table('-p'):
    if len(cells) > 3 and cells[0] == '.pt' and cells[2] == 'id':
        identifiers[cells[1]] = re.findall('"(.+?)"', cells[3])
    elif len(cells) > 4 and cells[3:5] == ['size', '1']:
        memories_of.setdefault(cells[1], set()).add(cells[2])
check('m16' in identifiers.get('ATmega16', []), 'avrdude does not list its parts')
check(version < (7, 1) or 'lfuse' in memories_of.get('ATmega16', []), 'avrdude does not describe its parts')
newer = devices('What needs avrdude 8')

other_names = re.compile('LVL|OSCSEL|OSCHFFRQ|PLLCK|NVLB|JTAGUSERID')  # than their field's
ships = load('mcu')
seen = set()  # fields that some part has
smallest = {}  # flash of the parts that have a field
factory = {}  # identifier, and the factory values
for name, found in sorted(ships.items()):
    expected, is_serial, memories = facts.get(name, ({}, False, []))
    known = identifiers.get(name)
    listed = []
    factory[name] = found['id'], [(byte['id'], sum(bit['default'] << 7 - place for place, bit in enumerate(byte['bits'])))
                                  for byte in found['FuseBytes']]
    for byte in found.pop('FuseBytes'):
        seen |= set(byte['fields'].values())
        for field in byte['fields'].values():
            smallest[field] = min(smallest.get(field, 1 << 20), found['flash'])
        where = f'{name} {byte["id"]}'
        check(byte['name'].strip() and byte['id'] in memories_of.get(name, [byte['id']]), where,
              'is no memory of this avrdude')
        names = [bit['name'] for bit in byte['bits']]
        exists = [bit != 'NOT USED' for bit in names]
        may_change = [here and not (bit == 'SPIEN' and is_serial) for here, bit in zip(exists, names)]
        used = [bit for bit, here in zip(names, exists) if here]
        check(len(names) == 8 and all(used) and len(set(used)) == len(used), where, 'names', names)
        check([bit['enabled'] for bit in byte['bits']] == [int(may) for may in may_change], where, 'enabled')
        check(all(bit['default'] in (0, 1) and set(bit) == {'name', 'default', 'enabled'} for bit in byte['bits']),
              where, 'bits')
        value = int(''.join(str(bit['default']) for bit in byte['bits']), 2)
        mask = int(''.join(str(int(here)) for here in exists), 2)
        listed.append(f'{byte["id"]}={value:02X}/{mask:02X}')

        last = {}  # number of the bit before, by field and name without number
        for place, bit in enumerate(names):
            owners = [field.upper() for bits, field in byte['fields'].items() if int(bits, 16) << place & 0x80]
            stem, number = re.fullmatch(r'(.*?)(\d*)', bit).groups()
            if exists[place]:
                check(len(owners) == 1 and (stem in owners[0] or other_names.match(bit)), where, bit, 'is in', owners)
                before = last.setdefault((owners[:1] + [''])[0] + stem, int(number or 0) + 1)
                check(before == int(number or 0) + 1, where, bit, 'does not follow', before)
                last[(owners[:1] + [''])[0] + stem] = int(number or 0)
    check(listed == memories, name, 'has', listed, 'instead of', memories)
    reason = found.pop('withoutFuseBytes', None)
    check(reason is None if listed else reason in ('unreachable', 'unreliable'), name, 'has no fuse bytes, as', reason)
    check(found.pop('avrdude', '7') == ('8' if has_word(newer, name) else '7'), name,
          'has "avrdude": "8", or is listed below "What needs avrdude 8" in docs/devices.md, but not both')
    if name.startswith('AVR') and not has_word(newer, name):  # 7.1 has the whole name, which newer ones take too
        expected = dict(expected, id=name.lower())
    check_other_names(name, found)
    check(found == expected, name, 'is', found, 'instead of', expected)
    accepted = (known or [found['id']]) + [name.lower()] * (version > (7, 1))
    check(found['id'] in accepted, name, 'is called', known, 'by avrdude')

check(set(FIELDS) <= seen, 'fields of no part:', *sorted(set(FIELDS) - seen))
alike = devices('Settings that read alike', 'data-decisions')
for field, settings in FIELDS.items():
    name = field.split(' ')[0]
    check(WORDS['fields'].get(name), field, 'has no words')
    texts = []
    for setting, symbol in settings.items():
        if isinstance(symbol, int):  # bytes: the end of a section from that of the flash, or of each block from its start
            check(symbol in (256, 512) if setting == '*' else -smallest[field] < symbol < 0, field, symbol,
                  'is beyond the flash')
            texts.append(symbol)
            continue
        text = meaning(name, symbol)
        check(re.fullmatch('[^_]+', text) and text not in ('reserved', symbol), field, symbol, 'has no words but', text)
        texts.append(text)
    check((len(set(texts)) < len(texts)) == (f'`{field}`' in alike), field, 'has settings that read alike, or has none')

samples = dict(load('profiles'), save=json.loads((top / 'data/save.json').read_text()))
for name, sample in samples.items():
    values = [(byte['id'], byte['defaultValue']) for byte in sample['fusesBytes']]
    check((sample['mcuId'], values) == factory.get(sample['mcuName']), 'sample', name, 'does not fit its part')

missing = devices('Microcontrollers that do not ship')
for name in facts:
    check((name in ships) != has_word(missing, name), name, 'ships, or is listed as missing')
for name in ships:
    check(is_known_rightly(name in identifiers, has_word(newer, name)), name, 'needs a newer avrdude')

ports = {}  # of the programmers that avrdude knows; none where it does not tell
optional = {'linuxspi'}  # not every build of avrdude has these
for cells in avrdude_table('-c'):  # each with its names first, and not always with a connection
    if len(cells) > 3 and cells[2] == 'id':
        names = re.findall('"(.+?)"', cells[3])
    if len(cells) > 3 and cells[2] in ('id', 'connection_type'):
        port = 'com' if cells[3] == 'serial' else 'usb' if version >= (7, 1) else None
        ports.update(dict.fromkeys(names, port))
    if cells[2:] in (['type', '"par"'], ['type', '"linuxgpio"']):
        optional.update(names)
tells = {}  # interfaces and USB numbers of the programmers that the table has
for line in (top / 'tests/data/interfaces.txt').read_text().splitlines():
    if not line.startswith('#'):
        identifier, interfaces, usb = line.split(' ')
        tells[identifier] = {'interfaces': interfaces.split('+'), **({} if usb == '-' else {'usb': usb.split('+')})}
# avrdude's own words for it are: "note AVR F_CPU > 6.8 MHz".
more = {'ch341a': {'avrdude': '7.3', 'slowestChip': '6.8 MHz'}}
offered = set()
older = 0  # those that 7.1 knows
programmers = load('programmer')
for name, entry in programmers.items():
    identifier, arguments = entry['id'], entry['arguments']
    is_newer = f'`{identifier}`' in newer
    older += not is_newer
    check_other_names(name, entry)
    check(identifier in optional or is_known_rightly(identifier in ports, is_newer), name, 'needs a newer avrdude')
    port = 'usb' if '-P ' in arguments else (ports.get(identifier)
                                                    or ('usb' if 'usb' in tells.get(identifier, {}) else 'com'))
    # One that is reached in another way than by USB has no numbers there.
    told = {key: value for key, value in tells.get(identifier, {}).items() if key != 'usb' or '-P ' not in arguments}
    expected = {'id': identifier, 'arguments': arguments, 'port': port, **told,
                **({'avrdude': '8'} if is_newer else {}), **more.get(identifier, {})}
    check(entry == expected, name, 'is', entry, 'instead of', expected)
    check((identifier, arguments) not in offered, name, 'is there twice')
    offered |= {identifier, (identifier, arguments)}
missing = devices('Programmers that do not ship')
for identifier in ports:
    is_missing = re.search('[ ]' + re.escape(identifier) + r'\b', missing) is not None
    # Newer ones have more, which are told in words, and 7.0 spells some in another way.
    check(not is_missing if identifier in offered else is_missing or identifier in optional or version != (7, 1),
          identifier, 'is offered, or listed as missing')
known = sum(not has_word(newer, name) for name in ships)
counts = f'avrdude 7.1 knows {known} of the microcontrollers and {older} of the programmers'
check(counts in newer, 'docs/devices.md does not say:', counts)
counts = f'descriptions of {len(ships)} microcontrollers (`data/mcu`) and entries for {len(programmers)} programmers'
check(counts in devices(), 'docs/devices.md does not say:', counts)
newest = len(ships) - known, len(programmers) - older - len(more)
for page, words in (
        ('README.md', f'{len(ships)} microcontrollers'),
        ('README.md', '{} of the microcontrollers and {} of the programmers'.format(*newest)),
        ('docs/guide.md', f'{newest[0]} of the {len(ships)} microcontrollers and {newest[1]} of the {len(programmers)}')):
    check(words in ' '.join((top / page).read_text().split()), page, 'does not say:', words)
check(PAGE.read_text() == filled(PAGE.read_text()), 'docs/devices.md lacks names: run scripts/devices.py')

print('\n'.join(faults) or f'data: {len(ships)} microcontrollers and {len(programmers)} programmers are in order')
sys.exit(bool(faults))
