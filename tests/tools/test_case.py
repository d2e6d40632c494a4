#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The monitor's command case: what it shows, explains, redacts and refuses.

test_case.py VXPRINTMON EVERY_KIND FINDINGS SUPPORT_PAGE
"""
import copy
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import unicodedata
import unittest

VXPRINTMON, EVERY_KIND, FINDINGS, SUPPORT_PAGE = sys.argv[1:]
# In seconds; ends what hangs.
LIMIT = 600
LANGUAGES = ("de", "en", "es", "fr", "it", "ja", "zh_CN")
HOSTILE = "P\x1b[31m\x07\r\x9b\u202e\u2028" + "x" * 200

HEADER = {"kind": "case", "version": "1.0", "product": "VxPrinterStatus 2.0.0", "qt": "6.4.2",
          "system": "Windows 11", "locale": "de_DE", "timeZone": "Europe/Berlin",
          "time": "2026-11-22T10:30:00.000+01:00", "clock": "monotonic", "recorder": "host",
          "from": "start", "redacted": True}
BEGUN = {"kind": "begun"}


def value(name, content):
    return ({"name": name, "type": 4, "number": content} if isinstance(content, int) else
            {"name": name, "type": 1, "text": content})


def printer(name="Shipping", **members):
    return {"kind": "printer", "name": name, "driver": "Stratamark BirchMax", "port": "USB001",
            "attributes": 64, "status": 0, "administrable": True,
            "values": [value("StatusCode", "1"), value("SupplyIdentifier", "0" * 20),
                       value("Mileage", 0), value("Ribbon1Identifier", 0),
                       value("Ribbon1Mileage", 0)], **members}


def values(t, *changed, name="Shipping", **members):
    return {"kind": "values", "t": t, "n": 1, "printer": name, "changed": list(changed),
            "seenBy": "library", **members}


def status(t, code, name="Shipping"):
    return {"kind": "signal", "t": t, "name": "statusChangedSignal",
            "arguments": {"status": code, "printerName": name}}


def job(t, **members):
    return {"kind": "job", "t": t, "printer": "Shipping", "id": 1, "status": None, **members}


def end(t=100):
    return {"kind": "end", "t": t, "steps": 1, "signals": 1, "logLines": 0, "faster": 0}


def width(line):
    return sum(0 if unicodedata.combining(character) else
               1 + (unicodedata.east_asian_width(character) in "WF") for character in line)


class Case(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="")
        for name in ("VX_ROLL_DB", "VX_VIRTUAL_FLEET", "COLUMNS", "NO_COLOR"):
            self.environment.pop(name, None)
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, *lines, name="a.vxcase"):
        with open(self.path(name), "w", encoding="utf-8") as file:
            for line in lines:
                file.write(line if isinstance(line, str) else json.dumps(line) + "\n")
        return self.path(name)

    def run_case(self, *arguments, **environment):
        done = subprocess.run((VXPRINTMON, "case", *arguments), timeout=LIMIT, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              env={**self.environment, **environment}, cwd=self.folder)
        return done.returncode, done.stdout.decode(), done.stderr.decode()

    def found(self, *lines, arguments=()):
        path = self.write(HEADER, *lines)
        code, output, errors = self.run_case("explain", "--json", path, *arguments)
        self.assertEqual((code, errors), (0, ""))
        return {(each["name"], each["printer"]): each for each in json.loads(output)}

    def refused(self, message, *arguments, code=1):
        self.assertEqual(self.run_case(*arguments), (code, "", f"vxprintmon: {message}\n"))

    # show

    def test_show_tells_the_story(self):
        day = copy.deepcopy(printer())
        day["values"][2] = value("Mileage", 1)
        path = self.write(
            HEADER, day, printer("Front Desk", driver="Laser", port="LPT1:", values=[]),
            {"kind": "service", "state": 4}, BEGUN, status(0.2, 0, "Front Desk"),
            status(0.5, 1), values(60, value("StatusCode", "2")), status(60, 2),
            {"kind": "faster", "t": 61, "printer": "Shipping"}, status(70, 1),
            {"kind": "service", "t": 80, "state": 1}, status(81, 254),
            {"kind": "gap", "t": 90, "lines": 12, "until": 95}, printer(),
            {"kind": "service", "t": 95, "state": 4}, {"kind": "begun", "t": 95}, status(96, 1),
            values(3670.5, value("SupplyIdentifier", "000000641000030000A7"),
                   value("Mileage", 15240)))
        self.assertEqual(self.run_case("show", "a.vxcase"), (0, f"""a.vxcase
recorded  22 Nov 2026 10:30:00, for 1 h 1 min
with      VxPrinterStatus 2.0.0, Windows 11, de_DE, Europe/Berlin
contains  steps: 2, signals: 6, log lines: 0
names     replaced by others
end       missing: the recording was cut short
gap       lines left out from 10:31:30 to 10:31:35: 12
faster    how often values changed faster than they were read: 1

Printers
PRINTER     DRIVER               PORT
Front Desk  Laser                LPT1:
Shipping    Stratamark BirchMax  001

Warnings and errors
Sunday, 22 November 2026
10:30:00  Shipping    warning  Supply: nothing loaded
10:30:00  Shipping    warning  Ribbon 1: nothing loaded
10:31:00  Shipping    error    The printer is out of labels
10:31:10  Shipping             Ready
10:31:21              error    Print spooler stopped, no printer can be read
10:31:36                       Print spooler is running again
11:31:10  Shipping    warning  Supply: not in the catalogue
                               (000000641000030000A7)

What was loaded
PRINTER   SLOT      AT THE BEGINNING  AT THE END
Shipping  supply    none              unknown kind
          ribbon 1  none              none
""", ""))
        self.assertTrue(path)

    def test_show_knows_what_the_catalogue_rows_say(self):
        code, output, errors = self.run_case("show", EVERY_KIND)
        self.assertEqual((code, errors), (0, ""))
        self.assertIn("Versand  supply    80 % Yellow Vinyl  unknown kind\n", output)
        self.assertIn("names     as they are; \"vxprintmon case redact\" replaces them\n", output)

    def test_show_prints_json(self):
        code, output, errors = self.run_case("show", "--json", EVERY_KIND)
        self.assertEqual((code, errors), (0, ""))
        first, *rest = [json.loads(line) for line in output.splitlines()]
        self.assertEqual(first["kind"], "case")
        self.assertEqual(first["seconds"], 4000.25)
        self.assertEqual(first["steps"], 14)
        self.assertEqual(first["gaps"], [{"from": 130, "until": 170, "lines": 12}])
        self.assertIs(first["cut"], False)
        events = [each["event"] for each in rest if each["kind"] == "event"]
        self.assertIn("ribbon_labels_mismatch", [event["key"] for event in events])
        printers = {each["name"]: each for each in rest if each["kind"] == "printer"}
        self.assertEqual(set(printers), {"Versand", "Keller", "Front Desk Laser", "Labor 2"})
        self.assertEqual(printers["Versand"]["first"]["supply"]["sku"], "VT-400-YL")
        self.assertIsNone(printers["Labor 2"]["first"])

    def test_a_case_without_anything_is_shown(self):
        self.write(HEADER, end(0))
        self.assertEqual(self.run_case("show", "a.vxcase"), (0, """a.vxcase
recorded  22 Nov 2026 10:30:00, for 0.0 s
with      VxPrinterStatus 2.0.0, Windows 11, de_DE, Europe/Berlin
contains  steps: 0, signals: 0, log lines: 0
names     replaced by others

Printers
none

Warnings and errors
none

What was loaded
none
""", ""))

    def test_screens_fit_80_columns_in_every_language(self):
        hostile = self.write(
            {**HEADER, "product": HOSTILE, "system": HOSTILE, "redacted": False},
            printer(HOSTILE, port=HOSTILE, attributes=1088, status=128, administrable=False,
                    values=[value("StatusCode", HOSTILE), value("Mileage", HOSTILE)]),
            printer("\u6771" * 100), BEGUN, {"kind": "service", "t": 1, "state": 1},
            {"kind": "service", "t": 2, "state": 4}, status(3, 15, HOSTILE),
            {"kind": "gap", "t": 4, "lines": 2**52, "until": 1e9},
            values(20, value("SupplyIdentifier", "\u6771" * 6 + "xx"), name=HOSTILE),
            values(21, value("UpdateError", 4294967295), name="\u6771" * 100), end(1e9))
        english = {}
        for language in LANGUAGES:
            for arguments in (("show", hostile), ("explain", hostile), ("show", EVERY_KIND),
                              ("explain", EVERY_KIND)):
                with self.subTest((language, arguments)):
                    code, output, errors = self.run_case(*arguments, LANGUAGE=language)
                    self.assertEqual((code, errors), (0, ""))
                    for line in output.splitlines():
                        self.assertLessEqual(width(line), 80, line)
                    self.assertTrue(all(character == "\n" or character.isprintable()
                                        for character in output))
                    if language == "en":
                        english[arguments] = output
                    elif "en" in LANGUAGES[:LANGUAGES.index(language)]:
                        self.assertNotEqual(output, english[arguments])

    # explain

    def test_an_ordinary_day_has_no_findings(self):
        self.assertEqual(self.found(
            printer(), printer("Laser", driver="Laser", administrable=False, attributes=1088,
                               status=128, values=[]),
            {"kind": "service", "state": 4}, BEGUN, status(1, 1), job(20, status=0),
            values(25, value("Mileage", 5)), job(30), status(40, 2), status(50, 1), end()), {})
        self.assertEqual(self.run_case("explain", "a.vxcase"),
                         (0, "Nothing in this case is recognised.\n", ""))

    def test_the_spooler_was_restarted(self):
        found = self.found(printer(), {"kind": "service", "state": 4}, BEGUN,
                           {"kind": "service", "t": 5, "state": 3},
                           {"kind": "service", "t": 6, "state": 1},
                           {"kind": "service", "t": 9, "state": 4}, end())
        self.assertEqual(set(found), {("spooler_restarted", "")})
        self.assertEqual(found["spooler_restarted", ""]["lines"], [5, 6, 7])
        self.assertEqual(found["spooler_restarted", ""]["from"], 5)

    def test_the_spooler_stayed_away(self):
        found = self.found(printer(), {"kind": "service", "state": 4}, BEGUN,
                           {"kind": "service", "t": 5, "state": 1}, end())
        self.assertEqual(set(found), {("spooler_stopped", "")})

    def test_what_was_loaded_is_not_in_the_catalogue(self):
        found = self.found(printer(), BEGUN,
                           values(5, value("SupplyIdentifier", "000000641000990000A7")), end())
        self.assertEqual(set(found), {("not_in_catalogue", "Shipping")})
        self.assertIn("000000641000990000A7", found["not_in_catalogue", "Shipping"]["text"])
        self.assertEqual(found["not_in_catalogue", "Shipping"]["lines"], [4])

    def test_rows_of_the_catalogue_may_follow(self):
        with open(EVERY_KIND, encoding="utf-8") as file:
            catalogue = next(line for line in map(json.loads, file) if line["kind"] == "catalogue")
        self.assertEqual(self.found(
            printer(), BEGUN, values(5, value("SupplyIdentifier", "000000641000030000A7")),
            {**catalogue, "t": 6}, end()), {})

    def test_values_are_missing(self):
        partial = printer()
        del partial["values"][2:]
        found = self.found(partial, BEGUN, end())
        self.assertEqual(set(found), {("values_missing", "Shipping")})
        self.assertIn("Mileage, Ribbon1Identifier, Ribbon1Mileage",
                      found["values_missing", "Shipping"]["text"])
        # They may come a little later.
        self.assertEqual(self.found(
            partial, BEGUN, values(5, value("Mileage", 1), value("Ribbon1Identifier", 0),
                                   value("Ribbon1Mileage", 1)), end()), {})
        found = self.found(printer(), BEGUN, values(5, missing=["StatusCode", "Odd"]), end())
        self.assertIn("StatusCode.", found["values_missing", "Shipping"]["text"])

    def test_values_are_wrong(self):
        for wrong in (value("Mileage", "x"), value("Mileage", 900000),
                      {"name": "Mileage", "type": 3, "base64": "AAAAAAA="},
                      value("StatusCode", 1), value("SupplyIdentifier", "x")):
            with self.subTest(wrong):
                found = self.found(printer(), BEGUN, values(5, wrong), end())
                self.assertEqual(set(found), {("values_wrong", "Shipping")})
                self.assertIn(wrong["name"], found["values_wrong", "Shipping"]["text"])
                self.assertEqual(found["values_wrong", "Shipping"]["lines"], [4])
        self.assertEqual(self.found(printer(), BEGUN, values(5, value("Mileage", "x")),
                                    values(6, value("Mileage", 1)), end()), {})

    def test_rights_are_missing(self):
        self.assertEqual(set(self.found(printer(administrable=False), BEGUN, end())),
                         {("no_rights", "Shipping")})
        failed = {"kind": "started", "t": 1, "n": 1, "printer": "Shipping",
                  "failed": [{"call": "OpenPrinterA", "printer": "Shipping", "error": 5}]}
        found = self.found(printer(), BEGUN, failed, end())
        self.assertEqual(set(found), {("no_rights", "Shipping")})
        self.assertEqual(found["no_rights", "Shipping"]["lines"], [4])

    def test_the_offline_flag_was_never_cleared(self):
        offline = {"kind": "printerChanged", "t": 5, "name": "Shipping", "attributes": 1088}
        found = self.found(printer(), BEGUN, offline, end())
        self.assertEqual(set(found), {("offline_flag", "Shipping")})
        self.assertEqual(self.found(printer(), BEGUN, offline,
                                    {**offline, "t": 6, "attributes": 64}, end()), {})
        self.assertEqual(set(self.found(printer(status=128), BEGUN, end())),
                         {("offline", "Shipping")})

    def test_the_ribbon_did_not_suit(self):
        found = self.found(printer(), BEGUN, status(7, 15), status(9, 1), end())
        self.assertEqual(set(found), {("ribbon_mismatch", "Shipping")})
        self.assertEqual(found["ribbon_mismatch", "Shipping"]["lines"], [4])

    def test_the_firmware_update_failed(self):
        self.assertEqual(set(self.found(printer(), BEGUN, status(7, 22), end())),
                         {("firmware_update_failed", "Shipping")})
        self.assertEqual(set(self.found(printer(), BEGUN, values(7, value("UpdateError", 3)),
                                        end())), {("firmware_update_failed", "Shipping")})

    def test_reports_stopped_coming(self):
        found = self.found(printer(), BEGUN, job(10, status=0), job(20), end())
        self.assertEqual(set(found), {("reports_stopped", "Shipping")})
        self.assertEqual(found["reports_stopped", "Shipping"]["lines"], [5])
        # Soon after it, just before it, and too soon to tell.
        self.assertEqual(self.found(printer(), BEGUN, job(20), values(50), end()), {})
        self.assertEqual(self.found(printer(), BEGUN, values(15), job(20), end()), {})
        self.assertEqual(self.found(printer(), BEGUN, job(20), end(60)), {})
        # Later reports do not undo it.
        self.assertEqual(set(self.found(printer(), BEGUN, job(20), values(90), end())),
                         {("reports_stopped", "Shipping")})
        lost = {"kind": "poll", "t": 9, "n": 2, "printer": "Shipping", "failed": [
            {"call": "FindFirstPrinterChangeNotification", "printer": "Shipping", "error": 8}]}
        self.assertEqual(set(self.found(printer(), BEGUN, lost, end())),
                         {("notification_lost", "Shipping")})
        self.assertEqual(self.found(printer(), BEGUN, lost, values(10), end()), {})

    def test_the_own_findings_have_texts_in_every_language(self):
        with open(FINDINGS, encoding="utf-8") as file:
            findings = json.load(file)["findings"]
        self.assertGreater(len(findings), 10)
        for finding in findings:
            for member in ("text", "remedy"):
                self.assertEqual(set(finding[member]), set(LANGUAGES), finding["name"])
                for text in finding[member].values():
                    self.assertEqual({word for word in ("{printer}", "{value}", "{identifier}",
                                                        "{call}", "{error}") if word in text},
                                     {word for word in ("{printer}", "{value}", "{identifier}",
                                                        "{call}", "{error}")
                                      if word in finding[member]["en"]}, finding["name"])

    def test_people_can_add_findings(self):
        table = self.write({"findings": [
            {"name": "hot", "when": {"fact": "signal", "status": {"above": 7, "below": 11}},
             "text": {"en": "\"{printer}\" was hot ({status}).", "de": "Heiß."},
             "remedy": "Wait."}]}, name="table.json")
        found = self.found(printer(), BEGUN, status(5, 8), status(6, 10), status(7, 11), end(),
                           arguments=("--findings", table))
        self.assertEqual(found["hot", "Shipping"]["text"], "\"Shipping\" was hot (8).")
        self.assertEqual(found["hot", "Shipping"]["lines"], [4, 5])
        code, output, _ = self.run_case("explain", "a.vxcase", "--findings", table, LANGUAGE="de")
        self.assertEqual(code, 0)
        self.assertRegex(output, r"^Heiß\.\n  [^\n]*: Wait\.\n")

    def test_mistakes_in_a_table_are_named(self):
        self.write(HEADER, end())
        good = {"name": "a", "when": {"fact": "job"}, "text": "x", "remedy": "y"}
        for table, message in (
                ("{", "byte 1: unterminated object"),
                ("[]", "expected an object with the list \"findings\""),
                ({"findings": {}}, "expected an object with the list \"findings\""),
                ({"findings": [{}]}, "findings[0]: \"name\" must be a text"),
                ({"findings": [good, {**good, "always": {}}]},
                 "findings[1]: there is no member \"always\""),
                ({"findings": [{**good, "when": {}}]},
                 "findings[0]: \"when\" must be a condition or a list of conditions"),
                ({"findings": [{**good, "until": {"status": {"biger": 7}}}]},
                 "findings[0]: \"until\" must be a condition or a list of conditions"),
                ({"findings": [{**good, "lasting": "long"}]},
                 "findings[0]: \"lasting\" must be a number of seconds"),
                ({"findings": [{**good, "by": "printer"}]},
                 "findings[0]: \"by\" must be a list of texts"),
                ({"findings": [{**good, "remedy": {"de": "x"}}]},
                 "findings[0]: \"remedy\" must be a text, or texts by their languages with \"en\" "
                 "among them"),
                ({"findings": [good] * 1001}, "there are more than 1000 findings"),
                ('{"findings": "' + "x" * 2**20 + '"}', "the file is larger than 1048576 bytes")):
            with self.subTest(message):
                self.write(table, name="table.json")
                self.refused(f"table.json: {message}", "explain", "a.vxcase", "--findings",
                             "table.json")
        self.refused("missing.json: No such file or directory", "explain", "a.vxcase",
                     "--findings", "missing.json")

    # redact

    def test_no_secret_is_in_a_redacted_file(self):
        planted = 0

        def plant(node, path=()):
            nonlocal planted
            if isinstance(node, dict):
                result = {key: plant(each, (*path, key)) for key, each in node.items()}
                planted += 1
                return {**result, f"member zqx{planted}": f"zqx{planted}"}
            if isinstance(node, list):
                return [plant(each, path) for each in node]
            if not isinstance(node, str) or path in (("kind",), ("version",), ("time",)):
                return node
            planted += 1
            return f"zqx{planted} {node}"

        with open(EVERY_KIND, encoding="utf-8") as file:
            lines = [plant(json.loads(line)) for line in file]
        lines[-1:-1] = [{"kind": f"zqx {i}", "text": "zqx"} for i in range(20)]
        self.assertGreater(planted, 200)
        self.write(*lines)
        code, _, errors = self.run_case("redact", "a.vxcase", "b.vxcase")
        self.assertEqual((code, errors), (0, ""))
        with open(self.path("b.vxcase"), "rb") as file:
            redacted = file.read()
        self.assertNotIn(b"zqx", redacted)
        # Signals and calls that nobody knows are left out as well.
        self.assertGreater(len(redacted.splitlines()), 30)
        # What is not text is still there.
        self.assertIn(b'"attributes":1088', redacted)

    def test_redact_says_what_it_did(self):
        self.write(HEADER, printer(), {"kind": "new"}, end())
        self.assertEqual(self.run_case("redact", "a.vxcase", "b.vxcase"),
                         (0, "b.vxcase: lines written: 3, left out: 1\n"
                             "Read it before you send it: it is plain text.\n", ""))
        self.assertEqual(json.loads(self.run_case("redact", "--json", "a.vxcase", "c.vxcase")[1]),
                         {"file": "c.vxcase", "lines": 3, "leftOut": 1})

    def test_redact_overwrites_nothing(self):
        self.write(HEADER, printer(), end())
        self.write("keep me", name="b.vxcase")
        for name in ("a.vxcase", "b.vxcase", "."):
            self.refused(f"{name}: there is such a file already; name another one", "redact",
                         "a.vxcase", name)
        with open(self.path("b.vxcase"), encoding="utf-8") as file:
            self.assertEqual(file.read(), "keep me")
        self.assertEqual(sorted(os.listdir(self.folder)), ["a.vxcase", "b.vxcase"])

    def test_redact_leaves_nothing_half_written(self):
        self.write(HEADER, *[printer(f"P{i}") for i in range(1000)], "nonsense\n", end())
        self.refused("a.vxcase: line 1002: it is not a JSON object", "redact", "a.vxcase",
                     "b.vxcase")
        self.refused("missing/b.vxcase: No such file or directory", "redact",
                     self.write(HEADER, end()), "missing/b.vxcase")
        self.assertEqual(os.listdir(self.folder), ["a.vxcase"])

    def test_a_cut_file_stays_cut(self):
        self.write(HEADER, printer(), '{"kind":"sig')
        self.assertEqual(self.run_case("redact", "a.vxcase", "b.vxcase")[0], 0)
        self.assertIs(json.loads(
            self.run_case("show", "--json", "b.vxcase")[1].splitlines()[0])["cut"], True)

    # What is refused

    def test_files_that_are_no_cases_are_refused(self):
        self.write("hello\n", name="text")
        self.write({"kind": "case", "version": "2.0"}, name="later")
        for action in (("show",), ("explain",), ("redact",)):
            target = ("b.vxcase",) if action == ("redact",) else ()
            self.refused("text: line 1: it is not a JSON object", *action, "text", *target)
            self.refused("later: line 1: the case file has version 2.0, but this program reads "
                         "version 1", *action, "later", *target)
            self.refused("missing: No such file or directory", *action, "missing", *target)
            self.assertFalse(os.path.exists(self.path("b.vxcase")))

    def test_wrong_usage_is_named(self):
        for message, *arguments in (
                ("case takes an action and one or two files, found nothing",),
                ("case: expected show, explain, redact or verify, found \"tell\"", "tell", "a"),
                ("case show takes a file, found nothing", "show"),
                ("case show takes a file, found \"a\" \"b\"", "show", "a", "b"),
                ("case redact takes a file to read and a file to write, found \"a\"", "redact",
                 "a"),
                ("--findings is valid only with case explain", "show", "a", "--findings", "b"),
                ("--all is valid only with title", "show", "a", "--all")):
            self.refused(f"{message} (see vxprintmon --help)", *arguments, code=2)

    def test_the_commands_of_the_support_page_lead_to_a_file_worth_sending(self):
        with open(SUPPORT_PAGE, encoding="utf-8") as file:
            section = re.search(r"## A file worth sending\n(.*?)\n## ", file.read(), re.S)[1]
        commands = [shlex.split(line) for block in re.findall(r"```sh\n(.*?)```", section, re.S)
                    for line in block.splitlines() if line.strip()]
        self.assertEqual({command[0] for command in commands}, {"vxprintmon"})
        self.assertEqual({command[2] for command in commands if command[1] == "case"},
                         {"show", "explain", "redact", "verify"})
        for _, *words in commands:
            # Somebody would press Ctrl-C.
            limit = ("--for", "0.5") if words[0] in ("record", "watch") else ()
            done = subprocess.run((VXPRINTMON, *words, *limit), timeout=LIMIT, check=False,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                  env=self.environment, cwd=self.folder)
            self.assertEqual((done.returncode, done.stderr.decode()), (0, ""), words)
            self.assertTrue(done.stdout.strip(), words)
        with open(self.path("to_send.vxcase"), encoding="utf-8") as file:
            text = file.read()
        for name in ("Shipping", "Warehouse", "Front Desk", "AM-"):
            self.assertNotIn(name, text)

    def test_verify_plays_the_case(self):
        self.write(HEADER, end(0))
        code, output, errors = self.run_case("verify", "a.vxcase")
        self.assertEqual(errors, "")
        self.assertEqual(code, 0, output)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
