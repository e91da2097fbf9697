"""What a screen reader gets from the real program, over the real bus.

usage: screen_reader.py PROGRAM SAMPLES     within a session bus and a display with a window manager
"""
import os
import shutil
import subprocess
import sys
import tempfile

import pyatspi

import bus
from bus import check, pump, wait_for


def program():
    return bus.application("Zandolin Lomert")


def everything():
    return bus.walk(program())


def find(role, name):
    return next((t for t in everything() if t.getRoleName() == role and t.name == name), None)


def click(role, name):
    bus.click(wait_for(role + " " + name, lambda: find(role, name)))


def press(*keys):
    subprocess.run(["xdotool", "key", *keys], check=True)


def walk_preparation(said):
    click("push button", "Nieuw spel (RVLX)")
    click("list item", "Spel 001")
    cards = [suit + " " + value for suit in ("Schoppen", "Harten", "Ruiten", "Klaveren")
             for value in ("Aas", "Heer", "Vrouw", "Boer", "10", "9", "8", "7", "6", "5", "4", "3", "2")]
    wait_for("the deal", lambda: find("label", cards[0]))
    things = list(everything())
    names = [t.name for t in things]
    check("each of the 52 cards is named once", all(names.count(card) == 1 for card in cards))
    check("question and answer have names",
          [t.name for t in things if t.getRoleName() == "text"] == ["Vraag", "Antwoord"])
    check("the grid has a name", any(t.getRoleName() == "table" and t.name == "Gespeelde slagen" for t in things))
    lists = [t.name for t in things if t.getRoleName() == "list"]
    check("both lists have names", {"Spellen uit RVLX", "Tavrin"} <= set(lists) and all(lists))
    said.clear()
    for _ in range(20):  # to the first hand, wherever the click left the keyboard
        press("Tab")
        pump(0.1)
        if any(words in cards for words in said):
            break
    wait_for("the card under the cursor", lambda: any(words in cards for words in said))
    said.clear()
    press("Right")
    wait_for("the next card under the cursor", lambda: any(words in cards for words in said))
    press("Escape")


def walk_editor():
    click("push button", "Editor")
    click("list item", "QVT_Spel 001")

    def markers():
        return [t.name for t in everything() if t.getRoleName() == "push button" and
                t.name.startswith("Nummer ")]

    wait_for("the texts", lambda: any(name.endswith(", met tekst") for name in markers()))
    seen = markers()
    check("the 52 markers have their numbers in turn",
          [name.split(",")[0] for name in seen] == ["Nummer %d" % (n + 1) for n in range(52)])
    check("and their state", all(name.endswith((", met tekst", ", zonder tekst")) for name in seen))
    click("push button", seen[8])
    wait_for("the marker in work", lambda: find("push button", "Nummer 9, wordt geschreven"))
    check("the box has a name", find("text", "Bijschrift kaarten"))
    press("Escape")


def main():
    folder = tempfile.mkdtemp()
    shutil.copytree(sys.argv[2], folder, dirs_exist_ok=True)
    with open(os.path.join(folder, "standaardtavrin.ini"), "w") as settings:
        settings.write("[Platform]\r\nProgramFiles=.\r\nServer=127.0.0.1:9\r\n[Standaard]\r\nSnelheid=300\r\n")
    said = []
    pyatspi.Registry.registerEventListener(lambda event: said.append(event.source.description),
                                           "object:property-change:accessible-description")
    process = subprocess.Popen([sys.argv[1], "--program", folder])
    try:
        wait_for("the program", program)
        wait_for("the list", lambda: find("list", "Spellen"))
        main_screen = list(everything())
        check("every button of the main screen has a name",
              all(t.name for t in main_screen if t.getRoleName() == "push button"))
        check("they are seven and Downloaden", sum(t.getRoleName() == "push button" for t in main_screen) == 8)

        click("list item", "QVT_Spel 001")
        click("push button", "Tavrin")
        wait_for("the table", lambda: find("push button", "Start"))
        names = [t.name for t in everything()]
        check("the contract is read with its suit", names[names.index("Zuid: 4") + 1] == "Harten")
        check("a place without a card is silent",
              all(t.name for t in everything() if t.getRoleName() == "image"))
        click("push button", "Start")
        wait_for("the first text", lambda: any("West legt ruitenaas op tafel" in words for words in said))
        check("the lead was told with its seat", any("West: Ruiten Aas" in words for words in said))
        click("push button", "Verder")
        wait_for("the second card", lambda: any("Noord: " in words for words in said))
        check("the card of the next seat was told", True)
        press("Escape")

        walk_preparation(said)
        walk_editor()
    finally:
        process.kill()
        shutil.rmtree(folder)
    sys.exit(1 if check.failed else 0)


main()
