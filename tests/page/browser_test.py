"""Plays exported lessons in a browser, by clicks, taps and keys, on a phone and on a projector.

usage: browser_test.py ZANDOLIN_DEALS SAMPLES FOLDER CHROMEDRIVER CHROMIUM     FOLDER then holds pictures
"""
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import time

from browser import Browser

SEATS = ["Noord", "Oost", "Zuid", "West"]
SUITS = ["Schoppen", "Harten", "Ruiten", "Klaveren"]
VALUES = ["2", "3", "4", "5", "6", "7", "8", "9", "10", "Boer", "Vrouw", "Heer", "Aas"]
# Width, height, whether by touch, how many cards are played by the timer.
SIZES = {"phone": (390, 844, True, 52), "small-phone": (360, 640, True, 0), "lying-phone": (844, 390, True, 0),
         "projector": (1920, 1080, False, 20), "old-projector": (1024, 768, False, 0)}
HOSTILE = "<script>document.title='kwaad'</script></p>\"'&amp; <img src=x onerror=\"document.title='kwaad'\"> A<B"
RECORD = 532  # bytes of the text of a card in its file

deals, samples, folder, driver, chromium = sys.argv[1:]
folder = pathlib.Path(folder)


def export(name, lessons, program):
    subprocess.run([deals, "export", *lessons, "--to", folder / name, "--program", program], check=True,
                   stdout=subprocess.DEVNULL)
    return (folder / name).as_uri()


class Recorded:
    """A lesson as its files have it: who plays what, and the texts."""

    def __init__(self, lesson):
        self.name = lesson
        self.says, self.texts = [], {}
        for row in self.file("aftavrin").splitlines():
            order, *codes = row.split("|")
            for seat in order:
                number = int(codes[int(seat) - 1]) - 2201
                self.says.append(f"{SEATS[int(seat) - 1]} speelt {SUITS[number // 13]} {VALUES[number % 13]}.")
        records = self.file("informatie")
        for at in range(0, len(records), RECORD):
            number, text = records[at:at + RECORD].rstrip(" ").split("|")
            if text.strip():
                self.texts[int(number)] = text.replace("~", "\n").strip()

    def file(self, which):
        path = pathlib.Path(samples, "aftavrin", self.name, f"{self.name} {which}.txt")
        return path.read_bytes().decode("cp1252")


class Page(Browser):
    def position(self):
        return self.run("return shown.position")

    def seen(self, selector):
        return self.run("return document.querySelector('.chosen ' + arguments[0]).checkVisibility({visibilityProperty: true})",
                        selector)

    def told(self):
        return self.run("return document.querySelector('.chosen .told').textContent")

    def stopped_at(self, card):
        """The text of the card, where the play waits."""
        self.wait(f"card {card}", lambda: self.position() == card and self.text(".chosen .main") == "Verder")
        return self.text(".chosen .note")

    def check_places(self, what):
        """Nothing lies beside the window, the buttons are in it, and no card leaves the felt."""
        wrong = self.run("""
            const inside = (box, of) => box.left >= of.left - 1 && box.right <= of.right + 1 &&
                box.top >= of.top - 1 && box.bottom <= of.bottom + 1;
            const window_ = {left: 0, top: 0, right: arguments[0], bottom: innerHeight};
            const wrong = [];
            if (document.documentElement.scrollWidth > arguments[0]) wrong.push('it scrolls sideways');
            for (const button of document.querySelectorAll('.chosen button')) {
                const box = button.getBoundingClientRect();
                if (!inside(box, window_) || box.width < 40 || box.height < 40) wrong.push(button.className);
            }
            const felt = document.querySelector('.chosen .felt');
            const places = new Set();
            if (felt && felt.getClientRects().length) {
                for (const card of felt.querySelectorAll('use:not(.gone)')) {
                    const box = card.getBoundingClientRect();
                    if (!inside(box, felt.getBoundingClientRect())) wrong.push(card.getAttribute('href'));
                    places.add(card.style.transform);
                }
                if (places.size !== felt.querySelectorAll('use:not(.gone)').length) wrong.push('cards on each other');
            }
            return wrong""", self.width)  # a phone's own width grows with the page
        assert wrong == [], f"{what}: {wrong}"

    def at_rest(self):
        self.wait("cards at rest", lambda: self.run("return document.getAnimations().length") == 0)

    def open_cards(self):
        return self.run("return document.querySelectorAll('.chosen .felt use:not(.gone):not([href=\"#kaart-0\"])').length")


def play(page, lesson, size, cards):
    """By the one button, as fast as it goes."""
    for _ in range(10):
        page.click(".chosen .faster")
    assert page.text(".chosen .speed") == "0,1 s"
    page.click(".chosen .main")
    for at in sorted(at for at in lesson.texts if at <= cards):
        assert page.stopped_at(at) == lesson.texts[at], at
        assert page.told().startswith(lesson.says[at - 1]), page.told()
        page.at_rest()
        page.check_places(f"{size}, card {at}")
        box = page.run("const b = document.querySelector('.chosen .note').getBoundingClientRect();"
                       "return [b.top, b.bottom, innerHeight - document.querySelector('.chosen .bar').offsetHeight]")
        assert box[0] >= 0 and (box[1] <= box[2] + 1 or box[1] - box[0] > box[2]), f"{size}: the text is out of sight"
        if at in (1, 12):
            page.picture(folder / f"{size}-card-{at}.png")
        page.click(".chosen .main")
    if cards == 52:
        page.wait("the end", lambda: page.text(".chosen .main") == "Opnieuw")


def has_a_place_for_all_at(page, size, width, height, touch, cards):
    lesson = Recorded("QVT_Spel 001")
    page.resize(width, height, touch)
    page.open(export("lesson.html", [lesson.name], samples))
    page.picture(folder / f"{size}-question.png")
    page.check_places(size)
    assert page.seen(".question") and page.seen(".bidding") and not page.seen(".answer")
    assert page.open_cards() == 0
    if cards:
        play(page, lesson, size, cards)
    page.press("end")
    assert page.open_cards() == 52
    assert (page.text(".chosen .north-south"), page.text(".chosen .east-west")) == ("10", "3")
    page.at_rest()
    page.check_places(size + ", the end")
    assert not page.seen(".answer p")
    page.click(".chosen summary")
    assert "De tiende slag is een aftroever" in page.text(".chosen .answer p")
    page.picture(folder / f"{size}-end.png")
    # The sides' hands when they are declarer and dummy.
    page.open(export("west.html", ["QVT_Spel 003"], samples))
    page.click(".chosen .main")
    page.at_rest()
    page.picture(folder / f"{size}-west.png")
    page.check_places(size + ", West declarer")
    asked = [address for address in page.requests() if not address.startswith("file:")]
    assert asked == [], asked
    assert page.log("browser") == [], "the browser complains"


def goes_card_by_card(page):
    lesson = Recorded("QVT_Spel 002")
    page.resize(1280, 720)
    page.open(export("keys.html", [lesson.name], samples))
    for card, says in enumerate(lesson.says, 1):
        page.press("right")
        assert page.told().startswith(says), (card, page.told())
        assert page.run("return document.querySelector('.chosen .note').textContent") == lesson.texts.get(card, "")
    page.press("right")
    page.press("right")  # there is nothing behind the end
    assert page.text(".chosen .main") == "Opnieuw" and page.open_cards() == 52
    page.press("left")
    page.press("left")
    assert page.position() == 51 and page.told().startswith(lesson.says[50])
    page.press("home")
    page.press("left")
    assert page.position() == 0 and page.seen(".question")
    quiet = next(card for card in range(1, 40) if not {card + 1, card + 2, card + 3} & set(lesson.texts))
    for _ in range(quiet):
        page.press("right")
    page.press("space")
    assert page.text(".chosen .main") == "Pauze"
    page.wait("the next card", lambda: page.position() >= quiet + 2)
    page.press("space")
    assert page.text(".chosen .main") == "Verder"
    stands = page.position()
    time.sleep(1.3)
    assert page.position() == stands, "a pause lasts"
    page.click(".chosen .back")
    page.click(".chosen .forward")
    page.tap(".chosen .stage", 0.2)
    assert page.position() == stands - 1
    page.tap(".chosen .stage", 0.7)
    assert page.position() == stands
    page.press("-")
    assert page.text(".chosen .speed") == "1,5 s"
    page.devtools("Emulation.setEmulatedMedia", {"features": [{"name": "prefers-reduced-motion", "value": "reduce"}]})
    assert page.run("return getComputedStyle(document.querySelector('.felt use')).transitionDuration") == "0s"


def is_told_to_a_screen_reader(page):
    page.resize(1280, 720)
    page.open(export("told.html", ["QVT_Spel 001"], samples))
    page.click(".chosen .main")
    nodes = page.devtools("Accessibility.getFullAXTree")["nodes"]
    told = [(node["role"]["value"], node.get("name", {}).get("value", "")) for node in nodes
            if not node.get("ignored") and "role" in node]
    names = [name for role, name in told if role == "button"]
    assert names == ["Kaart terug", "Verder", "Kaart vooruit", "Langzamer", "Sneller"], names
    words = " ".join(" ".join(name for role, name in told if role == "StaticText").split())
    for expected in ("Zuid: 4 Harten", "West speelt Ruiten Aas.", "Noord: Schoppen 9, Schoppen 5"):
        assert expected in words, words


def lets_no_text_run(page):
    program = folder / "program"
    shutil.rmtree(program, ignore_errors=True)
    shutil.copytree(pathlib.Path(samples, "aftavrin"), program / "aftavrin")
    lesson = program / "aftavrin/QVT_Spel 001"
    for which in ("vraag", "antwoord"):
        (lesson / f"QVT_Spel 001 {which}.txt").write_text("\r\n" + HOSTILE + "\r\n", "cp1252", newline="")
    texts = lesson / "QVT_Spel 001 informatie.txt"
    texts.write_bytes(("1|" + HOSTILE).ljust(RECORD).encode("cp1252") + texts.read_bytes()[RECORD:])
    page.resize(390, 844, True)
    page.open(export("hostile.html", ["QVT_Spel 001", "QVT_Spel 002"], program))
    page.check_places("list")
    page.picture(folder / "list.png")
    page.click("nav li:first-child a")
    assert page.run("return document.querySelector('.question p').textContent") == HOSTILE
    page.click(".chosen .main")
    assert page.stopped_at(1) == HOSTILE
    page.press("end")
    page.click(".chosen summary")
    assert page.text(".chosen .answer p") == HOSTILE
    assert page.run("return document.title") == "Lessen"
    assert page.run("return document.querySelectorAll('script, img').length") == 1
    page.click(".chosen header a")
    page.click("nav li:last-child a")
    assert page.text(".chosen h1") == "Spel 2"


def is_read_without_a_script(page):
    page.resize(390, 844, True)
    page.devtools("Emulation.setScriptExecutionDisabled", {"value": True})
    page.open(export("sheet.html", ["QVT_Spel 001"], samples))
    page.picture(folder / "without-script.png")
    assert page.text(".play tr.text:nth-child(2) p").startswith("West legt ruitenaas")
    assert "Noord-Zuid 10, Oost-West 3" in page.text(".result")
    page.devtools("Emulation.setScriptExecutionDisabled", {"value": False})


def shows_soon(page):
    """A figure, not a judgement: from the address to the first picture."""
    times = []
    page.resize(1920, 1080)
    address = export("five.html", [f"QVT_Spel 00{number}" for number in range(1, 6)], samples)
    for _ in range(9):
        page.open(address)
        paint = "return performance.getEntriesByName('first-contentful-paint')[0]?.startTime"
        page.wait("a picture", lambda: page.run(paint))
        times.append(page.run(paint))
    print(f"first picture of a page of five lessons\t{statistics.median(times):.0f}\tms\t300")


def main():
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    with Page(driver, chromium) as page:
        for size, how in SIZES.items():
            has_a_place_for_all_at(page, size, *how)
            print(size, "ok", flush=True)
        for check in (goes_card_by_card, is_told_to_a_screen_reader, lets_no_text_run, is_read_without_a_script,
                      shows_soon):
            check(page)
            print(check.__name__, "ok", flush=True)


main()
