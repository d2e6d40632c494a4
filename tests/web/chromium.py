# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""A real Chromium without a window, driven over its DevTools protocol through pipes."""
import base64
import json
import os
import queue
import shutil
import signal
import subprocess
import tempfile
import threading
import time

# In seconds; ends what hangs.
LIMIT = 120


def find_chromium():
    for name in ("chromium", "chromium-browser", "google-chrome"):
        found = shutil.which(name)
        if found:
            return found
    return None


class PageError(Exception):
    """The page threw, or the browser refused a command."""


class Chromium:
    """The browser. It keeps nothing: its folder is removed with it."""

    def __init__(self, *options):
        self.folder = tempfile.mkdtemp(prefix="vx-chromium-")
        to_browser, self._to_browser = os.pipe()
        self._from_browser, from_browser = os.pipe()
        # The protocol's pipes are the descriptors 3 and 4.
        self._process = subprocess.Popen(
            ["bash", "-c", f'exec "$0" "$@" 3<&{to_browser} 4>&{from_browser}', find_chromium(),
             "--headless=new", "--remote-debugging-pipe", f"--user-data-dir={self.folder}", "--no-sandbox",
             "--no-first-run", "--disable-gpu", "--disable-dev-shm-usage", "--disable-extensions",
             "--disable-background-networking", "--disable-component-update", "--disable-sync",
             "--disable-default-apps", "--mute-audio", "--hide-scrollbars", *options, "about:blank"],
            pass_fds=(to_browser, from_browser), stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL, start_new_session=True, env={**os.environ, "HOME": self.folder})
        os.close(to_browser)
        os.close(from_browser)
        self._answers = {}
        self._listeners = {}
        self._arrived = threading.Condition()
        self._ended = False
        self._number = 0
        self._reader = threading.Thread(target=self._read, daemon=True)
        self._reader.start()

    def _read(self):
        rest = b""
        while True:
            data = os.read(self._from_browser, 1 << 20)
            if not data:
                break
            *messages, rest = (rest + data).split(b"\0")
            with self._arrived:
                for message in map(json.loads, messages):
                    if "id" in message:
                        self._answers[message["id"]] = message
                    else:
                        listener = self._listeners.get(message.get("sessionId"))
                        if listener:
                            listener.put(message)
                self._arrived.notify_all()
        with self._arrived:
            self._ended = True
            self._arrived.notify_all()

    def send(self, method, session=None, **parameters):
        with self._arrived:
            self._number += 1
            number = self._number
        message = {"id": number, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        data = json.dumps(message).encode() + b"\0"
        while data:
            data = data[os.write(self._to_browser, data):]
        deadline = time.monotonic() + LIMIT
        with self._arrived:
            while number not in self._answers:
                if self._ended or not self._arrived.wait(deadline - time.monotonic()):
                    raise PageError(f"{method}: the browser does not answer")
            answer = self._answers.pop(number)
        if "error" in answer:
            raise PageError(f"{method}: {answer['error']['message']}")
        return answer["result"]

    def open(self, address, **options):
        return Page(self, address, **options)

    def listen(self, session):
        self._listeners[session] = queue.SimpleQueue()
        return self._listeners[session]

    def close(self):
        try:
            os.killpg(self._process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass
        self._process.wait()
        self._reader.join()
        os.close(self._to_browser)
        os.close(self._from_browser)
        # Children of the browser may still be ending.
        for _ in range(100):
            shutil.rmtree(self.folder, ignore_errors=True)
            if not os.path.exists(self.folder):
                return
            time.sleep(0.1)


class Page:
    """A page in a context of its own: it shares neither storage nor cache with another."""

    def __init__(self, browser, address, width=1400, height=900, language="en", dark=False, mobile=False, script=""):
        self._browser = browser
        self._context = browser.send("Target.createBrowserContext")["browserContextId"]
        target = browser.send("Target.createTarget", url="about:blank", browserContextId=self._context,
                              width=width, height=height)["targetId"]
        self._session = browser.send("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        self._events = browser.listen(self._session)
        self.faults = []
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.send(f"{domain}.enable")
        agent = self.value("navigator.userAgent")
        self.send("Emulation.setUserAgentOverride", userAgent=agent, acceptLanguage=language)
        self.send("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=mobile)
        self.send("Emulation.setEmulatedMedia", features=[
            {"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])
        self.send("Emulation.setTimezoneOverride", timezoneId="Europe/Berlin")
        if script:
            self.send("Page.addScriptToEvaluateOnNewDocument", source=script)
        self.send("Page.navigate", url=address)

    def send(self, method, **parameters):
        return self._browser.send(method, self._session, **parameters)

    def value(self, expression):
        """The value of an expression in the page; of a promise, what it becomes."""
        answer = self.send("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True,
                           allowUnsafeEvalBlockedByCSP=False)
        if "exceptionDetails" in answer:
            details = answer["exceptionDetails"]
            raise PageError(details.get("exception", {}).get("description", details["text"]))
        return answer["result"].get("value")

    def until(self, expression, limit=LIMIT):
        """Waits until the expression is true, and returns its value."""
        deadline = time.monotonic() + limit
        while True:
            try:
                value = self.value(f"(() => {{ try {{ return {expression} }} catch {{ return undefined }} }})()")
            except PageError:  # between two documents
                value = None
            if value:
                return value
            if time.monotonic() > deadline:
                raise PageError(f"not true within {limit} s: {expression}\n{self.value('document.body.innerText')}")
            time.sleep(0.02)

    def press(self, key, code=None, modifiers=0):
        text = key if len(key) == 1 else "\r" if key == "Enter" else ""
        for kind in ("keyDown", "keyUp"):
            self.send("Input.dispatchKeyEvent", type=kind, key=key, code=code or key, modifiers=modifiers,
                      windowsVirtualKeyCode={"Enter": 13, "Escape": 27, "Tab": 9}.get(key, 0),
                      **({"text": text} if kind == "keyDown" and text else {}))

    def type(self, text):
        self.send("Input.insertText", text=text)

    def click(self, selector):
        left, top = self.value(
            f"(() => {{ const box = document.querySelector({json.dumps(selector)}).getBoundingClientRect();"
            " return [box.x + box.width / 2, box.y + box.height / 2]; })()")
        for kind in ("mousePressed", "mouseReleased"):
            self.send("Input.dispatchMouseEvent", type=kind, x=left, y=top, button="left", clickCount=1)

    def picture(self, file):
        data = self.send("Page.captureScreenshot", format="png")["data"]
        with open(file, "wb") as out:
            out.write(base64.b64decode(data))

    def take_faults(self):
        """What went wrong in the page since the last call: exceptions, refusals by the policy, missing files.
        That a broker cannot be reached is not among them: the tests end brokers."""
        found = []
        while not self._events.empty():
            event = self._events.get()
            parameters = event["params"]
            if event["method"] == "Runtime.exceptionThrown":
                details = parameters["exceptionDetails"]
                found.append(details.get("exception", {}).get("description", details["text"]))
            elif event["method"] == "Log.entryAdded":
                entry = parameters["entry"]
                if entry["level"] == "error" and "WebSocket connection to" not in entry["text"]:
                    found.append(f"{entry['text']} {entry.get('url', '')}")
        return found

    def close(self):
        self._browser.send("Target.disposeBrowserContext", browserContextId=self._context)
