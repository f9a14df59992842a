#!/usr/bin/env python3
"""Checks what the files in src include against docs/parts.svg, which is drawn from docs/parts.dot.

Each box of the picture is a folder of src, by its path, and its arrows say which folder may include from which. Arrows
only lead down, so there is no circle. The ground, base, may be included by all and includes nothing of ours. Views
include other views, fields and the ground alone. Each folder has its row in CONTRIBUTING.md. Prints what is wrong; the status is 1 if anything is.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as ElementTree

GROUND = "base"
SVG = "{http://www.w3.org/2000/svg}"


def main():
    heights = {}  # of the boxes, by folder
    arrows = set()
    for element in ElementTree.parse("docs/parts.svg").getroot().iter(SVG + "g"):
        title = element.findtext(SVG + "title")
        if element.get("class") == "node":
            heights[title] = float(re.search(r"M[-\d.]+,([-\d.]+)", element.find(SVG + "path").get("d"))[1])
        elif element.get("class") == "edge":
            arrows.add(tuple(title.split("->")))

    wrong = [f"docs/parts.svg: the arrow from {here} to {there} leads up"
             for here, there in sorted(arrows) if heights[here] >= heights[there]]
    folders = set()
    used = set()
    for path in sorted(pathlib.Path("src").glob("**/*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        file = path.relative_to("src").as_posix()
        folder = file.rpartition("/")[0]
        folders.add(folder)
        for included in re.findall(r'^#include "(.+?)"', path.read_text(encoding="utf-8"), re.MULTILINE):
            arrow = (folder, included.rpartition("/")[0])
            if arrow[0] == arrow[1] or arrow[1] == GROUND:
                pass
            elif arrow in arrows:
                used.add(arrow)
            else:
                wrong.append(f"{file}: docs/parts.svg has no arrow to {included}")
            if path.stem.endswith("View") and not re.match(rf"{GROUND}/|.+(View|Field)\.h$", included):
                wrong.append(f"{file}: a view includes {included}")
    wrong += [f"src/{folder}: is a folder or a box in docs/parts.svg, but not both"
              for folder in sorted(folders ^ set(heights))]
    table = pathlib.Path("CONTRIBUTING.md").read_text(encoding="utf-8")
    wrong += [f"src/{folder}: has no row in the table of folders in CONTRIBUTING.md"
              for folder in sorted(folders) if f"`src/{folder}`" not in table]
    wrong += [f"docs/parts.svg: nothing includes along the arrow from {arrow[0]} to {arrow[1]}"
              for arrow in sorted(arrows - used)]
    if any("parts.svg" in line for line in wrong):
        wrong.append("docs/parts.svg is made of docs/parts.dot, which says how: edit that.")
    print("\n".join(wrong) if wrong else f"includes: {len(folders)} folders, {len(used)} arrows, all drawn")
    return bool(wrong)


sys.exit(main())
