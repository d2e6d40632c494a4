# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The monitor on a console of Windows, which Wine draws on a pseudo-terminal. Wine's console does
not know escape sequences, but passes them on.

test_console.py VXPRINTMON ADD_PRINTER
"""
import fcntl
import os
import pty
import re
import select
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

VXPRINTMON, ADD_PRINTER = sys.argv[1:]
# In seconds; ends what hangs.
LIMIT = 120
NAME = "Überseekiste 東京"
ALTERNATE = re.compile(r"\x1b\[\?1049([hl])")
WRAPPING = re.compile(r"\x1b\[\?7([hl])")
# Wine hides the cursor while it draws.
DRAWING = re.compile(r"\x1b\[\?25[hl]")


class Console:
    """A program on a console of its own."""

    def __init__(self, environment, *arguments):
        self.written = b""
        self.master, slave = pty.openpty()
        fcntl.ioctl(slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, 80, 0, 0))
        self.process = subprocess.Popen(
            ("wine", VXPRINTMON, *arguments), env=environment, stdin=slave, stdout=slave,
            stderr=slave, start_new_session=True,
            preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0))
        os.close(slave)

    def close(self):
        self.process.kill()
        self.process.wait()
        os.close(self.master)

    def read(self):
        """Reads what has arrived by now. False if that was nothing."""
        if not select.select([self.master], [], [], 0.05)[0]:
            return False
        try:
            data = os.read(self.master, 65536)
        except OSError:  # nobody has the terminal any more
            return False
        self.written += data
        return bool(data)

    def text(self):
        return DRAWING.sub("", self.written.decode(errors="replace"))

    def until_shown(self, text):
        deadline = time.monotonic() + LIMIT
        while text not in self.text():
            if time.monotonic() > deadline:
                raise AssertionError(f"{text!r} was not written: {self.text()!r}")
            self.read()

    def end(self):
        """Waits for the end of the program, and returns its exit status."""
        deadline = time.monotonic() + LIMIT
        while self.process.poll() is None:
            if time.monotonic() > deadline:
                raise AssertionError(f"the program has not ended: {self.text()!r}")
            self.read()
        while self.read():
            pass
        return self.process.returncode


class OnAConsole(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.environment = dict(os.environ, WINEPREFIX=os.path.join(cls.folder.name, "prefix"),
                               WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=", TERM="xterm")
        os.mkdir(cls.environment["WINEPREFIX"])
        cls.addClassCleanup(cls.run_quietly, "wineserver", "-w")
        cls.addClassCleanup(cls.run_quietly, "wineserver", "-k")
        cls.run_quietly("wine", "wineboot", "-i")
        cls.run_quietly("wine", ADD_PRINTER, NAME, "Stratamark AlderMax", "USB001")

    @classmethod
    def run_quietly(cls, *command):
        subprocess.run(command, env=cls.environment, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=LIMIT)

    def console(self, *arguments):
        console = Console(self.environment, *arguments)
        self.addCleanup(console.close)
        return console

    def test_every_character_is_shown(self):
        console = self.console("list")
        self.assertEqual(console.end(), 0)
        self.assertIn(NAME, console.text())

    def test_messages_show_every_character(self):
        console = self.console("status", "Müller")
        self.assertEqual(console.end(), 1)
        self.assertIn('there is no printer "Müller"', console.text())

    def test_top_takes_the_console_and_gives_it_back(self):
        for key in (b"q", b"\x03"):
            with self.subTest(key):
                console = self.console("top")
                console.until_shown("Überseekiste")
                self.assertEqual(set(ALTERNATE.findall(console.text())), {"h"})
                os.write(console.master, key)
                self.assertEqual(console.end(), 0)
                self.assertEqual(ALTERNATE.findall(console.text())[-1], "l")
                self.assertEqual(WRAPPING.findall(console.text())[-1], "h")
                self.assertTrue(console.written.decode().rindex("\x1b[?25h")
                                > console.written.decode().rindex("\x1b[?25l"))

    def test_top_takes_keys(self):
        console = self.console("top")
        console.until_shown("Überseekiste")
        drawn = len(console.text())
        os.write(console.master, b"n")
        deadline = time.monotonic() + LIMIT
        while "name" not in console.text()[drawn:].lower():
            self.assertLess(time.monotonic(), deadline, console.text()[drawn:])
            console.read()
        os.write(console.master, b"q")
        self.assertEqual(console.end(), 0)


if __name__ == "__main__":
    assert "WINEPREFIX" in os.environ, "WINEPREFIX is not set; scripts/test-windows sets it"
    unittest.main(argv=sys.argv[:1])
