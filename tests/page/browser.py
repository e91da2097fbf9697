"""Drives a headless Chromium through its driver, by the protocol's plain HTTP."""
import base64
import json
import os
import re
import subprocess
import tempfile
import time
import urllib.error
import urllib.request

PATIENCE = 10  # seconds
PLAIN = urllib.request.build_opener(urllib.request.ProxyHandler({}))
ELEMENT = "element-6066-11e4-a52e-4f735466cecf"
KEYS = {"left": "\ue012", "right": "\ue014", "home": "\ue011", "end": "\ue010", "space": " ", "enter": "\ue007"}


class Browser:
    def __init__(self, driver, chromium):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.process = subprocess.Popen([driver, "--port=0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                                        text=True, env={**os.environ, "HOME": self.profile.name})
        self.address = "http://127.0.0.1:" + self._port()
        words = ["--headless", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
                 "--disable-component-update", "--disable-sync", "--hide-scrollbars",
                 "--user-data-dir=" + self.profile.name + "/profile"]
        if os.geteuid() == 0:
            words.append("--no-sandbox")
        wanted = {"browserName": "chrome",
                  "goog:chromeOptions": {"binary": chromium, "args": words},
                  "goog:loggingPrefs": {"browser": "ALL", "performance": "ALL"}}
        self.session = ""
        answer = self.call("POST", "/session", {"capabilities": {"alwaysMatch": wanted}})
        self.session = "/session/" + answer["sessionId"]
        self.open("about:blank")
        self.requests()  # those of the browser's own first page

    def _port(self):
        for line in self.process.stdout:
            found = re.search(r"successfully on port (\d+)", line)
            if found:
                return found.group(1)
        raise RuntimeError("the driver did not start")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        try:
            self.call("DELETE", "")
        finally:
            self.process.terminate()
            self.process.wait()
            self.profile.cleanup()

    def call(self, method, path, body=None):
        data = None if body is None else json.dumps(body).encode()
        request = urllib.request.Request(self.address + self.session + path, data, method=method,
                                         headers={"Content-Type": "application/json"})
        try:
            with PLAIN.open(request, timeout=60) as answer:
                return json.load(answer)["value"]
        except urllib.error.HTTPError as error:
            raise RuntimeError(json.load(error)["value"]["message"].splitlines()[0]) from None

    def devtools(self, command, parameters=None):
        return self.call("POST", "/goog/cdp/execute", {"cmd": command, "params": parameters or {}})

    def resize(self, width, height, touch=False):
        self.width = width
        self.devtools("Emulation.setDeviceMetricsOverride",
                      {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": touch})
        self.devtools("Emulation.setTouchEmulationEnabled", {"enabled": touch})

    def open(self, file):
        self.call("POST", "/url", {"url": file})

    def run(self, script, *values):
        """What the script returns; it sees its values as `arguments`."""
        return self.call("POST", "/execute/sync", {"script": script, "args": list(values)})

    def find(self, selector):
        return self.call("POST", "/element", {"using": "css selector", "value": selector})[ELEMENT]

    def click(self, selector):
        self.call("POST", "/element/" + self.find(selector) + "/click", {})

    def text(self, selector):
        """As it is seen."""
        return self.call("GET", "/element/" + self.find(selector) + "/text")

    def press(self, key):
        presses = [{"type": kind, "value": KEYS.get(key, key)} for kind in ("keyDown", "keyUp")]
        self.call("POST", "/actions", {"actions": [{"type": "key", "id": "keys", "actions": presses}]})

    def tap(self, selector, across):
        """Touches the element at that share of its width."""
        box = self.run("const b = document.querySelector(arguments[0]).getBoundingClientRect();"
                       "return [b.left, b.top, b.width, b.height]", selector)
        at = {"x": round(box[0] + box[2] * across), "y": round(box[1] + box[3] / 2)}
        moves = [{"type": "pointerMove", **at}, {"type": "pointerDown", "button": 0},
                 {"type": "pointerUp", "button": 0}]
        self.call("POST", "/actions", {"actions": [
            {"type": "pointer", "id": "finger", "parameters": {"pointerType": "touch"}, "actions": moves}]})

    def wait(self, what, condition):
        end = time.time() + PATIENCE
        while not condition():
            if time.time() > end:
                raise AssertionError("did not come: " + what)
            time.sleep(0.02)

    def log(self, kind):
        return self.call("POST", "/se/log", {"type": kind})

    def requests(self):
        """The addresses that were asked for since the last time."""
        messages = [json.loads(entry["message"])["message"] for entry in self.log("performance")]
        return [message["params"]["request"]["url"] for message in messages
                if message["method"] == "Network.requestWillBeSent"]

    def picture(self, file):
        with open(file, "wb") as picture:
            picture.write(base64.b64decode(self.call("GET", "/screenshot")))
