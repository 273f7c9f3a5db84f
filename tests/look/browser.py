"""Chromium without a window, told what to do through a pair of pipes."""

import base64
import json
import os
import shutil
import subprocess
import tempfile


def find_chromium():
    return shutil.which("chromium") or shutil.which("chromium-browser")


class Browser:
    """One page; what it says on the console and what it asks the network for is kept."""

    def __init__(self):
        self.profile = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        to_child, self.commands = os.pipe()
        self.answers, from_child = os.pipe()

        def take_places():
            # The browser expects them as 3 and 4, which other descriptors may be now.
            reading, writing = os.dup(to_child), os.dup(from_child)
            os.dup2(reading, 3)
            os.dup2(writing, 4)

        # Without a sandbox, as it has none for the user root; it sees no other pages than ours.
        self.process = subprocess.Popen(
            [find_chromium(), "--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
             "--disable-dev-shm-usage", "--hide-scrollbars", "--remote-debugging-pipe",
             f"--user-data-dir={self.profile.name}"],
            preexec_fn=take_places, close_fds=False, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(to_child)
        os.close(from_child)
        self.buffer = b""
        self.number = 0
        self.session = None
        self.events = []
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        self.session = self.call("Target.attachToTarget", targetId=target,
                                 flatten=True)["sessionId"]
        for domain in ("Page", "Runtime", "Log", "Network"):
            self.call(f"{domain}.enable")

    def close(self):
        os.close(self.commands)
        os.close(self.answers)
        try:
            self.process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.profile.cleanup()

    def receive(self):
        while b"\0" not in self.buffer:
            piece = os.read(self.answers, 1 << 20)
            if not piece:
                raise EOFError("chromium has ended")
            self.buffer += piece
        message, self.buffer = self.buffer.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        self.number += 1
        command = {"id": self.number, "method": method, "params": parameters}
        if self.session:
            command["sessionId"] = self.session
        os.write(self.commands, json.dumps(command).encode() + b"\0")
        while True:
            message = self.receive()
            if message.get("id") == self.number:
                if "error" in message:
                    raise RuntimeError(f"{method}: {message['error']}")
                return message["result"]
            self.events.append(message)

    def open(self, path, width=1280, height=900, dark=False):
        """Loads the file anew, on a screen of that size."""
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height,
                  deviceScaleFactor=1, mobile=width < 600)
        scheme = "dark" if dark else "light"
        self.call("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": scheme}])
        self.events = []
        self.call("Page.navigate", url=f"file://{path}")
        while not any(event.get("method") == "Page.loadEventFired" for event in self.events):
            self.events.append(self.receive())

    def evaluate(self, expression):
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(answer["exceptionDetails"])
        return answer["result"].get("value")

    def screenshot(self):
        answer = self.call("Page.captureScreenshot", captureBeyondViewport=True)
        return base64.b64decode(answer["data"])

    def pdf(self):
        answer = self.call("Page.printToPDF", preferCSSPageSize=True, printBackground=False)
        return base64.b64decode(answer["data"])

    def requests(self):
        return [event["params"]["request"]["url"] for event in self.events
                if event.get("method") == "Network.requestWillBeSent"]

    def remarks(self):
        """What the page's loading left on the console."""
        methods = ("Runtime.consoleAPICalled", "Runtime.exceptionThrown", "Log.entryAdded")
        return [event["params"] for event in self.events if event.get("method") in methods]
