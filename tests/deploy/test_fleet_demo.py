# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The demonstration of a site, as scripts/fleet-demo starts it once everything is built.

test_fleet_demo.py PROGRAMS
"""
import json
import os
import pathlib
import pty
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import unittest
import urllib.request
import uuid

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/web"))
from brokers import find_program, until  # noqa: E402
from chromium import find_chromium  # noqa: E402


class Demo:
    """The running demonstration. What it starts is told by a variable in the environment, and what it keeps is
    in a folder of its own."""

    def __init__(self, test, *arguments, terminal=False, programs=sys.argv[1]):
        self._mark = f"VX_FLEET_DEMO_TEST={uuid.uuid4()}"
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-"))
        test.addCleanup(shutil.rmtree, self.folder)
        (self.folder / "t").mkdir()
        self._log = self.folder / "output"
        name, value = self._mark.split("=")
        environment = dict(os.environ, **{name: value, "TMPDIR": str(self.folder / "t")})
        for variable in ("DISPLAY", "WAYLAND_DISPLAY"):
            environment.pop(variable, None)
        self._keyboard, stdin = pty.openpty() if terminal else (None, subprocess.DEVNULL)
        with self._log.open("wb") as output:
            self.process = subprocess.Popen(
                [sys.executable, "-B", ROOT / "scripts/lib/fleet_demo.py", programs, *arguments], stdin=stdin,
                stdout=output, stderr=subprocess.STDOUT, env=environment)
        if terminal:
            os.close(stdin)
            test.addCleanup(os.close, self._keyboard)
        test.addCleanup(self._kill)

    def _kill(self):
        for number in [self.process.pid, *self.left_running()]:
            try:
                os.kill(number, signal.SIGKILL)
            except ProcessLookupError:
                pass
        self.process.wait()

    def left_running(self):
        """The processes that it has started and that run."""
        found = []
        for entry in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                environment = (entry / "environ").read_bytes()
                state = (entry / "stat").read_text().rsplit(")", 1)[1].split()[0]
            except OSError:  # it has ended, or belongs to another user
                continue
            if self._mark.encode() in environment.split(b"\0") and state != "Z":
                found.append(int(entry.name))
        return [number for number in found if number != self.process.pid]

    def left_behind(self):
        return [path.name for path in (self.folder / "t").iterdir()]

    def output(self):
        return self._log.read_text()

    def until_it_says(self, pattern):
        def found():
            if self.process.poll() is not None and not re.search(pattern, self.output()):
                raise AssertionError(f"it has ended with {self.process.returncode} and not said {pattern!r}:\n"
                                     + self.output())
            return re.search(pattern, self.output())
        return until(found, f"{pattern!r} of the demonstration")

    def press_enter(self):
        os.write(self._keyboard, b"\n")

    def ended(self):
        """The exit status."""
        until(lambda: self.process.poll() is not None, "the end of the demonstration")
        return self.process.returncode


class FleetDemoTest(unittest.TestCase):
    def tearDown(self):
        print(self.id(), flush=True)

    def assert_nothing_is_left(self, demo):
        self.assertEqual(demo.left_running(), [])
        self.assertEqual(demo.left_behind(), [])

    def assert_story_is_told(self, output):
        places = []
        for line in (r"all printers have reported", r"labels of Packing 2 are jammed",
                     r"Shipping 1 has run out of labels", r"ALERT VxPrinterError: Packing 2: labels_jammed",
                     r'alert manager writes to "support": Packing 2: labels_jammed',
                     r"ALERT VxSupplyOut: Shipping 1: out_of_labels",
                     r'alert manager writes to "line": Shipping 1: out_of_labels',
                     r"agent of goods-in was killed", r"ALERT VxAgentGone: no agent at goods-in",
                     r'alert manager writes to "support": no agent at goods-in',
                     r"agent of goods-in was started again"):
            found = re.search(line, output)
            self.assertTrue(found, f"{line}:\n{output}")
            places.append(found.start())
        self.assertEqual(places, sorted(places), output)

    @unittest.skipUnless(find_chromium(), "chromium is not installed")
    def test_without_a_terminal_it_ends_by_itself_and_leaves_a_picture(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-"))
        self.addCleanup(shutil.rmtree, folder)
        demo = Demo(self, "--picture", str(folder / "page.png"))
        self.assertEqual(demo.ended(), 0, demo.output())
        self.assert_story_is_told(demo.output())
        self.assert_nothing_is_left(demo)
        picture = (folder / "page.png").read_bytes()
        self.assertEqual((picture[:8], *struct.unpack(">II", picture[16:24])), (b"\x89PNG\r\n\x1a\n", 1440, 900))

    def test_in_a_terminal_it_goes_on_until_enter_is_pressed(self):
        demo = Demo(self, terminal=True)
        demo.until_it_says("Press Enter")
        # Everything that it names is there.
        addresses = re.findall(r"http://127\.0\.0\.1:[0-9]+/\S*", demo.output())
        self.assertEqual(len(addresses), 4, demo.output())
        for address in addresses:
            with urllib.request.urlopen(address, timeout=60) as answer:
                self.assertEqual(answer.status, 200, address)
        with urllib.request.urlopen(addresses[0] + "config.json", timeout=60) as answer:
            self.assertEqual(json.load(answer)["sites"], ["plant-1"])
        demo.press_enter()
        self.assertEqual(demo.ended(), 0, demo.output())
        self.assert_story_is_told(demo.output())
        self.assert_nothing_is_left(demo)

    def test_a_signal_ends_it_at_once_and_it_cleans_up(self):
        for number, line in ((signal.SIGINT, "the page"), (signal.SIGTERM, "all printers have reported"),
                             (signal.SIGINT, None)):
            with self.subTest(number.name):
                demo = Demo(self)
                if line:
                    demo.until_it_says(line)
                else:  # while it starts
                    until(lambda: demo.left_behind(), "its temporary folder")
                demo.process.send_signal(number)
                self.assertEqual(demo.ended(), 128 + number, demo.output())
                self.assertNotIn("Traceback", demo.output())
                self.assert_nothing_is_left(demo)

    def test_a_program_that_is_missing_is_named(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-"))
        self.addCleanup(shutil.rmtree, folder)
        demo = Demo(self, programs=str(folder))
        self.assertEqual(demo.ended(), 1, demo.output())
        self.assertRegex(demo.output(), r"^fleet-demo: .*vx_week_of_use")
        self.assertNotIn("Traceback", demo.output())
        self.assert_nothing_is_left(demo)


if __name__ == "__main__":
    missing = [name for name in ("nats-server", "prometheus", "prometheus-alertmanager") if not find_program(name)]
    if missing:
        print(f"not installed: {', '.join(missing)}; scripts/test installs what the tests need")
        sys.exit(77)
    unittest.main(argv=sys.argv[:1])
