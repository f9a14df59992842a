#!/usr/bin/env bash
# Drives every part that the installed avrdude and the virtual programmer know, as the window would: erases, writes and
# verifies flash and EEPROM, writes, verifies and reads every byte, reads the calibration. A line for each part that is not
# as it should be, and a summary. every-part.sh [PART...] takes these alone. With avrdude 7.2 or newer all other parts go
# through its own "dryrun". Not part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8

need_packages "${build_packages[@]}"
build dev korvel-virtual-programmer >/dev/null
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
ln -s "$PWD/data/mcu" "$work/mcu"

python3 - "$PWD" "$work" "$@" <<'END'
import collections, concurrent.futures, json, os, pathlib, re, subprocess, sys, time

top, work, wanted = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3:]
programmer = top / 'build/dev/bin/korvel-virtual-programmer'
begun = time.monotonic()


def avrdude_says(*arguments):
    run = subprocess.run(['avrdude', *arguments], capture_output=True, text=True)
    return run.stdout + run.stderr


version = tuple(map(int, re.search(r'version (\d+)\.(\d+)', avrdude_says('-?'), re.IGNORECASE).groups()))
known = set(re.findall(r'^  (\S+) +=', avrdude_says('-p', '?'), re.MULTILINE))


# Memories that the virtual chip has instructions for: those of most parts, with the value in the last byte.
usual = {'lfuse': '50 00 AC A0', 'hfuse': '58 08 AC A8', 'efuse': '50 08 AC A4', 'lock': '58 00 AC E0'}
operations = collections.defaultdict(dict)
for cells in (line.split('\t') for line in avrdude_says('-p', '*/St').split('\n')):
    if cells[0] == '.ptmmop' and cells[2] in usual and cells[3] in ('read', 'write') and len(cells) > 4:
        operations[cells[1]].setdefault(cells[2], {})[cells[3]] = cells[4].replace('.', '').split('--')


def is_usual(name, memory):
    """Whether a byte of a part with ISP is read and written as on most parts."""
    told = operations.get(name, {}).get(memory, {})
    if memory not in usual or len(told) < 2:
        return False
    bits = [int(byte, 16) for byte in usual[memory].split()]
    words = told['read'][:2] + told['write'][:2]
    fits = all(re.fullmatch(word.replace('x', '.'), f'{byte:08b}') for word, byte in zip(words, bits) if len(word) == 8)
    return fits and 'i' in told['write'][3] and 'i' not in told['write'][1]


def hex_file(path, size, seed):
    """Intel HEX of `size` bytes that repeat nowhere soon."""
    lines = []
    for at in range(0, size, 16):
        data = bytes((index * 7 + (index >> 8) * 31 + seed) & 0xFF for index in range(at, min(at + 16, size)))
        if at % 0x10000 == 0:
            lines.append(bytes([2, 0, 0, 4, at >> 24, at >> 16 & 0xFF]))
        lines.append(bytes([len(data), at >> 8 & 0xFF, at & 0xFF, 0]) + data)
    lines.append(bytes([0, 0, 0, 1]))
    path.write_text(''.join(f':{line.hex()}{-sum(line) & 0xFF:02x}\n'.upper() for line in lines))


def drive(path):
    """What is wrong with a part, how it was driven, and what avrdude skipped."""
    part = json.loads(path.read_text())
    name, identifier = part['mcu'], part['id']
    if name == 'ATmega165' and version < (8,):
        return name, 'unknown to this avrdude, which has another part for it', []
    if identifier not in known and identifier.removeprefix('avr') not in known:
        return name, 'unknown to this avrdude', []
    folder = work / name
    folder.mkdir()
    (folder / 'mcu').symlink_to(top / 'data/mcu')
    if version >= (7, 2) and not set(part['interfaces']) & {'ISP', 'UPDI', 'PDI'}:
        frame, server = ['-c', 'dryrun'], None
    else:
        server = subprocess.Popen([programmer, '--part', name, '--port', '0', '--state', 'chip'], cwd=folder,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        said = server.stdout.readline()
        if not said:
            return name, 'has no virtual chip', []
        port = re.search(r':(\d+)', said).group(1)
        kind = re.search(r'programmer (\w+)', said)
        frame = ['-c', kind.group(1) if kind else 'stk500v1', '-P', f'net:127.0.0.1:{port}']
    faults, skipped, older = [], [], []

    def run(*arguments):
        done = subprocess.run(['avrdude', '-p', identifier, *frame, '-B', '4', *arguments], cwd=folder,
                              capture_output=True, text=True, timeout=60)
        skipped.extend(re.findall(r'skipping -U ?(\w+)', done.stderr))
        if done.returncode:
            error = next((line for line in done.stderr.splitlines() if 'error' in line or 'mismatch' in line), '')
            faults.append(' '.join(arguments)[:60] + ': ' + error.strip())

    try:
        run('-e')
        for number, memory in enumerate(('flash', 'eeprom')):
            if memory in part:
                hex_file(folder / f'{memory}.hex', part[memory], number + 1)
                run('-U', f'{memory}:w:{memory}.hex:i')
                run('-U', f'{memory}:v:{memory}.hex:i')
        values = {byte['id']: sum(bit['default'] << 7 - at for at, bit in enumerate(byte['bits']))
                  for byte in part['FuseBytes']}
        masks = {byte['id']: sum((bit['name'] != 'NOT USED') << 7 - at for at, bit in enumerate(byte['bits']))
                 for byte in part['FuseBytes']}
        if 'ISP' in part['interfaces'] and server:
            older.extend(f'{name} {one}' for one in values if not is_usual(name, one))
            values = {one: value for one, value in values.items() if is_usual(name, one)}
        ordered = sorted(values, key=lambda one: one.startswith('lock'))
        if values:
            run(*(f'-U{one}:w:0x{values[one]:x}:m' for one in ordered))
            run(*(f'-U{one}:v:0x{values[one]:x}:m' for one in ordered))
            run(*(word for one in values for word in ('-U', f'{one}:r:{one}.hex:h')))
            for one, value in values.items():
                file = folder / f'{one}.hex'
                if not file.exists() or (int(file.read_text(), 0) ^ value) & masks[one]:
                    faults.append(f'{one} reads as {file.read_text().strip() if file.exists() else "nothing"}')
        run('-U', 'calibration:r:calibration.hex:r')
    finally:
        if server:
            server.kill()
            server.wait()
    skips['byte of older instructions'].extend(older)
    return name, '; '.join(faults) or None, sorted(set(skipped))


good, other, skips = [], collections.defaultdict(list), collections.defaultdict(list)
paths = [path for path in sorted((top / 'data/mcu').glob('*.json')) if not wanted or path.stem in wanted]
failed = 0
with concurrent.futures.ThreadPoolExecutor(8 * os.cpu_count()) as pool:  # avrdude mostly waits
    for name, fault, skipped in pool.map(drive, paths):
        for memory in skipped:
            skips[memory].append(name)
        if fault is None:
            good.append(name)
        elif fault.startswith(('unknown', 'has no')):
            other[fault].append(name)
        else:
            failed += 1
            print(f'{name}: {fault}', flush=True)
for reason, names in other.items():
    print(f'{reason} ({len(names)}):', ' '.join(names))
for memory, names in skips.items():
    print(f'not driven: {memory} ({len(names)}):', ' '.join(names[:8]), '...' if len(names) > 8 else '')
print(f'{len(good)} of {len(paths)} parts in order, {failed} not, in {time.monotonic() - begun:.0f} s with avrdude '
      + '.'.join(map(str, version)))
sys.exit(bool(failed))
END
