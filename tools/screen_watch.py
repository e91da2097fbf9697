#!/usr/bin/python3
"""Sees what is on the display. Commands come a line each, and each gets a line back:

    mark                    forgets what was drawn so far
    change SECONDS          waits until something has been drawn since the mark: "yes", or "no" when they have passed
    rest MILLIS SECONDS     waits until nothing has been drawn for so many milliseconds: the same
    look WINDOW FILE        takes a picture of a window and keeps it in that file too; what follows is of the last picture
    shares L T W H COLOUR...
                            how much of a place has about each colour, six hexadecimal digits, in thousandths
    same L T W H L T W H    whether two places look alike: "yes" or "no"

Places are pixels of the window.
"""
import collections
import select
import sys
import time

from Xlib import X, display
from Xlib.ext import damage

NEAR = 38  # by so much a part of a colour may differ

screen = display.Display()
root = screen.screen().root
screen.damage_query_version()
drawn = root.damage_create(damage.DamageReportNonEmpty)
last = time.monotonic()
changed = False


def take():
    """Notes what was drawn up to now."""
    global last, changed
    screen.sync()
    while screen.pending_events():
        if screen.next_event().type == screen.extension_event.DamageNotify:
            last, changed = time.monotonic(), True
            screen.damage_subtract(drawn)
            screen.sync()


def wait(seconds, time_left):
    until = time.monotonic() + seconds
    while True:
        take()
        left = time_left()
        if left <= 0:
            return "yes"
        now = time.monotonic()
        if now >= until:
            return "no"
        select.select([screen.fileno()], [], [], min(left, until - now))


class Picture:
    def __init__(self, window, file):
        shown = screen.create_resource_object("window", window)
        size = shown.get_geometry()
        corner = root.translate_coords(shown, 0, 0)
        self.width = size.width
        self.pixels = root.get_image(corner.x, corner.y, size.width, size.height, X.ZPixmap, 0xFFFFFFFF).data
        rgb = bytearray(3 * size.width * size.height)
        for part in range(3):
            rgb[part::3] = self.pixels[2 - part::4]
        with open(file, "wb") as out:
            out.write(b"P6 %d %d 255\n" % (size.width, size.height) + rgb)

    def place(self, left, top, width, height):
        return b"".join(self.pixels[4 * (row * self.width + left):4 * (row * self.width + left + width)]
                        for row in range(top, top + height))

    def shares(self, place, colours):
        counts = collections.Counter(memoryview(self.place(*place)).cast("I"))
        whole = sum(counts.values())
        for colour in colours:
            near = sum(count for pixel, count in counts.items()
                       if all(abs((pixel >> bits & 255) - (colour >> bits & 255)) <= NEAR for bits in (0, 8, 16)))
            yield str(round(1000 * near / whole))


def answer(word, arguments):
    global changed, picture
    if word == "mark":
        take()
        changed = False
        return "yes"
    if word == "change":
        seconds = float(arguments[0])
        return wait(seconds, lambda: 0 if changed else seconds)
    if word == "rest":
        quiet, began = float(arguments[0]) / 1000, time.monotonic()
        return wait(float(arguments[1]), lambda: max(last, began) + quiet - time.monotonic())
    if word == "look":
        picture = Picture(int(arguments[0]), arguments[1])
        return "yes"
    places = [int(number) for number in arguments[:8 if word == "same" else 4]]
    if word == "same":
        return "yes" if picture.place(*places[:4]) == picture.place(*places[4:]) else "no"
    return " ".join(picture.shares(places, [int(colour, 16) for colour in arguments[4:]]))


picture = None
take()
for line in sys.stdin:
    words = line.split()
    try:
        print(answer(words[0], words[1:]), flush=True)
    except Exception as failure:  # a window went, or a place lies outside it
        print("no:", failure, flush=True)
