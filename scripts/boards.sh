#!/usr/bin/env bash
# Writes boards in a row on the virtual programmer, with a profile of flash, EEPROM, fuses, lock byte and a serial number:
# boards.sh [COUNT] (50 without). Every fifth fails in its own way: a mismatch, unplugged, another part, stopped, and
# Korvel killed. Then the record, the counts that the window shows, the numbers on the chips and the one in the profile
# have to agree. What came of it stays in build/boards. Not part of CI.
source "$(dirname "$0")/common.sh"
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen

count=${1:-50}
need_packages "${build_packages[@]}" fonts-dejavu-core
build dev korvel korvel-virtual-programmer korvel-boards >/dev/null

program=$PWD/build/dev/tests/bin/korvel-boards
folder=$PWD/build/boards
rm -rf "$folder"
mkdir -p "$folder/profiles" "$folder/mcu"
cp -r data/{programmer,demo} "$folder"
cp -r data/mcu/{meanings,ATmega16.json,ATmega328P.json} "$folder/mcu"
port=$((20000 + RANDOM % 10000))
python3 - "$folder/profiles/Lot.json" "$port" <<'END'
import json, sys
profile = json.load(open('data/profiles/Blink complete.json'))
profile['arguments'] = profile['arguments'].replace('7016', sys.argv[2])
profile['fusesBytes'][-1]['currentValue'] = 0xFC  # the lock byte: neither written nor read any more
profile |= {'quiet': True, 'boardLog': 'boards.csv',
            'serial': {'memory': 'eeprom', 'address': 256, 'bytes': 4, 'format': 'little', 'next': 1001}}
json.dump(profile, open(sys.argv[1], 'w'), indent=4)
END

cd "$folder"
board=1
while [ "$board" -le "$count" ]; do
    status=0
    "$program" "$board" "$count" "$port" >>log 2>&1 || status=$?
    [ "$status" -eq 0 ] && break
    [ "$status" -eq 137 ] || { echo "Ended with $status; see build/boards/log"; exit 1; }
    board=$(tail -n 1 shown | cut -f 1)
    pkill -f -- "--port=$port" || true # that the killed one has left behind, as it has its avrdude
    pkill -KILL -f "net:127.0.0.1:$port" || true
    sleep 1
    board=$((board + 1))
done

python3 - "$count" <<'END'
import collections, csv, json, re, sys
count = int(sys.argv[1])
lines = list(csv.DictReader(open('boards.csv', newline='')))
shown = [line.rstrip('\n').split('\t') for line in open('shown')]
assert len(shown) == count, shown
given, good, failed, faults = [], 0, 0, []
record = iter(lines)
for number, (board, name, *texts) in enumerate(shown, 1):
    assert int(board) == number
    if name == 'killed':
        good = failed = 0  # the profile is loaded anew
        continue
    line = next(record)
    chip = json.load(open(f'chip-{board}'))
    image = bytearray(b'\xff' * 512)
    for address, row in chip['eeprom'].items():
        image[int(address, 16):int(address, 16) + len(row) // 2] = bytes.fromhex(row)
    on_chip = int.from_bytes(image[256:260], 'little')
    is_good = name == 'good'
    good, failed = good + is_good, failed + (not is_good)
    if line['verdict'] != ('good' if is_good else 'failed') or (line['message'] == '') != is_good:
        faults.append(f'board {board}, {name}: the record says {line}')
    verdict = f'Board {good + failed}: ' + ('written, ' if is_good else 'failed: ' + line['message'])
    if not any(text.startswith(verdict) for text in texts) or f'{good} good, {failed} failed' not in texts:
        faults.append(f'board {board}, {name}: the window shows {texts}')
    if is_good:
        given.append(on_chip)
        if str(on_chip) != line['serial number'] or chip['lock'] != '0xFC':
            faults.append(f'board {board}: {on_chip} on the chip, {line["serial number"]} in the record')
    elif line['serial number']:
        faults.append(f'board {board}, {name}: has a number in the record')
    if (texts[-1] == '') != is_good:
        faults.append(f'board {board}, {name}: told {texts[-1]!r}')
killed = sum(name == 'killed' for _, name, *_ in shown)
following = json.load(open('profiles/Lot.json'))['serial']['next']
if next(record, None):
    faults.append('the record has more lines than boards')
if sorted(set(given)) != given:
    faults.append(f'a number twice, or none in order: {given}')
if following <= given[-1] or following - 1001 - len(given) > killed:
    faults.append(f'the profile goes on with {following} after {given[-1]}, {len(given)} given, {killed} killed')
names = collections.Counter(name for _, name, *_ in shown)
print('\n'.join(faults) or f'{count} boards agree: ' + ', '.join(f'{many} {name}' for name, many in names.items())
      + f'; numbers 1001 to {given[-1]}, {following - 1001 - len(given)} left out')
sys.exit(bool(faults))
END
