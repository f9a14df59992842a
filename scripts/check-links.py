#!/usr/bin/env python3
"""Checks that every link, section and picture of our documents is there.

Usage: check-links.py [PAGE.html...]
Looks at all Markdown files of the checkout and at the given pages. Links to the web are not followed. Prints what is
wrong, a picture in docs that no document shows included; the status is 1 if anything is.
"""

import html.parser
import pathlib
import re
import subprocess
import sys
import urllib.parse


class Page(html.parser.HTMLParser):
    """Where a page leads to, and the names of its sections."""

    def __init__(self, path):
        super().__init__()
        self.path = path
        self.targets = []
        self.names = set()
        self.heading = None  # its text, while one is read
        if path.suffix == ".md":
            self.feed(subprocess.run(["cmark-gfm", "--unsafe", "-e", "table", path], check=True, capture_output=True,
                                     text=True).stdout)
        else:
            self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        found = dict(attributes)
        self.targets += [found[name] for name in ("href", "src") if name in found]
        self.names |= {found["id"]} if "id" in found else set()
        if re.fullmatch("h[1-6]", tag):
            self.heading = ""

    def handle_data(self, data):
        if self.heading is not None:
            self.heading += data

    def handle_endtag(self, tag):
        if re.fullmatch("h[1-6]", tag):
            if self.path.suffix == ".md":  # which hosts of repositories name so
                name = re.sub(r"[^\w -]", "", self.heading.lower()).replace(" ", "-")
                self.names.add(name if name not in self.names else f"{name}-1")
            self.heading = None


def main():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard", "*.md"], check=True,
                            capture_output=True, text=True).stdout.split("\0")
    paths = [path for path in map(pathlib.Path, filter(None, listed)) if path.exists()]
    pages = {path.resolve(): Page(path) for path in paths + [pathlib.Path(name) for name in sys.argv[1:]]}
    wrong = []
    reached = set()
    count = 0
    for here, page in pages.items():
        for target in page.targets:
            parts = urllib.parse.urlsplit(target)
            if parts.scheme:
                continue
            count += 1
            there = (here.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else here
            reached.add(there)
            if not there.exists():
                wrong.append(f"{page.path}: there is no {target}")
            elif parts.fragment and (there not in pages or parts.fragment not in pages[there].names):
                wrong.append(f"{page.path}: {there.name} has no section #{parts.fragment}")
    wrong += [f"{path}: no document shows it" for path in sorted(pathlib.Path("docs").glob("*"))
              if path.suffix in (".png", ".svg") and path.resolve() not in reached]
    print("\n".join(wrong) if wrong else f"links: {count} in {len(pages)} documents lead to what is there")
    return bool(wrong)


sys.exit(main())
