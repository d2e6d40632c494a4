# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The live table of the monitor on a pseudo-terminal, whose screen is emulated by pyte.

test_top.py VXPRINTMON
"""
import fcntl
import json
import os
import pty
import re
import select
import signal
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

import pyte
from wcwidth import wcswidth

VXPRINTMON = sys.argv[1]
# In seconds; ends what hangs.
LIMIT = 120
HOSTILE = "P\x1b[31m\x07\r\x9b\u202e\u2028\U000e0001"
ALTERNATE = re.compile(rb"\x1b\[\?1049([hl])")
CURSOR = re.compile(rb"\x1b\[\?25([hl])")
WRAPPING = re.compile(rb"\x1b\[\?7([hl])")


def printer(name, status="1", **values):
    return {"name": name, "driver": "Stratamark AlderMax",
            "values": {"StatusCode": status, "SupplyIdentifier": "000000641000030000A7",
                       "Mileage": 15240, "Ribbon1Identifier": 2001, "Ribbon1Mileage": 96013,
                       "Ribbon2Identifier": 2004, "Ribbon2Mileage": 42006, **values}}


class Terminal:
    """A terminal with a program on it."""

    def __init__(self, arguments, environment, columns=80, rows=24, command=None):
        self.screen = pyte.Screen(columns, rows)
        self.stream = pyte.ByteStream(self.screen)
        self.written = b""
        self.master, self.slave = pty.openpty()
        self.set_size(columns, rows)
        self.before = termios.tcgetattr(self.slave)
        self.process = subprocess.Popen(
            command or (VXPRINTMON, "top", *arguments), env=environment, stdin=self.slave,
            stdout=self.slave, stderr=subprocess.PIPE, start_new_session=True,
            preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0))

    def set_size(self, columns, rows):
        fcntl.ioctl(self.slave, termios.TIOCSWINSZ, struct.pack("HHHH", rows, columns, 0, 0))

    def resize(self, columns, rows):
        self.screen.resize(rows, columns)
        self.set_size(columns, rows)

    def read(self):
        """Reads what the program has written by now. False if that was nothing."""
        if not select.select([self.master], [], [], 0.05)[0]:
            return False
        data = os.read(self.master, 65536)
        self.written += data
        self.stream.feed(data)
        return True

    def rows(self):
        return [row.rstrip() for row in self.screen.display]

    def text(self):
        return "\n".join(self.rows())

    def until(self, condition, what="the screen"):
        deadline = time.monotonic() + LIMIT
        while not condition():
            if time.monotonic() > deadline:
                raise AssertionError(f"{what} is not as expected:\n{self.text()}")
            self.read()

    def until_shown(self, text):
        self.until(lambda: text in self.text(), repr(text))

    def press(self, keys):
        os.write(self.master, keys)

    def end(self):
        """Waits for the end of the program, and returns its exit status."""
        deadline = time.monotonic() + LIMIT
        while self.process.poll() is None:
            if time.monotonic() > deadline:
                self.process.kill()
                raise AssertionError(f"the program has not ended:\n{self.text()}")
            self.read()
        while self.read():
            pass
        return self.process.returncode

    def is_restored(self):
        def last(pattern):
            return pattern.findall(self.written)[-1:]
        return (termios.tcgetattr(self.slave) == self.before and last(ALTERNATE) == [b"l"]
                and last(CURSOR) == [b"h"] and last(WRAPPING) == [b"h"])

    def is_taken(self):
        local_modes = termios.tcgetattr(self.slave)[3]
        return (not local_modes & (termios.ECHO | termios.ICANON)
                and ALTERNATE.findall(self.written)[-1:] == [b"h"])

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        self.process.stderr.close()
        for end in (self.master, self.slave):
            if end is not None:
                os.close(end)


class Top(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="", TERM="xterm-256color",
                                COLORTERM="")
        self.environment.pop("NO_COLOR", None)
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder.name

    def fleet(self, *printers, **content):
        name = os.path.join(self.folder.name, "fleet.json")
        with open(name, "w", encoding="utf-8") as file:
            json.dump({"printers": printers, **content}, file)
        return "--virtual", name

    def top(self, *arguments, **options):
        terminal = Terminal(arguments, self.environment, **options)
        self.addCleanup(terminal.close)
        return terminal

    def names(self, terminal):
        """The names in the rows of the table."""
        return [row[2:].split()[0] for row in terminal.rows()[2:-1] if row]

    def shown_names(self, terminal, expected):
        terminal.until(lambda: self.names(terminal) == expected, f"the order {expected}")

    def test_shows_levels_as_bars_and_the_worst_first(self):
        terminal = self.top(*self.fleet(printer("Fine"), printer("Jam", "5"), printer("Warm", "8")))
        self.shown_names(terminal, ["Jam", "Warm", "Fine"])
        rows = terminal.rows()
        self.assertRegex(rows[0], r"^\d\d:\d\d:\d\d  Printers: 3  with errors: 1$")
        self.assertRegex(rows[1], r"^  PRINTER +STATUS +SUPPLY +RIBBON 1 +RIBBON 2$")
        self.assertRegex(rows[4], r"^..Fine +Ready +\[===.* 50%  \[=.*\] +\d+%  \[=.*\] +\d+%$")
        self.assertEqual(rows[-1], "q quit  [s by severity]  n by name  l by level")
        self.assertLessEqual(max(map(len, rows)), 80)

    def test_keys_sort_and_quit(self):
        terminal = self.top(*self.fleet(printer("A", Mileage=20000), printer("C", "5", Mileage=9000),
                                        printer("B", Mileage=3000)))
        self.shown_names(terminal, ["C", "B", "A"])
        terminal.press(b"n")
        self.shown_names(terminal, ["A", "B", "C"])
        terminal.until_shown("[n by name]")
        terminal.press(b"l")
        self.shown_names(terminal, ["B", "C", "A"])
        terminal.press(b"s")
        self.shown_names(terminal, ["C", "B", "A"])
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)
        self.assertTrue(terminal.is_restored())
        self.assertEqual(terminal.process.stderr.read(), b"")

    def test_changes_are_shown(self):
        terminal = self.top(*self.fleet(
            printer("P"), timeline=[{"at": 0.2, "printer": "P", "values": {"StatusCode": "4"}}]))
        terminal.until_shown("The cover is open")
        terminal.until_shown("with errors: 1")

    def test_keys_come_between_reports(self):
        names = [f"P{number:02}" for number in range(40)]
        reports = [{"at": 0.01 * turn, "printer": names[turn % 40],
                    "values": {"StatusCode": str(1 + turn // 40 % 2)}} for turn in range(60000)]
        terminal = self.top("--speed", "20", *self.fleet(*map(printer, names), timeline=reports))
        self.shown_names(terminal, names[:21])
        for _ in range(100):
            terminal.press(b"n")
            terminal.until_shown("[n by name]")
            terminal.press(b"l")
            terminal.until_shown("[l by level]")
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)

    def test_many_printers_scroll(self):
        names = [f"P{number:02}" for number in range(40)]
        terminal = self.top(*self.fleet(*map(printer, names)), rows=14)
        self.shown_names(terminal, names[:11])
        terminal.until_shown("shown: 1 to 11")
        terminal.press(b"\x1b[B\x1b[B")
        self.shown_names(terminal, names[2:13])
        terminal.press(b"\x1b[6~")
        self.shown_names(terminal, names[13:24])
        terminal.press(b"\x1b[F")
        self.shown_names(terminal, names[29:])
        terminal.press(b"\x1b[6~\x1b[A")
        self.shown_names(terminal, names[28:39])
        terminal.press(b"\x1b[5~")
        self.shown_names(terminal, names[17:28])
        terminal.press(b"\x1b[H")
        self.shown_names(terminal, names[:11])

    def test_a_larger_terminal_is_filled(self):
        names = [f"P{number:02}" for number in range(40)]
        terminal = self.top(*self.fleet(*map(printer, names)), rows=14)
        self.shown_names(terminal, names[:11])
        terminal.press(b"\x1b[F")
        self.shown_names(terminal, names[29:])
        terminal.resize(120, 34)
        self.shown_names(terminal, names[9:])
        terminal.until(lambda: max(map(len, terminal.rows())) > 80)
        terminal.resize(40, 60)
        self.shown_names(terminal, names)
        terminal.until(lambda: "[=" not in terminal.text())
        terminal.resize(40, 4)
        self.shown_names(terminal, names[:1])
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)

    def test_no_printers(self):
        terminal = self.top(*self.fleet())
        terminal.until_shown("There are no label printers yet.")
        terminal.until_shown("Printers: 0")

    def test_a_thousand_printers(self):
        terminal = self.top(*self.fleet(*[printer(f"P{number:04}") for number in range(1000)]))
        terminal.until_shown("Printers: 1000")
        self.shown_names(terminal, [f"P{number:04}" for number in range(21)])
        terminal.press(b"\x1b[F")
        self.shown_names(terminal, [f"P{number:04}" for number in range(979, 1000)])
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)

    def test_twenty_columns(self):
        terminal = self.top(*self.fleet(printer("A very long name"), printer("Jam", "5")), columns=20)
        terminal.until(lambda: len(self.names(terminal)) == 2)
        self.assertRegex(terminal.text(), "[* ] A very.*\u2026 +Ready")
        self.assertRegex(terminal.text(), "  Jam +The labe\u2026")

    def test_wide_and_hostile_names_keep_the_columns(self):
        terminal = self.top(*self.fleet(printer("\u51fa\u8377\u53f0"), printer(HOSTILE)),
                            columns=120)
        terminal.until(lambda: len(self.names(terminal)) == 2)
        shown = r"P\u001b[31m\u0007\u000d\u009b\u202e\u2028"
        terminal.until_shown(shown[:20])
        rows = [row for row in terminal.rows()[2:-1] if row]
        # pyte puts an empty cell behind each wide character.
        places = [wcswidth(row[:row.index("Ready")]) for row in rows]
        self.assertEqual(places[0], places[1])
        for forbidden in (b"\x07", b"\x1b[31m\x07", "\u202e".encode()):
            self.assertNotIn(forbidden, terminal.written)

    def test_colours_follow_the_terminal(self):
        for settings, expected in (
                ({"COLORTERM": "truecolor"}, rb"48;2;\d+;\d+;\d+m="),
                ({}, rb"48;5;\d+m="),
                ({"TERM": "xterm"}, rb"\x1b\[(30|97);(4|10)\dm=")):
            with self.subTest(settings):
                self.environment.update(TERM="xterm-256color", COLORTERM="")
                self.environment.update(settings)
                terminal = self.top(*self.fleet(printer("P")))
                terminal.until_shown("50%")
                self.assertRegex(terminal.written, expected)

    def test_no_colours_are_no_colours(self):
        self.environment["NO_COLOR"] = "1"
        terminal = self.top(*self.fleet(printer("P", "5")))
        terminal.until_shown("50%")
        # The beginning alone resets the colours.
        self.assertEqual(re.findall(rb"\x1b\[[\d;]*m", terminal.written), [b"\x1b[0m"])
        self.assertIn("[===", terminal.text())

    def ends(self, end, expected):
        terminal = self.top(*self.fleet(printer("P")))
        terminal.until_shown("50%")
        self.assertTrue(terminal.is_taken())
        end(terminal)
        self.assertIn(terminal.end(), expected)
        self.assertTrue(terminal.is_restored())

    def test_every_end_leaves_the_terminal_as_it_was(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number):
                self.ends(lambda terminal: terminal.process.send_signal(number), [0])
        # The address sanitizer ends the program with the status 1, and that of threads with 66.
        for number in (signal.SIGABRT, signal.SIGSEGV, signal.SIGQUIT):
            with self.subTest(number):
                self.ends(lambda terminal: terminal.process.send_signal(number), [-number, 1, 66])
        with self.subTest("Ctrl-C"):
            self.ends(lambda terminal: terminal.press(b"\x03"), [0])
        with self.subTest("q"):
            self.ends(lambda terminal: terminal.press(b"q"), [0])
        with self.subTest("--for"):
            terminal = self.top("--for", "0.3", *self.fleet(printer("P")))
            self.assertEqual(terminal.end(), 0)
            self.assertTrue(terminal.is_restored())

    def test_a_closed_terminal_ends_it(self):
        terminal = self.top(*self.fleet(printer("P")))
        terminal.until_shown("50%")
        os.close(terminal.slave)
        os.close(terminal.master)
        terminal.master = terminal.slave = None
        terminal.process.wait(LIMIT)

    def test_it_can_be_stopped_and_continued(self):
        # A shell's part: a job in the foreground that is stopped, and continued by "c".
        shell = ("import os, signal, sys\n"
                 "signal.signal(signal.SIGTTOU, signal.SIG_IGN)\n"
                 "job = os.fork()\n"
                 "if job == 0:\n"
                 "    os.setpgid(0, 0)\n"
                 "    os.tcsetpgrp(0, os.getpgrp())\n"
                 "    signal.signal(signal.SIGTTOU, signal.SIG_DFL)\n"
                 "    os.execv(sys.argv[1], sys.argv[1:])\n"
                 "status = os.waitpid(job, os.WUNTRACED)[1]\n"
                 "os.tcsetpgrp(0, os.getpgrp())\n"
                 "print('STOPPED', os.WIFSTOPPED(status), flush=True)\n"
                 "sys.stdin.readline()\n"
                 "os.tcsetpgrp(0, job)\n"
                 "os.kill(job, signal.SIGCONT)\n"
                 "status = os.waitpid(job, 0)[1]\n"
                 "os.tcsetpgrp(0, os.getpgrp())\n"
                 "print('ENDED', status, flush=True)\n")
        terminal = self.top(command=(sys.executable, "-c", shell, VXPRINTMON, "top",
                                     *self.fleet(printer("P"))))
        terminal.until_shown("50%")
        terminal.press(b"\x1a")
        terminal.until_shown("STOPPED True")
        self.assertTrue(terminal.is_restored())
        terminal.screen.reset()
        terminal.press(b"c\n")
        terminal.until_shown("50%")
        terminal.until_shown("q quit")
        self.assertTrue(terminal.is_taken())
        terminal.press(b"q")
        terminal.until_shown("ENDED 0")
        self.assertTrue(terminal.is_restored())
        self.assertEqual(terminal.end(), 0)

    def test_it_needs_a_terminal(self):
        done = subprocess.run((VXPRINTMON, "top", *self.fleet(printer("P"))), timeout=LIMIT,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, env=self.environment, check=False)
        self.assertEqual((done.returncode, done.stdout), (2, b""))
        self.assertIn(b"its input or output is none; use status, or top --json", done.stderr)
        self.assertEqual(done.stderr.count(b"\n"), 1)

    def test_json_is_an_array_of_readings(self):
        done = subprocess.run((VXPRINTMON, "top", "--json",
                               *self.fleet(printer("A"), printer("B", "5"))),
                              timeout=LIMIT, stdout=subprocess.PIPE, env=self.environment,
                              check=True)
        self.assertEqual([reading["name"] for reading in json.loads(done.stdout)], ["B", "A"])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
