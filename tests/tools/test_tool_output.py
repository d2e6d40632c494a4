# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What the tools do when their output cannot be written, how they show text from elsewhere, and how they
speak the user's language.

test_tool_output.py VXPRINTMON VXIPC ROLLDB
"""
import json
import os
import subprocess
import sys
import tempfile
import unicodedata
import unittest

VXPRINTMON, VXIPC, ROLLDB = sys.argv[1:]
HOSTILE = "P\x1b[31m\x07\r\x9b\u202e\u2028\U000e0001"
SHOWN = r"P\u001b[31m\u0007\u000d\u009b\u202e\u2028\udb40\udc01"
FLEET = {"printers": [{"name": HOSTILE, "driver": "Stratamark Alder", "port": HOSTILE,
                       "values": {"StatusCode": "1", "SoftwareVersion": HOSTILE}}],
         "timeline": [{"at": 0.1, "say": HOSTILE}]}
# With a sanitizer the tools take ten times as long to start, and CMake passes two languages, one with
# wide characters. The others run the same code on other texts.
LANGUAGES = tuple(os.environ.get("VX_TEST_LANGUAGES", "de:es:fr:it:ja:zh_CN").split(":"))
# In seconds; ends a tool that hangs.
LIMIT = 300


def columns(text):
    """The columns that a text takes in a terminal."""
    return sum(2 if unicodedata.east_asian_width(character) in "WF" else 1 for character in text)


class Output(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.environment = dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="")
        for name in ("HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"):
            self.environment[name] = self.folder.name
        self.before = os.listdir(self.folder.name)

    def run_tool(self, *command, stdout=subprocess.PIPE, **options):
        done = subprocess.run(command, stdout=stdout, stderr=subprocess.PIPE, timeout=LIMIT,
                              env=self.environment, **options)
        return done.returncode, (done.stdout or b"").decode(), done.stderr.decode()

    def commands(self):
        return [(VXPRINTMON, "list"), (VXPRINTMON, "list", "--json"), (VXPRINTMON, "status"),
                (VXPRINTMON, "title", "1"), (VXPRINTMON, "title", "--all"), (VXPRINTMON, "send", "Shipping", "X"),
                (VXPRINTMON, "watch"), (VXPRINTMON, "watch", "--json"), (VXPRINTMON, "--help"),
                (VXPRINTMON, "--version"), (VXIPC, "list", "--json"), (VXIPC, "--help"),
                (ROLLDB, "--help")]

    def test_full_disk_is_reported(self):
        for command in self.commands():
            with self.subTest(command), open("/dev/full", "wb") as full:
                tool = os.path.basename(command[0])
                self.assertEqual(
                    self.run_tool(*command, stdout=full),
                    (1, "", f"{tool}: standard output could not be written: "
                            "No space left on device\n"))

    def test_closed_standard_output_is_reported(self):
        for command in self.commands():
            with self.subTest(command):
                status, _, errors = self.run_tool("sh", "-c", 'exec "$@" >&-', "sh", *command)
                self.assertEqual(status, 1)
                self.assertIn("standard output could not be written: Bad file descriptor", errors)
                self.assertEqual(errors.count("\n"), 1)

    def test_closed_pipe_ends_quietly(self):
        for command in self.commands():
            with self.subTest(command):
                reading, writing = os.pipe()
                os.close(reading)
                with os.fdopen(writing, "wb") as closed:
                    self.assertEqual(self.run_tool(*command, stdout=closed), (0, "", ""))
                self.assertEqual(os.listdir(self.folder.name), self.before)

    def test_watch_ends_when_its_reader_closes_the_pipe(self):
        # Nothing happens to the printer, so there is no write that could fail.
        quiet = self.fleet({"printers": [{"name": "P", "driver": "Stratamark Alder"}]})
        with subprocess.Popen((VXPRINTMON, "watch", "--virtual", quiet), stdout=subprocess.PIPE,
                              stderr=subprocess.PIPE, env=self.environment) as watch:
            self.assertIn(b"PRINTER", watch.stdout.readline())
            watch.stdout.close()
            self.assertEqual(watch.stderr.read(), b"")
            self.assertEqual(watch.wait(LIMIT), 0)

    def fleet(self, content):
        name = os.path.join(self.folder.name, "fleet.json")
        with open(name, "w", encoding="utf-8") as file:
            json.dump(content, file)
        return name

    def check_shown(self, text):
        # JSON has a shorter escape for the carriage return.
        self.assertIn(SHOWN, text.replace("\\r", "\\u000d"))
        for character in text:
            self.assertTrue(character == "\n" or character.isprintable(), repr(character))

    def test_monitor_escapes_text_from_elsewhere(self):
        self.environment["COLUMNS"] = "400"  # so that nothing is cut short
        fleet = ("--virtual", self.fleet(FLEET))
        for words in (("list",), ("status",), ("status", HOSTILE), ("send", HOSTILE, HOSTILE),
                      ("watch", "--for", "1"), ("watch", "--for", "1", "--json"),
                      ("list", "--json"), ("status", "--json"),
                      ("send", HOSTILE, HOSTILE, "--json")):
            with self.subTest(words):
                status, output, errors = self.run_tool(VXPRINTMON, *words, *fleet)
                self.assertEqual((status, errors), (0, ""))
                self.check_shown(output)
        for words in (("status", HOSTILE), ("list", "--json")):
            output = self.run_tool(VXPRINTMON, *words, "--json", *fleet)[1]
            self.assertEqual(json.loads(output)[0]["printerName"], HOSTILE)

    def test_columns_are_as_wide_as_what_is_shown(self):
        self.environment["COLUMNS"] = "400"
        _, output, _ = self.run_tool(VXPRINTMON, "list", "--virtual", self.fleet(FLEET))
        heading, row = output.splitlines()
        self.assertEqual(heading.index("MODEL"), row.index("Alder"))

    def test_help_fits_in_80_columns(self):
        for tool in (VXPRINTMON, VXIPC, ROLLDB):
            with self.subTest(tool):
                status, output, errors = self.run_tool(tool, "--help")
                self.assertEqual((status, errors), (0, ""))
                self.assertEqual([line for line in output.splitlines() if len(line) > 80], [])

    def test_messages_are_one_bounded_line(self):
        long = HOSTILE + "x" * 100000
        for command, status in (
                ((VXPRINTMON, HOSTILE), 2), ((VXPRINTMON, "status", HOSTILE), 1),
                ((VXPRINTMON, "list", "--virtual", HOSTILE), 1), ((VXPRINTMON, "title", long), 2),
                ((VXPRINTMON, long), 2), ((VXPRINTMON, "status", long), 1),
                ((VXIPC, HOSTILE), 2), ((VXIPC, "describe", long), 2),
                ((VXIPC, "list", "--" + HOSTILE), 2), ((ROLLDB, "check", HOSTILE), 1),
                ((ROLLDB, "check", long), 1), ((ROLLDB, long), 2)):
            with self.subTest(command[1][:20]):
                returned, output, errors = self.run_tool(*command)
                self.assertEqual((returned, output), (status, ""))
                self.assertEqual(errors.count("\n"), 1)
                self.assertLess(len(errors), 2000)
                self.check_shown(errors)

    def speak(self, language):
        self.environment["LANGUAGE"] = language

    def in_every_language(self, *command):
        """What a tool prints in each language, after what it prints in English."""
        for language in ("en",) + LANGUAGES:
            self.speak(language)
            yield language, self.run_tool(*command)

    def test_language_is_that_of_the_locale(self):
        # As a user has it, without the variable that comes before all others.
        self.environment.pop("LANGUAGE")
        self.environment.update(LC_ALL="de_DE.UTF-8")
        self.assertIn("Befehle:", self.run_tool(VXPRINTMON, "--help")[1])
        self.environment.pop("LC_ALL")
        self.environment.update(LANG="de_DE.UTF-8")
        for tool in (VXPRINTMON, VXIPC, ROLLDB):
            self.assertTrue(self.run_tool(tool, "--help")[1].startswith("Aufruf: "), tool)
        self.assertEqual(self.run_tool(VXPRINTMON, "title", "1")[1], "Bereit\n")

    def test_first_language_with_texts_is_used(self):
        for languages, begin in (("pt:fr:de", "Utilisation"), ("en:de", "Usage"), ("pt", "Usage")):
            self.speak(languages)
            self.assertTrue(self.run_tool(VXIPC, "--help")[1].startswith(begin), languages)

    def test_screens_fit_in_every_language(self):
        catalogue = os.path.join(self.folder.name, "no.db")
        for command in (("list",), ("status",), ("status", "Shipping"), ("status", "Branch Office"),
                        ("watch", "--for", "0.1"), ("status", "--catalogue", catalogue),
                        ("help", "watch"), ("help", "status"), ("help", "list")):
            for language, (status, output, _) in self.in_every_language(VXPRINTMON, *command):
                with self.subTest(command=command, language=language):
                    self.assertEqual(status, 0)
                    self.assertEqual([line for line in output.splitlines() if columns(line) > 80], [])

    def test_events_are_in_every_language(self):
        said = set()
        for language in ("en",) + LANGUAGES:
            self.speak(language)
            events, seconds = [], 1.5
            while len(events) <= 3 and seconds < LIMIT:  # a busy machine needs more of them
                status, output, errors = self.run_tool(VXPRINTMON, "watch", "--speed", "60", "--for",
                                                       str(seconds))
                self.assertEqual((status, errors), (0, ""), language)
                events = [line for line in output.split("\n\n")[1].splitlines() if "  > " not in line]
                seconds *= 4
            self.assertGreater(len(events), 3, language)
            said.add(" ".join(event.split("Shipping", 1)[-1] for event in events[:3]))
        self.assertEqual(len(said), 1 + len(LANGUAGES))

    def test_help_and_titles_fit_in_every_language(self):
        for command in ((VXPRINTMON, "--help"), (VXIPC, "--help"), (ROLLDB, "--help"),
                        (VXIPC, "call", "--help"), (ROLLDB, "help", "find"),
                        (VXPRINTMON, "title", "--all")):
            english = []
            for language, (status, output, errors) in self.in_every_language(*command):
                with self.subTest(command=command, language=language):
                    self.assertEqual((status, errors), (0, ""))
                    self.assertEqual([line for line in output.splitlines() if columns(line) > 80], [])
                    lines = [line.strip() for line in output.splitlines() if line.strip()]
                    if language == "en":
                        english = lines
                    elif "title" in command:
                        self.assertFalse(set(lines) & set(english))
                    else:
                        # Only what the user types is the same.
                        for line in set(lines) & set(english):
                            self.assertRegex(line, r"^[a-z]+ ([a-z]+ )?(\[?(--[a-z]+ )?[A-Z]+\]?(\.\.\.)? ?)+$")

    def test_names_for_the_command_line_stay(self):
        names = {VXPRINTMON: ("list", "watch [PRINTER]...", "status [PRINTER]", "help [COMMAND]", "send PRINTER COMMAND", "title CODE",
                              "--json", "--for SECONDS", "--log FILE", "--library-log FILE",
                              "--catalogue FILE", "--relative", "--verbose", "--signals", "-h, --help", "--virtual FILE",
                              "--speed FACTOR", "--all", "--help", "--version"),
                 VXIPC: ("list", "describe SERVICE", "call SERVICE METHOD [ARGUMENT]...", "--json",
                         "--timeout MS", "-h, --help", "--version"),
                 ROLLDB: ("build DIRECTORY FILE", "check PATH", "list FILE", "show FILE SKU",
                          "find FILE IDENTIFIER", "export FILE DIRECTORY", "template DIRECTORY",
                          "--language TAG", "--json", "--force", "-h, --help", "--version")}
        for tool, words in names.items():
            for language, (_, output, _) in self.in_every_language(tool, "--help"):
                for word in words:
                    self.assertIn(word, output, language)

    def test_tables_are_aligned_in_every_language(self):
        headings = set()
        self.environment["COLUMNS"] = "120"  # so that nothing is cut short
        for language, (status, output, errors) in self.in_every_language(VXPRINTMON, "list"):
            with self.subTest(language):
                self.assertEqual((status, errors), (0, ""))
                heading, *rows = output.splitlines()
                headings.add(heading.split()[0])
                # The last column begins at the same place everywhere.
                places = {columns(row[:row.index("Stratamark")])
                          for row in rows if "Stratamark" in row}
                driver = heading.split("  ")
                driver = [part.strip() for part in driver if part.strip()][5]
                places.add(columns(heading[:heading.index(driver)]))
                self.assertEqual(len(places), 1)
        self.assertEqual(len(headings), 1 + len(LANGUAGES))

    def test_lines_of_details_are_aligned_in_every_language(self):
        for language, (status, output, errors) in self.in_every_language(
                VXPRINTMON, "status", "Shipping"):
            with self.subTest(language):
                self.assertEqual((status, errors), (0, ""))
                first, *rest = output.splitlines()
                place = columns(first[:first.index("Shipping")])
                # Each value follows two spaces or more, the widest label exactly two.
                gaps = []
                for line in rest:
                    label = line.split("  ")[0]
                    value = line[len(label):].lstrip()
                    self.assertEqual(columns(line[:len(line) - len(value)]), place, line)
                    gaps.append(place - columns(label))
                self.assertEqual(min(gaps), 2)

    def test_json_has_the_same_names_in_every_language(self):
        for command in ((VXPRINTMON, "list", "--json"), (VXPRINTMON, "status", "--json"),
                        (VXPRINTMON, "title", "--all", "--json")):
            keys = set()
            for _, (status, output, _) in self.in_every_language(*command):
                self.assertEqual(status, 0)
                keys.add(tuple(json.loads(output)[0]))
            self.assertEqual(len(keys), 1)
        fixed = set()
        for _, (_, output, _) in self.in_every_language(VXPRINTMON, "title", "--all", "--json"):
            fixed.add(tuple((info["statusEnum"], info["key"], info["severity"])
                            for info in json.loads(output)))
        self.assertEqual(len(fixed), 1)

    def test_messages_are_translated(self):
        empty = self.fleet({"printers": []})
        for command in ((VXPRINTMON,), (VXPRINTMON, "lst"), (VXPRINTMON, "list", "--jsn"),
                        (VXPRINTMON, "watch", "--for"), (VXPRINTMON, "title", "x"),
                        (VXPRINTMON, "status", "Nowhere"), (VXPRINTMON, "list", "--for", "2"),
                        (VXPRINTMON, "list", "--virtual", empty), (VXIPC,), (VXIPC, "call", "m4"),
                        (VXIPC, "describe", "nobody"), (VXIPC, "help", "list", "call"), (ROLLDB,),
                        (ROLLDB, "check"), (ROLLDB, "build", "--json", "a", "b"),
                        (ROLLDB, "build", "/no/such/folder", "x.db")):
            with self.subTest(command[1:]):
                english = None
                for language, (_, output, errors) in self.in_every_language(*command):
                    self.assertEqual((output + errors).count("\n"), 1)
                    # Every message is followed by the same reference to the help.
                    message = (output + errors).split(": ", 1)[-1].split(" (see ")[0].strip()
                    if language == "en":
                        english = message
                    else:
                        self.assertNotIn(english, message, language)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
