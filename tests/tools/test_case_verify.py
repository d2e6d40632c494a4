#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""`vxprintmon case verify`, and case files in the place of fleets, with the cases of tests/cases.

test_case_verify.py CASES VXPRINTMON
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

CASES = pathlib.Path(sys.argv[1])
VXPRINTMON = sys.argv[2]
# In seconds; ends a tool that hangs.
LIMIT = 600


class CaseVerify(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.lines = (CASES / "ribbon_does_not_suit.vxcase").read_text(encoding="utf-8").splitlines()

    def write(self, text):
        file = self.folder / "day.vxcase"
        file.write_text(text, encoding="utf-8")
        return file

    def run_tool(self, *arguments, **environment):
        result = subprocess.run([VXPRINTMON, *map(str, arguments)], capture_output=True, encoding="utf-8",
                                timeout=LIMIT, env={**os.environ, **environment}, check=False)
        return result.returncode, result.stdout, result.stderr

    def verify(self, lines, *options):
        return self.run_tool("case", "verify", self.write("\n".join(lines) + "\n"), *options)

    def place_of(self, text):
        return next(place for place, line in enumerate(self.lines) if text in line)

    def test_same_day_is_the_same(self):
        code, output, errors = self.verify(self.lines)
        end = json.loads(self.lines[-1])
        self.assertEqual(errors, "")
        self.assertEqual(output, f"The same: {end['signals']} signals and {end['logLines']} log lines in "
                                 f"{end['steps'] + 1} steps.\n")
        self.assertEqual(code, 0)

    def test_first_difference_is_named(self):
        place = self.place_of('"status":15')
        self.lines[place] = self.lines[place].replace('"status":15', '"status":16')
        code, output, errors = self.verify(self.lines)
        first, recorded, replayed = output.splitlines()
        self.assertRegex(first, 'Signals and log lines of "Shipping": the first difference is at number [0-9]+$')
        self.assertIn("recorded: statusChangedSignal(printerName: \"Shipping\", status: 16)", recorded)
        self.assertRegex(recorded, rf"\(line {place + 1}, after 11\.[0-9]{{3}} s\)$")
        self.assertIn("replayed: statusChangedSignal(printerName: \"Shipping\", status: 15)", replayed)
        self.assertEqual(errors, "vxprintmon: the library does something else than was recorded\n")
        self.assertEqual(code, 1)

        code, output, errors = self.verify(self.lines, "--json")
        answer = json.loads(output)
        self.assertFalse(answer["same"])
        self.assertEqual(answer["printer"], "Shipping")
        self.assertEqual(answer["recorded"]["line"], place + 1)
        self.assertIn("status: 15", answer["replayed"]["text"])
        self.assertEqual(code, 1)

    def test_difference_that_is_about_no_printer(self):
        del self.lines[self.place_of('"printerErrorChangedSignal"')]
        code, output, _ = self.verify(self.lines)
        self.assertRegex(output, "^Signals and log lines that are about no printer: the first difference is at "
                                 "number [0-9]+\n")
        self.assertEqual(code, 1)

    def test_new_signal_was_recorded_as_nothing(self):
        place = len(self.lines) - 1 - next(place for place, line in enumerate(reversed(self.lines))
                                           if '"printerName":"Shipping"' in line)
        del self.lines[place]
        code, output, _ = self.verify(self.lines)
        self.assertIn("  recorded: nothing\n", output)
        self.assertEqual(code, 1)

    def test_cut_file_is_compared_up_to_the_cut(self):
        text = "\n".join(self.lines)
        for size in (len(text) // 2, len(text) * 2 // 3, len(text) - 20):
            code, output, errors = self.run_tool("case", "verify", self.write(text[:size]))
            self.assertEqual((code, errors), (0, ""))
            self.assertTrue(output.startswith("The recording was cut short; it is compared up to there.\n"), output)

    def test_log_alone_is_compared(self):
        lines = [line for line in self.lines if '"kind":"signal"' not in line]
        code, output, _ = self.verify(lines)
        self.assertTrue(output.startswith("No signals were recorded; only the log is compared.\n"), output)
        self.assertEqual(code, 0)

    def test_hostile_files_are_refused_in_one_line(self):
        name = self.folder / "day.vxcase"
        header = self.lines[0]
        row = '{"kind":"catalogue","tables":{"material":[{"id":-1,"name_id":1}]}}'
        for lines, message in (
                (["hello"], f"{name}:1: not JSON: "),
                ([header.replace('"version":"1.0"', '"version":"2.0"')],
                 f"{name}:1: version: cannot read version 2.0, only version 1; use a newer program"),
                ([header, '{"kind":"printer","name":"\\u001b[31m"', "{}"], f"{name}:2: not JSON: "),
                ([header, '{"kind":"begun"}', row],
                 f'{name}:3: a row does not fit the table "material" of a catalogue: ')):
            code, output, errors = self.verify(lines)
            self.assertEqual(code, 1, errors)
            self.assertEqual(output, "")
            self.assertTrue(errors.startswith("vxprintmon: " + message), errors)
            self.assertEqual(errors.count("\n"), 1)
            self.assertNotIn("\x1b", errors)

    def test_case_takes_the_place_of_a_fleet(self):
        file = CASES / "ribbon_does_not_suit.vxcase"
        for arguments, environment in ((("--virtual", file), {}), ((), {"VX_VIRTUAL_FLEET": str(file)})):
            code, output, errors = self.run_tool("status", "--json", *arguments, **environment)
            self.assertEqual((code, errors), (0, ""))
            printers = json.loads(output)
            self.assertEqual([printer["printerName"] for printer in printers], ["Shipping"])
            # The names of what is loaded are those of the case.
            self.assertIn("VT-400-YL", output)

    def test_case_is_played_to_those_who_watch(self):
        command = [VXPRINTMON, "watch", "--json", "--signals", "--speed", "100", "--for", str(LIMIT), "--virtual",
                   CASES / "ribbon_does_not_suit.vxcase"]
        statuses = []
        with subprocess.Popen(command, stdout=subprocess.PIPE, encoding="utf-8") as watch:
            for line in watch.stdout:
                signal = json.loads(line)
                if signal.get("signal") == "statusChangedSignal":
                    statuses.append(signal["status"])
                if len(statuses) == 4:
                    break
            watch.terminate()
        self.assertEqual(statuses, [1, 15, 12, 1])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
