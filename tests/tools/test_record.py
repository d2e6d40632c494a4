# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Recording a case with the monitor, as people do it.

test_record.py VXPRINTMON FINDINGS
"""
import json
import os
import pathlib
import re
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

VXPRINTMON, FINDINGS = sys.argv[1:]
# In seconds; ends what hangs.
LIMIT = 120
MEBIBYTE = 1024 * 1024
VALUES = {"StatusCode": "1", "SupplyIdentifier": "000000641000030000A7", "Mileage": 15240}


def no_large_files():
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (8000, 8000))


class Record(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.file = str(self.folder / "day.vxcase")
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="", COLUMNS="400")
        for name in ("VX_ROLL_DB", "VX_VIRTUAL_FLEET", "VX_RECORD"):
            self.environment.pop(name, None)
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = folder.name

    def run_tool(self, *arguments, **options):
        return subprocess.run((VXPRINTMON, *arguments), env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, timeout=LIMIT, check=False, **options)

    def lines(self):
        with open(self.file, encoding="utf-8") as file:
            return [json.loads(line) for line in file]

    def storm(self, printers, reports):
        """A fleet that reports so often, each time another level."""
        names = [f"P{number:02}" for number in range(printers)]
        timeline = [{"at": 0.01 * turn, "printer": names[turn % printers],
                     "values": {"Mileage": 15240 - turn // printers % 15000,
                                "StatusCode": str(1 + turn // printers % 2 * 3),
                                "Ribbon1Identifier": 2001 + turn // printers % 2 * 3,
                                "EthernetConfig": f"dhcp,10.0.0.{turn},255.255.255.0,10.0.0.1"}}
                    for turn in range(reports)]
        path = self.folder / "fleet.json"
        path.write_text(json.dumps({
            "printers": [{"name": name, "driver": "Stratamark AlderMax", "values": VALUES}
                         for name in names],
            "timeline": timeline}), encoding="utf-8")
        return "--virtual", str(path)

    def test_ends_with_a_summary(self):
        done = self.run_tool("record", self.file, "--for", "2", "--speed", "8")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        lines = done.stdout.splitlines()
        self.assertEqual(lines[0], f"Recording into {self.file}.")
        for row in ("File", "Size", "Duration", "Printers", "Changes", "Signals", "Log lines"):
            self.assertEqual(sum(line.startswith(row + " ") for line in lines), 1, row)
        self.assertEqual(lines[-1], "Names, serial numbers and addresses are replaced. "
                                    "\"vxprintmon case show\" shows what is in the file.")
        self.assertEqual(self.lines()[-1]["kind"], "end")
        self.assertNotIn("Shipping", pathlib.Path(self.file).read_text(encoding="utf-8"))

    def test_names_are_kept_if_wanted(self):
        done = self.run_tool("record", self.file, "--for", "1", "--plain")
        self.assertEqual(done.stdout.splitlines()[-1],
                         "The file has the names of printers, people and computers. "
                         "\"vxprintmon case redact\" takes them out.")
        self.assertIn("Shipping", pathlib.Path(self.file).read_text(encoding="utf-8"))

    def test_existing_file_stays(self):
        pathlib.Path(self.file).write_text("mine", encoding="utf-8")
        done = self.run_tool("record", self.file, "--for", "1")
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertEqual(done.stderr, f"vxprintmon: {self.file} exists and is not replaced; choose "
                                      "another name, or delete it first\n")
        self.assertEqual(pathlib.Path(self.file).read_text(encoding="utf-8"), "mine")

    def test_file_that_cannot_be_created(self):
        self.file = str(self.folder / "no" / "day.vxcase")
        done = self.run_tool("record", self.file, "--for", "1")
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stderr, f"^vxprintmon: cannot create {re.escape(self.file)}: .+\n$")

    def test_limit_is_a_size(self):
        for size in ("x", "-1M", "1K", "2G", "nan", "1e30"):
            done = self.run_tool("record", self.file, "--limit=" + size, "--for", "1")
            self.assertEqual(done.returncode, 2, size)
            self.assertEqual(
                done.stderr, "vxprintmon: --limit: expected a size from 1M to 1G such as 64M, "
                             f"found \"{size}\" (see vxprintmon --help)\n")
            self.assertFalse(os.path.exists(self.file))

    def test_ends_when_it_is_interrupted(self):
        with subprocess.Popen((VXPRINTMON, "record", self.file), env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE) as record:
            self.assertEqual(record.stdout.readline(),
                             f"Recording into {self.file}, until it is interrupted (Ctrl-C).\n")
            record.send_signal(signal.SIGINT)
            output, errors = record.communicate(timeout=LIMIT)
        self.assertEqual((record.returncode, errors), (0, ""))
        self.assertIn("Duration", output)
        self.assertEqual(self.lines()[-1]["kind"], "end")

    def test_limit_keeps_the_beginning_and_the_latest(self):
        done = self.run_tool("record", self.file, "--limit", "1M", "--for", "30", "--speed", "1000",
                             *self.storm(20, 4000))
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertRegex(done.stdout, r"\nLeft out to keep the limit  +[1-9]")
        self.assertLessEqual(os.path.getsize(self.file), MEBIBYTE)
        kinds = [line["kind"] for line in self.lines()]
        self.assertEqual((kinds[0], kinds[-1]), ("case", "end"))
        self.assertIn("gap", kinds)

    def test_full_disk(self):
        done = self.run_tool("record", self.file, "--for", "5", "--speed", "8",
                             preexec_fn=no_large_files)
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stderr, f"^vxprintmon: cannot write {re.escape(self.file)}: .+; it is "
                                      "tried again every second\n")
        self.assertRegex(done.stdout, r"\nNot written  +\d")

    def test_findings_that_are_too_large(self):
        self.run_tool("record", self.file, "--for", "1")
        table = self.folder / "findings.json"
        table.write_text(" " * (2 * MEBIBYTE), encoding="utf-8")
        done = self.run_tool("case", "explain", self.file, "--findings", str(table))
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr,
                         f"vxprintmon: {table}: the file is larger than 1048576 bytes\n")

    def test_evidence_is_bounded(self):
        self.run_tool("record", self.file, "--for", "3", "--speed", "100", *self.storm(2, 200))
        with open(FINDINGS, encoding="utf-8") as file:
            table = json.load(file)
        table["findings"] = [{"name": "report", "when": {"fact": "report"}, "by": [],
                              "text": "Reports.", "remedy": "Nothing."}]
        findings = self.folder / "findings.json"
        findings.write_text(json.dumps(table), encoding="utf-8")
        done = self.run_tool("case", "explain", self.file, "--findings", str(findings))
        evidence = " ".join(done.stdout.split()) + "\n"
        self.assertRegex(evidence, r"Evidence, from .+: lines [\d, ]+ and more: \d+")
        self.assertNotRegex(evidence, r"Evidence, from .+: lines [\d, ]+\n")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
