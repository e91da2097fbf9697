"""The window of deals as its user has it: by the pointer and the keys of a display, where a screen reader finds things.

usage: outside.py PROGRAM SAMPLES PICTURES     within a session bus and a display with a window manager
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

import pyatspi

import bus
from bus import PATIENCE, box_of, check, pump, wait_for

WINDOW = "Zandolin Lomert - Spellen en lessen"

program, samples, pictures = sys.argv[1:]
pictures = pathlib.Path(pictures)
folder = pathlib.Path(tempfile.mkdtemp())


def picture(name):
    subprocess.run(["import", "-window", "root", pictures / f"{name}.png"], check=True)


def everything():
    return bus.walk(bus.application("zandolin_deals_desktop"))


def find(role, name):
    return next((t for t in everything() if t.getRoleName() == role and t.name.startswith(name)), None)


def press_at(x, y):
    subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)
    pump(0.2)


def click(role, name):
    bus.click(wait_for(f"{role} {name}", lambda: find(role, name)))
    pump(0.2)


def key(*keys):
    subprocess.run(["xdotool", "key", "--delay", "30", *keys], check=True)
    pump(0.2)


def write(text):
    subprocess.run(["xdotool", "type", "--delay", "15", text], check=True)
    pump(0.2)


def at(title):
    """Waits until the window of that title has the keys."""
    def active():
        found = subprocess.run(["xdotool", "getactivewindow", "getwindowname"], capture_output=True, text=True)
        return found.stdout.strip() == title
    wait_for("window " + title, active)


def cells_in_list():
    return (t for t in bus.walk(find("tree", "Spellen")) if t.getRoleName() == "table cell")


def cell(name):
    return next((t for t in cells_in_list() if t.name == name), None)


def names_in_list():
    return [t.name for t in cells_in_list()]


def messages():
    """The lines of the list below; only those in sight have a place on the bus's tree."""
    return [t.name for t in everything() if t.getRoleName() == "list item"]


def told(text):
    wait_for("message " + text, lambda: any(text in line for line in messages()))


def check_places(what):
    """All that can be pressed stands on the screen, in a window of its own, and has a name."""
    width, height = map(int, os.environ.get("DISPLAY_SIZE", "1440x900").split("x"))
    for thing in everything():
        if thing.getRoleName() not in ("push button", "check box", "combo box", "radio button"):
            continue
        if not thing.getState().contains(pyatspi.STATE_FOCUSABLE):
            continue  # within a box of Qt's own
        box = box_of(thing)
        if box.x < 0 or box.y < 0 or box.x + box.width > width or box.y + box.height > height:
            check(f"{what}: {thing.name} stands on the screen ({box.x},{box.y} {box.width}x{box.height})", False)
        if not thing.name:
            check(f"{what}: a {thing.getRoleName()} has a name", False)
    picture(what)


def name_file(title, file):
    """Gives the name of a file to Qt's box."""
    at(title)
    wait_for("the field of the name", lambda: find("text", "Bestandsnaam"))
    key("alt+n", "ctrl+a")
    write(str(file))
    key("Return")


def open_and_import():
    key("ctrl+o")
    name_file("Bestanden openen", folder / "club.pbn")
    at(WINDOW)
    told("club.pbn: ")
    check_places("list")
    wait_for("the end of best play", lambda: not find("push button", "Stoppen: Beste spel"))
    before = names_in_list()
    click("table column header", "Contract")
    wait_for("the list sorted by its contracts", lambda: names_in_list() != before)
    picture("sorted")
    key("ctrl+2", "ctrl+2")  # the other way round, and as the file has them
    wait_for("the order of the file", lambda: names_in_list() == before)
    second = wait_for("the second line", lambda: cell("2"))
    place = box_of(second)
    press_at(place.x + place.height // 2, place.y + place.height // 2)
    wait_for("a tick", lambda: cell("2").getState().contains(pyatspi.STATE_CHECKED))
    picture("ticked")
    click("push button", "Importeren")
    told("Gemaakt: 1. Geweigerd: 0.")
    made = list((folder / "program").rglob("Spel 0*")) + list((folder / "program").rglob("QVT_Spel 0*"))
    check("a deal or a lesson was made of the line that was ticked", bool(made))


def make_a_page():
    key("alt+l")
    wait_for("the lessons", lambda: find("push button", "Exporteren"))
    wait_for("a lesson", lambda: any(t.name == "QVT_Spel 001" for t in everything()))
    check_places("lessons")
    key("Home")
    click("push button", "Exporteren")
    name_file("Lessen exporteren", folder / "les.html")
    told("1 les in les.html geschreven.")
    check("the page is there", "Spel 1</title>" in (folder / "les.html").read_text())
    key("alt+s")


def type_a_deal():
    key("ctrl+n")
    at("Nieuw spel")
    check_places("editor")
    for hand in ("AHVB1098765432", "", "", "", "", "AHVB1098765432", "", "", "", "", "AHVB1098765432"):
        if hand:
            write(hand)
        key("Tab")
    key("alt+c")
    write("4")
    key("Tab")
    write("Sc")
    key("Tab", "Tab")
    write("N")
    key("alt+u", "Down")
    check_places("editor-typed")
    key("alt+o")
    at(WINDOW)

    def line():
        names = names_in_list()
        return names[names.index("Spel nr. 1"):]
    wait_for("the deal in the list", lambda: line()[1:4] == ["4 Schoppen", "Noord", "harten aas"])
    picture("typed")


def stop_the_reading():
    key("ctrl+o")
    name_file("Bestanden openen", folder / "many.pbn")
    at(WINDOW)
    click("push button", "Stoppen: Lezen")
    told("many.pbn: gestopt.")


def quit_with_a_typed_deal(process):
    key("ctrl+q")
    at(WINDOW)
    wait_for("the question", lambda: find("push button", "Toch afsluiten"))
    check_places("question")
    key("Escape")
    wait_for("the window again", lambda: not find("push button", "Toch afsluiten"))
    check("it is still there", process.poll() is None)
    key("ctrl+q")
    click("push button", "Toch afsluiten")
    process.wait(PATIENCE)


def main():
    pictures.mkdir(parents=True, exist_ok=True)
    shutil.copytree(samples, folder / "program", ignore=shutil.ignore_patterns("files"))
    shutil.copy(pathlib.Path(samples, "files", "club.pbn"), folder)
    (folder / "many.pbn").write_bytes((folder / "club.pbn").read_bytes() * 3000)
    process = subprocess.Popen([program, "--program", folder / "program"], env={**os.environ, "HOME": str(folder)})
    try:
        at(WINDOW)
        wait_for("the list", lambda: find("push button", "Openen"))
        open_and_import()
        make_a_page()
        type_a_deal()
        stop_the_reading()
        quit_with_a_typed_deal(process)
    except TimeoutError:
        picture("failure")
        for thing in everything():
            print(thing.getRoleName(), "|", thing.name)
        raise
    finally:
        process.kill()
        shutil.rmtree(folder)
    sys.exit(1 if check.failed else 0)


main()
