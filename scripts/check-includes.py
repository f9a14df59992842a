#!/usr/bin/env python3
"""Checks what the files in src include against docs/parts.svg.

The picture's boxes name the folders and files that make up each part, its arrows which part may include which. The
ground, base, may be included by all and includes nothing of ours. Views include other views, fields and the ground alone.
Prints what is wrong; the status is 1 if anything is.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

GROUND = "base"


def main():
    picture = ElementTree.parse("docs/parts.svg").getroot()
    parts = {}  # folder or file without suffix: part
    arrows = set()
    for element in picture.iter():
        for file in element.get("data-files", "").split():
            parts[file] = element.get("id")
        if element.get("data-from"):
            arrows.add((element.get("data-from"), element.get("data-to")))

    def part_of(file):
        return parts.get(file.rpartition(".")[0]) or parts.get(file.partition("/")[0])

    wrong = []
    used = set()
    for path in sorted(pathlib.Path("src").glob("*/*")):
        file = str(path.relative_to("src"))
        if not part_of(file):
            wrong.append(f"{file}: is in no box")
        for included in re.findall(r'^#include "(.+?)"', path.read_text(encoding="utf-8"), re.MULTILINE):
            arrow = (part_of(file), part_of(included))
            if arrow[0] == arrow[1] or arrow[1] == GROUND:
                pass
            elif arrow in arrows:
                used.add(arrow)
            else:
                wrong.append(f"{file}: no arrow leads to {included}")
            if path.stem.endswith("View") and not re.match(rf"{GROUND}/|.+(View|Field)\.h$", included):
                wrong.append(f"{file}: a view includes {included}")
    wrong += [f"docs/parts.svg: nothing includes along the arrow from {arrow[0]} to {arrow[1]}"
              for arrow in sorted(arrows - used)]
    print("\n".join(wrong) if wrong else f"includes: {len(used)} arrows, all drawn")
    return bool(wrong)


sys.exit(main())
