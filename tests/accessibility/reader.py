"""A person with a screen reader: knows of the program only what AT-SPI tells, and has a keyboard."""

import time

import gi

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402
from desktop import PATIENCE  # noqa: E402
from gi.repository import Atspi, GLib  # noqa: E402

EVENTS = ("object:state-changed", "object:property-change:accessible-name", "window:activate")
MODIFIERS = {"ctrl": 37, "shift": 50, "alt": 64}  # codes of the keys
NAMED = {"return": 0xFF0D, "escape": 0xFF1B, "tab": 0xFF09, "space": 0x20, "home": 0xFF50,
         "left": 0xFF51, "up": 0xFF52, "right": 0xFF53, "down": 0xFF54, "end": 0xFF57,
         "f1": 0xFFBE, "f2": 0xFFBF, "menu": 0xFF67}


def states(thing):
    return {pyatspi.stateToString(state) for state in thing.getState().getStates()}


def is_showing(thing):
    return thing.getState().contains(pyatspi.STATE_SHOWING)


def parts(thing, role=None, most=200):
    """What is within a thing, all of it or of one role; of the cells of a table only the first."""
    found = []
    for place in range(min(thing.childCount, most)):
        child = thing[place]
        if child is None:
            continue
        if role in (None, child.getRoleName()):
            found.append(child)
        if child.getRoleName() != "table":
            found += parts(child, role, most)
    return found


def labels(thing):
    """The names of what AT-SPI calls the labels of a thing."""
    return [relation.getTarget(i).name for relation in thing.getRelationSet()
            if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY
            for i in range(relation.getNTargets())]


class Reader:
    def __init__(self):
        self.spoken = []  # what a reader says unasked: (kind, text), in order
        self.listen = pyatspi.Registry.registerEventListener
        self.listen(self._hear, *EVENTS)

    def _hear(self, event):
        try:
            role, name = event.source.getRoleName(), event.source.name
        except (GLib.GError, AttributeError):
            return  # gone in the meantime
        if event.type == "object:state-changed:focused" and event.detail1:
            self.spoken.append(("focus", name))
        elif event.type == "window:activate":
            self.spoken.append(("window", name))
        elif event.type == "object:state-changed:showing" and event.detail1 and \
                role in ("notification", "alert"):
            self.spoken.append((role, name))

    def wait(self, condition, what):
        """What the condition says as soon as it is true."""
        end = time.monotonic() + PATIENCE
        context = GLib.MainContext.default()
        while True:
            while context.pending():
                context.iteration(False)
            Atspi.get_desktop(0).clear_cache()
            try:
                answer = condition()
            except GLib.GError:
                answer = None  # of something that is just going
            if answer:
                return answer
            assert time.monotonic() < end, f"waited for {what}; spoken: {self.spoken[-20:]}"
            GLib.usleep(10000)

    def said(self, kind, since=0):
        return [text for each, text in self.spoken[since:] if each == kind]

    def hears(self, kind, words, since=0):
        """Waits until something of a kind with these words in it is spoken; returns all of it."""
        def find():
            return next((text for each, text in self.spoken[since:] if each == kind and words in text), None)
        return self.wait(find, f"{kind}: {words}")

    states = staticmethod(states)
    parts = staticmethod(parts)

    def windows(self):
        return [window for app in pyatspi.Registry.getDesktop(0) if app for window in app
                if window and is_showing(window)]

    def active(self):
        """The window to which keys go, if there is one."""
        return next((window for window in self.windows() if "active" in states(window)), None)

    def window(self, words, role=None):
        return self.wait(lambda: next((window for window in self.windows() if words in window.name
                                       and role in (None, window.getRoleName())), None), f"a window {words}")

    def type(self, text):
        pyatspi.Registry.generateKeyboardEvent(0, text, pyatspi.KEY_STRING)

    def press(self, *chords):
        """Before a shortcut, hear what the keys before it did; it would be looked at first."""
        for chord in chords:
            *held, key = chord.lower().split("+")
            for name in held:
                pyatspi.Registry.generateKeyboardEvent(MODIFIERS[name], None, pyatspi.KEY_PRESS)
            pyatspi.Registry.generateKeyboardEvent(NAMED.get(key) or ord(key), None, pyatspi.KEY_SYM)
            for name in reversed(held):
                pyatspi.Registry.generateKeyboardEvent(MODIFIERS[name], None, pyatspi.KEY_RELEASE)
