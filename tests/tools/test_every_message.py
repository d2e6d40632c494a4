# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Every message of every tool is seen in a test: printed by a tool here, or expected by another test.

test_every_message.py SOURCE_FOLDER VXPRINTMON VXIPC ROLLDB VXPRINTVIEW VXPRINTAGENT

The messages are those of translations/tools_en.ts, which scripts/lint keeps complete. Those of the
window's own classes are left out: tst_window_layout shows them in every language.
"""
import json
import os
import pathlib
import re
import signal
import socket
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

SOURCES = pathlib.Path(sys.argv[1])
VXPRINTMON, VXIPC, ROLLDB, VXPRINTVIEW, VXPRINTAGENT = sys.argv[2:7]
# In seconds; ends what hangs.
LIMIT = 600

# Messages that need what a test cannot arrange on this system, and why.
ELSEWHERE = {
    "--virtual: this build uses the system's own print spooler": "needs the build for Windows",
    "this program has no virtual printers, so it cannot play a case; run \"vxprintmon case verify\" on Linux":
        "needs the build for Windows",
    "a monitoring thread does not come to rest": "needs a library that hangs",
    "%1: its catalogue can only be played with a supply database of the product itself":
        "needs the build with another supply database",
    "%1: its catalogue cannot be written to a temporary file: %2": "needs a temporary folder that is full",
    "%1: its catalogue can only be played with a supply database of the product itself":
        "needs a build with another supply database",
    "this console does not know escape sequences; use that of Windows 10 or newer":
        "needs an old Windows",
    "the terminal cannot be used: %1": "needs a terminal that refuses its settings",
    "%1 is on a network drive, which a service does not see; copy it to this computer":
        "needs Windows with a network drive",
    "%1: it does not stop; end vxprintagent.exe in the task manager and try again":
        "needs a service that hangs",
    "the service manager does not answer": "needs a service manager that hangs",
    "%1 yet: another program has it open; close the list of services and the event viewer":
        "needs a program that keeps a service open while it is removed",
    "--broker: this build has no MQTT; build it with libmosquitto": "needs a build without libmosquitto",
    "Faster than read": "needs a change at the very moment at which the library reads",
}
# Messages of which another test expects a part: the test and the part.
IN_PART = {
    "the arguments do not fit %1": ("tests/platform/test_vxipc_tool.py", "do not fit scale("),
    "unknown service \"%1\"; expected supplyd, m4, printqd, status, a number or a name printed by "
    "list": ("tests/platform/test_vxipc_tool.py", "unknown service \\\"nosuch\\\""),
    "%1: the connection ended; waiting for the endpoint":
        ("tests/platform/test_vxipc_tool.py", "the connection ended"),
    "%1: watching again; what changed meanwhile was missed":
        ("tests/platform/test_vxipc_tool.py", "watching again"),
    "top draws on a terminal, but its input or output is none; use status, or top --json":
        ("tests/tools/test_top.py", "its input or output is none; use status, or top --json"),
}

ALDER = {"name": "P", "driver": "Stratamark Alder", "port": "USB001"}
READY = {"StatusCode": "1", "SupplyIdentifier": "000000641000030000A7", "Mileage": 30480,
         "Ribbon1Identifier": 2001, "Ribbon1Mileage": 120015, "SoftwareVersion": "4.2.0"}


WINDOW_CLASSES = {"DoctorDialog", "EventModel", "MainWindow", "MessagePage", "OverviewBar",
                  "QPlatformTheme", "SiteBar", "Tray"}


def messages():
    contexts = xml.etree.ElementTree.parse(SOURCES / "translations/tools_en.ts").iter("context")
    return [message.find("source").text for context in contexts
            if context.find("name").text not in WINDOW_CLASSES for message in context.iter("message")]


def plain(text):
    """Without line breaks and indents, which depend on the width."""
    return " ".join(text.split())


def literals_of_tests():
    """What stands in the sources of the tests, with the literals that C++ and Python join joined."""
    # tst_doctor compares each remedy with this page.
    text = (SOURCES / "docs/support.md").read_text(encoding="utf-8")
    for path in sorted(SOURCES.glob("tests/**/*")):
        if path.suffix in (".cpp", ".h", ".py") and path.name != pathlib.Path(__file__).name:
            text += path.read_text(encoding="utf-8")
    text = re.sub(r'"\s*\n\s*f?"', "", text)
    return plain(re.sub(r"\\(.)", r"\1", text))


def are_in_order(parts, text):
    place = 0
    for part in parts:
        place = text.find(part, place)
        if place < 0:
            return False
        place += len(part)
    return True


class EveryMessage(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="", COLUMNS="400")
        for name in ("VX_ROLL_DB", "VX_VIRTUAL_FLEET"):
            self.environment.pop(name, None)
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder
        self.printed = ""

    def fleet(self, *printers, **content):
        path = pathlib.Path(self.folder, f"fleet {len(os.listdir(self.folder))}.json")
        path.write_text(json.dumps({"printers": printers, **content}), encoding="utf-8")
        return "--virtual", str(path)

    def run_tool(self, *command):
        done = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              timeout=LIMIT, check=False)
        self.printed += plain(done.stdout) + "\n"

    def run_helps(self):
        for tool in (VXPRINTMON, VXIPC, ROLLDB, VXPRINTAGENT):
            before = self.printed
            self.run_tool(tool, "--help")
            self.run_tool(tool, "help", "nothing")
            names = re.search(r"expected one of ([a-z, ]+)", self.printed[len(before):])
            for name in names[1].split(","):
                self.run_tool(tool, "help", name.strip())

    def run_doctors(self):
        laser = {"name": "Laser", "driver": "Everyday Office Laser 400", "port": "LPT1:"}
        other = {"name": "Other", "driver": "Stratamark Larch", "port": "USB003"}
        one_ribbon = {"name": "P", "driver": "Stratamark BirchMax", "port": "USB001",
                      "values": READY}
        self.run_tool(VXPRINTMON, "doctor")
        self.run_tool(VXPRINTMON, "doctor", "Shipping")
        self.run_tool(VXPRINTMON, "doctor", "nobody")
        self.run_tool(VXPRINTMON, "doctor", "--catalogue", self.folder)
        self.run_tool(VXPRINTMON, "doctor", "--catalogue", os.path.join(self.folder, "no.db"))
        self.run_tool(VXPRINTMON, "doctor", *self.fleet(laser, devices=[]))
        self.run_tool(VXPRINTMON, "doctor", *self.fleet(other))
        self.run_tool(VXPRINTMON, "doctor", "P", "--json", *self.fleet(one_ribbon))
        self.run_tool(VXPRINTMON, "doctor", "P", *self.fleet(
            {**ALDER, "values": {**READY, "Ribbon1Identifier": 99999},
             "attributes": ["local", "work-offline"], "status": ["paused"]}))
        self.run_tool(VXPRINTMON, "doctor", "P", *self.fleet(
            {**ALDER, "values": {**READY, "Mileage": 999999}}))
        # Somebody has the endpoint, but does not answer.
        with socket.socket(socket.AF_UNIX) as silent:
            silent.bind(os.path.join(self.folder, "vxipc-3"))
            silent.listen()
            self.run_tool(VXPRINTMON, "doctor")
        os.chmod(self.folder, 0o777)
        self.run_tool(VXPRINTMON, "doctor")
        os.chmod(self.folder, 0o700)

    def run_others(self):
        self.run_tool(VXPRINTMON, "list", "--first", "--second")
        self.run_tool(VXPRINTMON, "list", "--json=1")
        self.run_tool(VXPRINTMON, "list", *self.fleet())
        self.run_tool(VXPRINTMON, "status", "returns")
        self.run_tool(VXPRINTMON, "status", "other", *self.fleet(
            {"name": "Other", "driver": "Stratamark Larch"}))

    def run_agent(self):
        config = pathlib.Path(self.folder, "agent.json")
        config.write_text('{"site": "a"}', encoding="utf-8")
        self.run_tool(VXPRINTAGENT, "check", "--config", str(config))
        self.run_tool(VXPRINTAGENT, "check", "--config")
        self.run_tool(VXPRINTAGENT, "check")
        self.run_tool(VXPRINTAGENT, "check", "this")
        self.run_tool(VXPRINTAGENT, "run", "--config", str(config), "--speed", "0")
        self.run_tool(VXPRINTAGENT, "install", "--config", str(config))

    def run_window(self):
        """Only what it says on the console."""
        for options in (("--help",), ("--colors", "red"), ("--language", "xx"), ("--size", "big"),
                        ("--after", "3"), ("--speed", "0"), ("--virtual", ""), ("this",),
                        ("--screenshot", "no/such/folder.png", "--after", "0.01")):
            self.run_tool(VXPRINTVIEW, *options)

    def watch_with_a_full_disk(self):
        done = subprocess.run((VXPRINTMON, "watch", "--log", "/dev/full", "--for", "1"),
                              env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, text=True, timeout=LIMIT, check=False)
        self.assertEqual(done.returncode, 1)
        lines = [line for line in done.stderr.splitlines() if line.startswith("vxprintmon: ")]
        self.assertEqual(len(lines), 2, done.stderr)
        self.assertRegex(lines[0], "^vxprintmon: cannot write the log /dev/full: [^/]+; it is tried "
                                   "again every second$")
        self.assertRegex(lines[1], "^vxprintmon: cannot write the log /dev/full: [^/]+$")
        self.assertIn("Shipping", done.stdout)
        self.printed += plain(done.stderr) + "\n"

    def interrupt_send(self):
        """Interrupts the monitor while a print job waits in the queue."""
        held = {**ALDER, "values": READY, "status": ["paused"]}
        with subprocess.Popen((VXPRINTMON, "send", "--wait", "P", "FEED", *self.fleet(held)),
                              env=self.environment, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, text=True) as send:
            for line in send.stdout:
                if "waits in the queue" in line:
                    break
            send.send_signal(signal.SIGINT)
            output, errors = send.communicate(timeout=LIMIT)
        self.assertEqual(send.returncode, 1, output)
        self.assertEqual(errors, "vxprintmon: interrupted while print job 1 was in the queue of "
                                 "\"P\"\n")
        self.printed += plain(errors) + "\n"

    def test_every_message_is_seen(self):
        self.run_helps()
        self.run_doctors()
        self.run_others()
        self.run_agent()
        self.run_window()
        self.interrupt_send()
        self.watch_with_a_full_disk()
        literals = literals_of_tests()

        def is_seen(message):
            # The tools end no complaint with a full stop, also where Qt does.
            parts = [plain(part) for part in re.split(r"%\d|%n", message.rstrip("."))]
            parts = [part for part in parts if len(part) > 1]
            return (all(part in literals for part in parts) or
                    any(are_in_order(parts, output) for output in self.printed.splitlines()))

        unseen = [message for message in messages()
                  if message not in ELSEWHERE and message not in IN_PART and not is_seen(message)]
        self.assertEqual(unseen, [])
        for path, part in IN_PART.values():
            self.assertIn(part, (SOURCES / path).read_text(encoding="utf-8"))
        for message in (*ELSEWHERE, *IN_PART):
            self.assertIn(message, messages())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
