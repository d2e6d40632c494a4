# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The window's program on a whole site: a real agent, a real broker, no screen.

test_view_of_site.py VXPRINTVIEW VXPRINTAGENT MOSQUITTO
"""
import os
import subprocess
import sys
import tempfile
import unittest

from site_of_agents import LIMIT, Agent, Broker, printer

VXPRINTVIEW, VXPRINTAGENT, MOSQUITTO = sys.argv[1:4]


class ViewOfSite(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="en",
                                QT_QPA_PLATFORM="offscreen")
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder
        self.broker = Broker(MOSQUITTO, self.folder)
        self.broker.start()
        self.addCleanup(self.broker.kill)

    def run_view(self, *arguments):
        return subprocess.run((VXPRINTVIEW, *arguments), env=self.environment, text=True,
                              capture_output=True, timeout=LIMIT)

    def picture(self, name, *arguments):
        file = os.path.join(self.folder, name + ".png")
        result = self.run_view("--screenshot", file, "--after", "2.5", "--size", "900x600",
                               *arguments)
        self.assertEqual(result.returncode, 0, result.stderr)
        with open(file, "rb") as content:
            return content.read()

    def test_shows_a_site_and_ends(self):
        agent = Agent(VXPRINTAGENT, self.folder, self.broker, "pc-1", printer("Packing", "4"))
        self.addCleanup(agent.kill)
        site = self.picture("site", "--broker", self.broker.url("bremen"))
        nobody = self.picture("nobody", "--broker", self.broker.url("kiel"))
        self.broker.kill()
        nothing = self.picture("nothing", "--broker", self.broker.url("bremen"))
        self.assertTrue(site.startswith(b"\x89PNG"))
        self.assertEqual(len({site, nobody, nothing}), 3)

    def test_wrong_usage(self):
        for arguments, expected in (
                (("--broker", "mqtt://a", "--virtual", "built-in"),
                 "--virtual does not go with --broker"),
                (("--broker", "mqtt://a", "--history", "h"), "--history does not go with --broker"),
                (("--broker", "mqtt://a", "--speed", "2"), "--speed does not go with --broker"),
                (("--broker", "http://a"), "--broker: expected mqtt://HOST:PORT"),
                (("--broker", "mqtt://u:geheim@a"), "without a user and password"),
                (("--broker", ""), "--broker: expected a value")):
            with self.subTest(arguments):
                result = self.run_view(*arguments)
                self.assertEqual(result.returncode, 2)
                self.assertIn(expected, result.stderr)
                self.assertNotIn("geheim", result.stderr)

    def test_a_file_that_is_wrong(self):
        result = self.run_view("--broker-config", os.path.join(self.folder, "missing.json"))
        self.assertEqual(result.returncode, 1)
        self.assertIn("missing.json: there is no such file", result.stderr)


if __name__ == "__main__":
    del sys.argv[1:4]
    unittest.main(verbosity=2)
