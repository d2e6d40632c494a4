# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The monitor's live table of a whole site: real agents, a real broker, a pseudo-terminal.

test_top_of_site.py VXPRINTMON VXPRINTAGENT MOSQUITTO SCHEMA
"""
import json
import os
import subprocess
import sys
import tempfile
import unittest

import jsonschema

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tools"))
from site_of_agents import LIMIT, Agent, Broker, printer  # noqa: E402
from test_top import Terminal  # noqa: E402

VXPRINTMON, VXPRINTAGENT, MOSQUITTO, SCHEMA = sys.argv[1:5]


class TopOfSite(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="", TERM="xterm-256color",
                                COLORTERM="", TZ="UTC")
        self.environment.pop("NO_COLOR", None)
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder
        self.broker = self.started()

    def started(self, *settings):
        broker = Broker(MOSQUITTO, tempfile.mkdtemp(dir=self.folder), settings)
        broker.start()
        self.addCleanup(broker.kill)
        return broker

    def agent(self, host, *printers, **fleet):
        agent = Agent(VXPRINTAGENT, self.folder, self.broker, host, *printers, **fleet)
        self.addCleanup(agent.kill)
        return agent

    def top(self, *arguments, **options):
        arguments = arguments or ("--broker", self.broker.url("bremen"))
        terminal = Terminal(arguments, self.environment, **options)
        self.addCleanup(terminal.close)
        return terminal

    def run_monitor(self, *arguments):
        return subprocess.run((VXPRINTMON, "top", *arguments), env=self.environment, text=True,
                              capture_output=True, timeout=LIMIT)

    def row(self, terminal, name):
        """The row of a printer; empty while there is none."""
        return next((row for row in terminal.rows()[2:-1] if row[2:].startswith(name)), "")

    def until_row(self, terminal, name, *texts):
        terminal.until(lambda: all(text in self.row(terminal, name) for text in texts),
                       f"the row of {name} with {texts}")

    def test_shows_the_printers_of_all_agents(self):
        self.agent("pc-1", printer("Packing"), printer("Jam", "5"))
        self.agent("pc-2", printer("Packing"))
        terminal = self.top()
        self.until_row(terminal, "Packing (pc-1)", "Ready", "50%")
        self.until_row(terminal, "Packing (pc-2)", "Ready", "50%")
        self.until_row(terminal, "Jam (pc-1)")
        rows = terminal.rows()
        self.assertRegex(rows[0], r"^\d\d:\d\d:\d\d  Printers: 3  with errors: 1$")
        self.assertTrue(rows[2].startswith("  Jam (pc-1)"), rows[2])
        self.assertEqual(rows[-1], "q quit  [s by severity]  n by name  l by level")
        self.assertLessEqual(max(map(len, rows)), 80)
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)
        self.assertTrue(terminal.is_restored())
        self.assertEqual(terminal.process.stderr.read(), b"")

    def test_long_names_keep_their_computer(self):
        self.agent("pc-packing-17", printer("Labels for the long line in hall seven"))
        terminal = self.top()
        terminal.until_shown("-17)")
        self.assertRegex(terminal.rows()[2], r"^  Labels.*….*-17\) ")

    def test_changes_are_shown(self):
        self.agent("pc-1", printer("P"), timeline=[
            {"at": 0.2 + 0.4 * turn, "printer": "P",
             "values": {"StatusCode": "4" if turn % 2 == 0 else "1"}} for turn in range(500)])
        terminal = self.top()
        for _ in range(2):
            self.until_row(terminal, "P (pc-1)", "The cover is open")
            self.until_row(terminal, "P (pc-1)", "Ready")

    def test_a_killed_agent_is_offline(self):
        agent = self.agent("pc-1", printer("P", "4"))
        self.agent("pc-2", printer("Q"))
        terminal = self.top()
        self.until_row(terminal, "P (pc-1)", "The cover is open")
        self.until_row(terminal, "Q (pc-2)")
        agent.kill()
        self.until_row(terminal, "P (pc-1)", "No agent since")
        terminal.until_shown("agents offline: 1")
        self.assertIn("with errors: 0", terminal.rows()[0])
        self.assertIn("Ready", self.row(terminal, "Q (pc-2)"))
        agent.start()
        self.until_row(terminal, "P (pc-1)", "The cover is open")
        terminal.until(lambda: "offline" not in terminal.text())

    def test_a_broker_that_goes_and_comes_back(self):
        self.agent("pc-1", printer("P", "4"))
        terminal = self.top()
        self.until_row(terminal, "P (pc-1)", "The cover is open", "50%")
        self.broker.kill()
        terminal.until_shown("no connection since")
        terminal.until(lambda: "cannot be reached" in terminal.rows()[-1], "the last line")
        # What was known stays, without colours.
        self.assertIn("The cover is open", self.row(terminal, "P (pc-1)"))
        self.assertIn("50%", self.row(terminal, "P (pc-1)"))
        line = terminal.rows().index(self.row(terminal, "P (pc-1)"))
        self.assertEqual({terminal.screen.buffer[line][column].bg for column in range(80)},
                         {"default"})
        self.broker.start()
        terminal.until(lambda: "no connection" not in terminal.text()
                       and "offline" not in terminal.text()
                       and "The cover is open" in self.row(terminal, "P (pc-1)"))
        self.assertEqual(terminal.rows()[-1], "q quit  [s by severity]  n by name  l by level")

    def test_a_broker_that_is_not_there(self):
        self.broker.kill()
        terminal = self.top()
        terminal.until(lambda: "cannot be reached" in terminal.rows()[-1], "the last line")
        self.assertIn("no connection", terminal.rows()[0])
        self.assertIn("Connecting to mqtt://127.0.0.1:", terminal.rows()[2])
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)

    def test_a_site_without_agents(self):
        terminal = self.top("--broker", self.broker.url("kiel"))
        terminal.until_shown('No agent of the site "kiel" has published a printer yet.')

    def test_all_sites(self):
        terminal = self.top("--broker", self.broker.url())
        terminal.until_shown("No agent has published a printer yet.")
        self.agent("pc-1", printer("P"))
        self.agent("pc-2", printer("P"), site="kiel")
        self.until_row(terminal, "P (bremen/pc-1)")
        self.until_row(terminal, "P (kiel/pc-2)")

    def test_a_message_that_cannot_be_read(self):
        self.agent("pc-1", printer("P"))
        subprocess.run(("mosquitto_pub", "-p", str(self.broker.port), "-r", "-t",
                        "vxprint/v1/bremen/evil/printer/\u202eX", "-m", "{\x1b[2J"),
                       check=True, timeout=LIMIT)
        terminal = self.top()
        self.until_row(terminal, "P (pc-1)")
        terminal.until_shown("unreadable messages: 1")
        terminal.press(b"q")
        self.assertEqual(terminal.end(), 0)
        said = terminal.process.stderr.read()
        self.assertEqual(said.count(b"a message cannot be read"), 1)
        self.assertIn(b"\\u202eX: ", said)
        self.assertNotIn(b"\x1b", said)

    def with_password(self, password):
        """A broker with the user reader, and a file for a program that says that password."""
        accounts = os.path.join(self.folder, "accounts")
        subprocess.run(("mosquitto_passwd", "-b", "-c", accounts, "reader", "geheim"), check=True)
        broker = self.started("allow_anonymous false", f"password_file {accounts}")
        secret = os.path.join(self.folder, "password")
        with open(os.open(secret, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600), "w") as file:
            file.write(password + "\n")
        config = os.path.join(self.folder, "reader.json")
        with open(config, "w", encoding="utf-8") as file:
            json.dump({"site": "bremen", "mqtt": {"url": f"mqtt://127.0.0.1:{broker.port}",
                                                  "username": "reader", "passwordFile": secret}},
                      file)
        return config

    def test_a_password_from_a_file(self):
        terminal = self.top("--broker-config", self.with_password("geheim"))
        terminal.until_shown('No agent of the site "bremen" has published a printer yet.')

    def test_a_wrong_password(self):
        config = self.with_password("falsch")
        terminal = self.top("--broker-config", config, columns=120)
        terminal.until(lambda: 'does not accept the user "reader"' in terminal.rows()[-1])
        once = self.run_monitor("--json", "--broker-config", config)
        self.assertEqual(once.returncode, 1)
        self.assertRegex(once.stderr, r'^vxprintmon: .*does not accept the user "reader"')
        self.assertEqual(once.stderr.count("\n"), 1)
        self.assertNotIn("falsch", once.stderr)

    def test_prints_readings_as_json(self):
        agent = self.agent("pc-1", printer("P", "4"))
        terminal = self.top()
        self.until_row(terminal, "P (pc-1)")

        def readings():
            once = self.run_monitor("--json", "--broker", self.broker.url("bremen"))
            self.assertEqual((once.returncode, once.stderr), (0, ""))
            return json.loads(once.stdout)
        live = readings()
        agent.kill()
        self.until_row(terminal, "P (pc-1)", "No agent since")
        old = readings()
        with open(SCHEMA, encoding="utf-8") as file:
            validator = jsonschema.Draft202012Validator(json.load(file))
        for reading in live + old:
            validator.validate(reading)
        self.assertEqual([(reading["name"], reading["watching"], reading["statusCode"])
                          for reading in live + old],
                         [("P (pc-1)", "watched", 4), ("P (pc-1)", "agentOffline", 255)])

    def test_wrong_usage(self):
        for arguments, expected in (
                (("--broker", "mqtt://a", "--virtual", "built-in"),
                 "--virtual does not go with --broker"),
                (("--broker", "mqtt://a", "--catalogue", "roll.db"),
                 "--catalogue does not go with --broker"),
                (("--broker", "mqtt://a", "--speed", "2"), "--speed does not go with --broker"),
                (("--broker", "http://a"), "--broker: expected mqtt://HOST:PORT"),
                (("--broker", "mqtt://u:geheim@a"), "without a user and password"),
                (("--broker", ""), "--broker: expected a value")):
            with self.subTest(arguments):
                result = self.run_monitor(*arguments)
                self.assertEqual(result.returncode, 2)
                self.assertIn(expected, result.stderr)
                self.assertNotIn("geheim", result.stderr)


if __name__ == "__main__":
    del sys.argv[1:5]
    unittest.main(verbosity=2)
