"""A program as a screen reader finds it on the real bus.  For tests that bus.sh runs."""
import subprocess
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 60  # seconds


def pump(seconds):
    """Lets events of the bus come in."""
    end = time.time() + seconds
    while time.time() < end:
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)
        time.sleep(0.02)


def wait_for(what, condition):
    """What the condition gives when it holds; afterwards TimeoutError."""
    end = time.time() + PATIENCE
    while time.time() < end:
        try:
            found = condition()
        except Exception:  # the tree changes while it is walked
            found = None
        if found:
            return found
        pump(0.1)
    raise TimeoutError("did not come: " + what)


def application(name):
    return next((a for a in pyatspi.Registry.getDesktop(0) if a and a.name == name), None)


def walk(thing):
    """All that shows below a thing."""
    for child in thing:
        if child is not None and child.getState().contains(pyatspi.STATE_SHOWING):
            yield child
            yield from walk(child)


def box_of(thing):
    return thing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)


def click(thing):
    """In its middle, by the pointer."""
    box = box_of(thing)
    subprocess.run(["xdotool", "mousemove", str(box.x + box.width // 2), str(box.y + box.height // 2), "click", "1"],
                   check=True)


def check(what, truth):
    print(("ok: " if truth else "NOT: ") + what)
    if not truth:
        check.failed = True


check.failed = False
