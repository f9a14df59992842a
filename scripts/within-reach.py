#!/usr/bin/python3
"""The hand of scripts/within-reach.sh: within-reach.py keys|reader. Does one whole session with Korvel, with keys alone or
through the interface of screen readers, finds everything by the name that it is read out with, and prints what boxes
say. With keys it goes forward with Tab, and only looks at what has the focus."""

import subprocess
import sys
import time

import pyatspi

BY_KEYS = sys.argv[1] == "keys"
TABS = ["Programming", "Fuses", "Profiles", "About"]


def wait(what, find, seconds=30):
    end = time.time() + seconds
    while time.time() < end:
        try:
            found = find()
        except Exception:  # what goes while it is looked at
            found = None
        if found:
            return found
        time.sleep(0.1)
    sys.exit(f"Waited in vain for {what}")


def korvel():
    return next((one for one in pyatspi.Registry.getDesktop(0) if one and one.name == "korvel"), None)


def below(node):
    yield node
    if node.getRoleName() not in ("list", "combo box"):
        for child in node:
            if child:
                yield from below(child)


def has(node, state):
    return node.getState().contains(state)


def the(role, name):
    """The one shown thing of that role and name."""
    def find():
        return [node for node in below(korvel())
                if node.getRoleName() == role and node.name == name and has(node, pyatspi.STATE_SHOWING)]
    found = wait(f"{role} {name}", find)
    if len(found) > 1:
        sys.exit(f"{len(found)} are called {role} {name}")
    return found[0]


def key(*names):
    subprocess.run(["xdotool", "key", "--delay", "50", *names], check=True)
    time.sleep(0.1)


def write(text):
    subprocess.run(["xdotool", "type", "--delay", "30", text], check=True)


def act(node):
    action = node.queryAction()
    known = [action.getName(i).lower() for i in range(action.nActions)]
    action.doAction(next(known.index(name) for name in ("press", "toggle", "click") if name in known))


def go_to(role, name):
    node = the(role, name)
    if not BY_KEYS:
        node.queryComponent().grabFocus()
        return node
    for _ in range(80):
        if has(node, pyatspi.STATE_FOCUSED):
            return node
        key("Tab")
    sys.exit(f"no Tab leads to {role} {name}")


def press(role, name):
    if BY_KEYS:
        go_to(role, name)
        key("space" if role == "check box" else "Return")
    else:
        act(the(role, name))


def show(tab):
    if BY_KEYS:
        key(f"alt+{TABS.index(tab) + 1}")
    else:
        act(the("page tab", tab))


def fill(name, text):
    if BY_KEYS:
        go_to("text", name)
        key("ctrl+a")
        write(text)
    else:
        the("text", name).queryEditableText().setTextContents(text)


def choose(name, entry, box=False):
    go_to("combo box", name)
    write(entry)
    key("Return")
    if box:
        answer(f"{entry}")
    wait(f"{name}: {entry}", lambda: the("combo box", name).description.startswith(entry))
    print(f"{name}: {the('combo box', name).description}")


def answer(text):
    """Presses the one button of the box that is shown, which has to say the text."""
    box = wait("a box", lambda: next((node for node in korvel() if node.getRoleName() == "alert"), None))
    print(f"box {box.name}: {box.description}")
    if text not in box.description:
        sys.exit(f"not said: {text}")
    time.sleep(0.5)
    if BY_KEYS:
        key("Return")
    else:
        act(next(node for node in below(box) if node.getRoleName() == "push button"))
    wait("the end of the box", lambda: box not in list(korvel()))


wait("Korvel", korvel)
choose("MCU", "ATmega8", box=True)
choose("Programmer", "Virtual programmer")
fill("FLASH: Write", "demo/blink.hex")
press("push button", "FLASH: Write")
answer("FLASH written successfully.")
show("Fuses")
press("push button", "Read")
answer("Fuse bytes read successfully.")
press("check box", "EESAVE")
wait("D1", lambda: the("text", "High Fuse ( hfuse )").queryText().getText(0, -1) == "D1")
press("push button", "Write")
answer("Fuse bytes written successfully.")
show("Profiles")
fill("Profile name", "Heard")
press("push button", "Add")
answer("saved successfully")
press("check box", "FLASH")
press("push button", "Write")
answer("Flash write successfully.")
