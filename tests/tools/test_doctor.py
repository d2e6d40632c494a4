# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The monitor's command doctor: its exit status, its JSON, its screens in every language.

test_doctor.py VXPRINTMON
"""
import json
import os
import signal
import subprocess
import sys
import tempfile
import unicodedata
import unittest

VXPRINTMON = sys.argv[1]
# In seconds; ends what hangs.
LIMIT = 600
LANGUAGES = ("de", "en", "es", "fr", "it", "ja", "zh_CN")
HOSTILE = "P\x1b[31m\x07\r\x9b\u202e\u2028" + "x" * 200
GOOD = {"StatusCode": "1", "SupplyIdentifier": "000000641000030000A7", "Mileage": 15240,
        "Ribbon1Identifier": 2001, "Ribbon1Mileage": 96013, "Ribbon2Identifier": 2004,
        "Ribbon2Mileage": 42006, "SoftwareVersion": "4.2.0", "EthernetConfig": "dhcp",
        "UpdateProgress": 0, "UpdateError": 0}
CLASS = "{28d78fad-5a12-11d1-ae5b-0000f803a8c2}"
DEVICES = [{"class": CLASS, "key": f"##?#USB#VID_3E7A&PID_0104#AM-1#{CLASS}", "port": 1,
            "serialNumber": "AM-1"}]


def printer(name="Shipping", **values):
    return {"name": name, "driver": "Stratamark AlderMax", "port": "USB001",
            "values": {**GOOD, **values}}


def width(line):
    return sum(0 if unicodedata.combining(character) else
               1 + (unicodedata.east_asian_width(character) in "WF") for character in line)


class Doctor(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="")
        self.environment.pop("VX_ROLL_DB", None)
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder.name

    def fleet(self, *printers, devices=None):
        name = os.path.join(self.folder.name, "fleet.json")
        with open(name, "w", encoding="utf-8") as file:
            json.dump({"printers": printers, "devices": DEVICES if devices is None else devices},
                      file)
        return "--virtual", name

    def doctor(self, *arguments, **environment):
        done = subprocess.run((VXPRINTMON, "doctor", *arguments), timeout=LIMIT, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              env={**self.environment, **environment})
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def checks(self, *arguments, **environment):
        return json.loads(self.doctor("--json", *arguments, **environment)[1])

    def check(self, name, *arguments, **environment):
        return [check for check in self.checks(*arguments, **environment)
                if check["check"] == name]

    def test_exit_status_says_whether_something_is_wrong(self):
        self.assertEqual(self.doctor(*self.fleet(printer()))[::2], (0, ""))
        self.assertEqual(self.doctor(*self.fleet(printer(Mileage=999999)))[::2],
                         (1, "vxprintmon: problems found: 1\n"))
        self.assertEqual(self.doctor("--json", *self.fleet(printer(StatusCode="5")))[::2],
                         (1, "vxprintmon: problems found: 1\n"))

    def test_json_and_screen_agree(self):
        fleet = self.fleet(printer(), printer("Returns", StatusCode="5", Mileage=999999))
        checks = self.checks(*fleet)
        for check in checks:
            self.assertEqual(list(check), ["check", "subject", "verdict", "text", "remedy"])
            self.assertIn(check["verdict"], ("ok", "note", "problem"))
            self.assertEqual(check["verdict"] == "ok", check["remedy"] == "")
        self.assertEqual({check["subject"] for check in checks}, {"", "Shipping", "Returns"})
        self.assertEqual(sum(check["check"].startswith("value.") for check in checks), 22)
        screen = " ".join(self.doctor(*fleet)[1].split())
        for check in checks:
            if check["verdict"] != "ok":
                self.assertIn(f"{check['verdict']} {check['text']}", screen)
                self.assertIn(f"What to do: {check['remedy']}", screen)
            elif not check["subject"]:
                self.assertIn(f"ok {check['text']}", screen)
        # What is in order is told of a single printer only.
        self.assertIn("Shipping ok Everything is in order. Returns problem", screen)
        self.assertTrue(screen.endswith("ok Everything else is in order."), screen)
        screen = " ".join(self.doctor("Shipping", *fleet)[1].split())
        for check in checks:
            if check["subject"] == "Shipping" and not check["check"].startswith("value."):
                self.assertIn(f"ok {check['text']}", screen)

    def test_one_printer_shows_every_value(self):
        status, output, _ = self.doctor("shipping", *self.fleet(printer(), printer("Returns")))
        self.assertEqual(status, 0)
        self.assertNotIn("Returns", output)
        for name in GOOD:
            self.assertRegex(output, rf"  ok       {name}: REG_(SZ|DWORD), \d+ B:\s+[0-9a-f]")

    def test_unknown_printer_is_a_problem(self):
        [check] = self.check("printer", "Shippin", *self.fleet(printer()))
        self.assertEqual(check["verdict"], "problem")
        self.assertEqual(check["text"],
                         'There is no printer "Shippin". Similar names: Shipping.')
        self.assertIn("vxprintmon list", check["remedy"])

    def test_screens_fit_80_columns_in_every_language(self):
        broken = {name: HOSTILE if isinstance(value, str) else 4000000000 // (1 + value)
                  for name, value in GOOD.items()}
        odd = {"name": HOSTILE, "driver": "Stratamark Alder", "port": HOSTILE,
               "administrable": False, "attributes": ["local", "work-offline"],
               "status": ["offline", "paused"], "values": broken}
        foreign = {"name": "Laser", "driver": "L" * 150, "port": "LPT1:"}
        network = {"name": "Far", "driver": "Stratamark BirchMax", "port": "192.168.1.20"}
        fleet = self.fleet(printer(StatusCode="5"), odd, foreign, network, devices=[])
        english = None
        for language in LANGUAGES:
            for arguments in ((), (HOSTILE,), ("nobody",)):
                with self.subTest((language, arguments)):
                    _, output, errors = self.doctor(*arguments, *fleet,
                                                    LC_ALL=f"{language}.UTF-8", LANG=language)
                    self.assertEqual([line for line in output.splitlines() if width(line) > 80],
                                     [])
                    for character in output + errors:
                        self.assertTrue(character == "\n" or character.isprintable()
                                        or character == "\u3000", repr(character))
            checks = self.checks(*fleet, LC_ALL=f"{language}.UTF-8", LANG=language)
            english = english or self.checks(*fleet)
            self.assertEqual([check["check"] for check in checks],
                             [check["check"] for check in english])
            same = [check for check, other in zip(checks, english)
                    if check["remedy"] and check["remedy"] == other["remedy"]]
            if language != "en":
                self.assertEqual(same, [])

    def test_catalogue_is_the_one_that_is_named(self):
        fleet = self.fleet(printer())
        nowhere = os.path.join(self.folder.name, "nowhere.db")
        for arguments, environment in (((), {"VX_ROLL_DB": nowhere}),
                                       (("--catalogue", nowhere), {}),
                                       (("--catalogue", nowhere), {"VX_ROLL_DB": "/other.db"})):
            [check] = self.check("catalogue", *arguments, *fleet, **environment)
            self.assertEqual(check["text"], f"There is no catalogue {nowhere}.")
            self.assertEqual(check["verdict"], "problem")
        # What is loaded is not known without a catalogue.
        [supply] = self.check("loaded.supply", "--catalogue", nowhere, *fleet)
        self.assertEqual(supply["verdict"], "problem")
        [check] = self.check("catalogue", "--catalogue", self.folder.name, *fleet)
        self.assertIn("cannot be read", check["text"])

    def test_endpoints_are_those_of_running_programs(self):
        fleet = self.fleet(printer())
        with subprocess.Popen((VXPRINTMON, "watch", *fleet), stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, env=self.environment) as host:
            self.addCleanup(host.stdout.close)
            self.assertTrue(host.stdout.readline())
            try:
                supplies, controller, status = self.check("endpoint", *fleet)
                self.assertEqual(supplies["text"],
                                 f"The endpoint vxipc-0 answers: vxprintmon, process {host.pid}.")
                self.assertEqual(controller["verdict"], "ok")
                self.assertEqual(status["verdict"], "note")
                host.send_signal(signal.SIGSTOP)
                supplies = self.check("endpoint", *fleet)[0]
                self.assertEqual(supplies["verdict"], "problem")
                self.assertIn("vxipc-0 does not answer", supplies["text"])
                self.assertIn("start it again", supplies["remedy"])
            finally:
                host.kill()

    def test_untrusted_folder_is_a_problem(self):
        runtime = os.path.join(self.folder.name, "runtime")
        os.mkdir(runtime)
        os.chmod(runtime, 0o777)
        [check] = self.check("endpoints", *self.fleet(printer()), XDG_RUNTIME_DIR=runtime)
        self.assertEqual(check["verdict"], "problem")
        self.assertIn(runtime, check["text"])

    def test_nothing_is_left_behind(self):
        fleet = self.fleet(printer())
        before = os.listdir(self.folder.name)
        self.doctor(*fleet)
        self.assertEqual(os.listdir(self.folder.name), before)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[2:])
