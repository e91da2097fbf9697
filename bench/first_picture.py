"""Milliseconds from opening a page to its first picture in a browser, a line a time.

usage: first_picture.py CHROMEDRIVER CHROMIUM TIMES PAGE...
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "tests" / "page"))
from browser import Browser  # noqa: E402

PAINT = "return performance.getEntriesByName('first-contentful-paint')[0]?.startTime"

driver, chromium, times, *pages = sys.argv[1:]
with Browser(driver, chromium) as browser:
    browser.resize(1024, 768)
    for page in pages:
        for _ in range(int(times)):
            browser.open("about:blank")
            browser.open(pathlib.Path(page).absolute().as_uri())
            browser.wait("a picture", lambda: browser.run(PAINT))
            print(browser.run(PAINT))
