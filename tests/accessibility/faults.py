"""What somebody who cannot see a window would miss in it."""

import re

from reader import is_showing, labels, parts, states

CONTROLS = {"check box", "combo box", "link", "list", "push button", "radio button", "slider",
            "spin button", "table", "text", "toggle button", "tree", "page tab",
            "page tab list"}
CONTENT = {"label", "list item", "notification", "paragraph", "table cell"}  # may have the focus, too
OBJECT_NAME = re.compile(r"[a-z]+([A-Z]\w*)+")


def name_of(thing):
    """What a reader says of it first. A combo box is called what is chosen in it."""
    if thing.getRoleName() == "combo box":
        return next(iter(labels(thing)), thing.description)
    return thing.name


def faults_of(thing):
    role, has = thing.getRoleName(), states(thing)
    if role == "filler" and any(part.getRoleName() == "page tab list" for part in thing):
        return  # which passes the focus on to its tabs
    if "focusable" in has and role not in CONTROLS | CONTENT:
        yield "has no fitting role"
    if role not in CONTROLS:
        return
    name = name_of(thing)
    if not any(letter.isalnum() for letter in name):
        yield "has no name"
    if re.search(r"&\w", name) or OBJECT_NAME.fullmatch(name):
        yield "has a name that is none for people"
    if role in ("push button", "check box", "radio button") and "enabled" not in has and \
            not thing.description:
        yield "does not say why it is disabled"


def faults(window):
    """All of them that are on show, each as a sentence."""
    if not any(letter.isalnum() for letter in window.name):
        yield "the window has no name"
    for thing in parts(window):
        if is_showing(thing):
            yield from (f"{thing.getRoleName()} {thing.name!r} ({thing.description!r}) {fault}"
                        for fault in faults_of(thing))
