# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The manual page of each tool and its completions say what --help says, in the shells themselves.

test_help_pages.py SOURCE_FOLDER TOOL...
"""
import fcntl
import html
import json
import os
import pathlib
import pty
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import termios
import threading
import time
import unittest

SOURCES = pathlib.Path(sys.argv[1])
TOOLS = {pathlib.Path(path).name: pathlib.Path(path) for path in sys.argv[2:]}
# In seconds; ends what hangs.
LIMIT = 600
MONITOR = "vxprintmon"
# Options that every command accepts.
OF_HELP = {"-h", "--help", "--help-json", "--version"}


def environment(**more):
    kept = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "LD_LIBRARY_PATH") if name in os.environ}
    kept["PATH"] = f"{TOOLS[MONITOR].parent}:{kept.get('PATH', '')}"
    return {**kept, "LC_ALL": "C.UTF-8", "LANGUAGE": "en", "TERM": "xterm", "QT_QPA_PLATFORM": "offscreen",
            "VX_COMPLETION_SECONDS": str(LIMIT), **more}


def run(*command, **options):
    done = subprocess.run([str(word) for word in command], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          stdin=subprocess.DEVNULL, text=True, timeout=LIMIT, check=False,
                          **{"env": environment(), **options})
    return done.returncode, done.stdout, done.stderr


def section(text, title):
    """The headings of a list in a help: what stands at its left side."""
    found = re.search(rf"^{title}:\n((?:  .*\n)+)", text, re.MULTILINE)
    return re.findall(r"^  (\S(?:.*?\S)??)(?:  .*)?$", found[1], re.MULTILINE) if found else []


def option_names(headings):
    return {name for heading in headings for name in re.findall(r"(?:^|, )(--?[a-z-]*)", heading)}


class Help:
    """What a tool prints for people."""

    def __init__(self, tool):
        overview = run(TOOLS[tool], "--help")[1]
        self.commands = [heading.split(" ")[0] for heading in section(overview, "Commands")]
        self.usages = section(overview, "Commands")
        self.headings = section(overview, "Options")
        self.options = option_names(self.headings)
        self.options_of = {command: option_names(section(run(TOOLS[tool], "help", command)[1], "Options"))
                           for command in self.commands if command != "help"}


HELPS = {tool: Help(tool) for tool in TOOLS}


class Pages(unittest.TestCase):
    maxDiff = None

    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.scratch.cleanup)
        cls.folder = pathlib.Path(cls.scratch.name, "pages")
        for path in TOOLS.values():
            cls.make(path, cls.folder)
        # Files that completions can find.
        cls.files = pathlib.Path(cls.scratch.name, "files")
        (cls.files / "a folder").mkdir(parents=True)
        (cls.files / "a fleet.json").write_text('{"printers": [%s]}' % ", ".join(
            '{"name": "%s", "driver": "Stratamark Alder", "port": "USB001"}' % name for name in
            (r"Packing Line 2", r"\\\\server\\unit", r"Say \"hi\"", "It's", r"bad\u001bname", "$(touch x)", "Lager Süd")
        ), encoding="utf-8")
        cls.home = pathlib.Path(cls.scratch.name, "home")
        cls.home.mkdir()

    @staticmethod
    def make(tool, folder, **more):
        status, output, errors = run(sys.executable, "-B", SOURCES / "scripts/lib/make_help_pages.py", tool, folder,
                                     env=environment(**more))
        assert status == 0 and not output + errors, output + errors


class ManualPages(Pages):
    def rendered(self, tool):
        """The page as a terminal of 80 columns shows it."""
        status, output, errors = run("groff", "-ww", "-mandoc", "-Tutf8", "-P-cbou", "-rLL=80n",
                                     self.folder / f"man1/{tool}.1")
        self.assertEqual((status, errors), (0, ""), tool)
        return output

    def headings(self, tool, title):
        page = run("mandoc", "-T", "html", "-O", "fragment", self.folder / f"man1/{tool}.1")[1]
        of_title = re.search(rf'<h1[^>]*><a[^>]*>{title}</a></h1>(.*?)</section>', page, re.DOTALL)
        texts = [html.unescape(re.sub("<[^>]*>", "", heading))
                 for heading in re.findall("<dt[^>]*>(.*?)</dt>", of_title[1] if of_title else "", re.DOTALL)]
        # A further paragraph has an empty heading.
        return [" ".join(text.split()) for text in texts if text]

    def test_commands_and_options_are_those_of_the_help(self):
        for tool, told in HELPS.items():
            self.assertEqual(self.headings(tool, "COMMANDS"), told.usages, tool)
            self.assertEqual(self.headings(tool, "OPTIONS"), told.headings, tool)

    def test_has_every_section(self):
        for tool, told in HELPS.items():
            titles = re.findall(r"^([A-Z]+(?: [A-Z]+)?)$", self.rendered(tool), re.MULTILINE)
            wanted = ["NAME", "SYNOPSIS", "DESCRIPTION", "COMMANDS", "OPTIONS", "EXIT STATUS", "ENVIRONMENT", "FILES",
                      "EXAMPLES", "SEE ALSO"]
            self.assertEqual(titles, [title for title in wanted if title != "COMMANDS" or told.commands], tool)

    def test_fits_80_columns(self):
        for tool in TOOLS:
            self.assertEqual([line for line in self.rendered(tool).splitlines() if len(line) > 80], [], tool)

    def test_man_and_mandoc_have_no_warning(self):
        for tool in TOOLS:
            page = self.folder / f"man1/{tool}.1"
            self.assertEqual(run("man", "--warnings", "-E", "UTF-8", "-l", page,
                                 env=environment(MANWIDTH="80"))[::2], (0, ""), tool)
            self.assertEqual(run("mandoc", "-T", "lint", page)[:2], (0, ""), tool)

    def test_whatis_finds_the_page(self):
        for tool in TOOLS:
            status, output, _ = run("lexgrog", self.folder / f"man1/{tool}.1")
            self.assertEqual(status, 0)
            self.assertRegex(output, f'"{tool} - [a-z]')

    def test_what_is_copied_has_plain_characters(self):
        """No typographic minus, quote or circumflex in what somebody types."""
        for tool in TOOLS:
            self.assertNotRegex(self.rendered(tool), "[‐−’‘“”ˆ˜]", tool)

    def test_examples_are_commands_that_the_tool_takes(self):
        for tool, told in HELPS.items():
            examples = re.search(r"^EXAMPLES\n(.*?)^SEE", self.rendered(tool), re.MULTILINE | re.DOTALL)[1]
            lines = [line.split() for line in re.findall(rf"^ {{11}}({tool} .*)$", examples, re.MULTILINE)]
            self.assertGreaterEqual(len(lines), 2, tool)
            for words in lines:
                command = words[1] if told.commands else None
                if command:
                    self.assertIn(command, told.commands)
                given = {word for word in words if word.startswith("-")}
                self.assertLessEqual(given, told.options_of[command] if command else told.options)

    def test_environment_variables_exist(self):
        sources = "".join(path.read_text(encoding="utf-8") for folder in ("tools", "kit", "platform", "virtualwindows")
                          for path in (SOURCES / folder).rglob("*.cpp"))
        # Qt reads these.
        for tool in TOOLS:
            for name in ", ".join(self.headings(tool, "ENVIRONMENT")).split(", "):
                if name not in ("LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE", "TMPDIR"):
                    self.assertTrue(f'"{name}"' in sources, name)

    def test_same_sources_make_the_same_pages(self):
        again = pathlib.Path(self.scratch.name, "again")
        for path in TOOLS.values():
            self.make(path, again)
        for page in sorted(path.relative_to(again) for path in again.rglob("*") if path.is_file()):
            text = (again / page).read_text(encoding="utf-8")
            self.assertEqual(text, (self.folder / page).read_text(encoding="utf-8"))
            self.assertNotIn(str(TOOLS[MONITOR].parent), text)
            self.assertNotIn(str(SOURCES), text)

    def test_date_is_that_of_the_sources(self):
        dated = pathlib.Path(self.scratch.name, "dated")
        self.make(TOOLS[MONITOR], dated, SOURCE_DATE_EPOCH="1700000000")
        self.assertIn(" 2023-11-14 ", (dated / f"man1/{MONITOR}.1").read_text(encoding="utf-8"))
        version, date = re.search(r"^## \[(\d\S*)\] - (\S+)$", (SOURCES / "CHANGELOG.md").read_text(encoding="utf-8"),
                                  re.MULTILINE).groups()
        self.assertIn(date, (self.folder / f"man1/{MONITOR}.1").read_text(encoding="utf-8"))
        self.assertIn(version, run(TOOLS[MONITOR], "--version")[1])


class Completion:
    """What holds for every shell. A shell has candidates(words), where the last word is being completed."""

    def test_offers_the_commands(self):
        for tool, told in HELPS.items():
            if told.commands:
                self.assertEqual(sorted(self.candidates(tool, "")), sorted(told.commands), tool)
        self.assertEqual(sorted(self.candidates(MONITOR, "st")), ["status"])
        self.assertEqual(sorted(self.candidates(MONITOR, "--json", "for")), ["forecast"])

    def test_offers_the_options_of_the_tool(self):
        for tool, told in HELPS.items():
            self.assertEqual({*self.candidates(tool, "-")} - {"--"}, self.shown(told.options), tool)

    def test_offers_the_options_of_each_command(self):
        for tool, told in HELPS.items():
            for command, options in told.options_of.items():
                self.assertEqual({*self.candidates(tool, command, "-")} - {"--"},
                                 self.shown(options | OF_HELP), f"{tool} {command}")

    def test_offers_what_a_value_can_be(self):
        self.assertEqual(sorted(self.candidates(MONITOR, "log", "x.jsonl", "--severity", "")),
                         ["error", "information", "ok", "warning"])
        self.assertEqual(sorted(self.candidates(MONITOR, "case", "")), ["explain", "redact", "show", "verify"])
        self.assertEqual(self.candidates(MONITOR, "watch", "--for", ""), [])
        self.assertEqual(sorted(self.candidates("vxipc", "watch", "")), ["m4", "printqd", "status", "supplyd"])
        self.assertEqual(self.candidates("vxprintview", "--colors", "d"), ["dark"])
        self.assertEqual(self.candidates(MONITOR, "help", "doc"), ["doctor"])

    def test_offers_files(self):
        self.assertEqual(self.files_of(MONITOR, "log", ""), ["a fleet.json", "a folder"])
        self.assertEqual(self.files_of(MONITOR, "case", "show", ""), ["a fleet.json", "a folder"])
        self.assertEqual(self.files_of("rolldb", "build", ""), ["a folder"])
        self.assertEqual(self.files_of("rolldb", "build", "a folder", ""), ["a fleet.json", "a folder"])
        self.assertEqual(self.files_of(MONITOR, "list", "--virtual", ""), ["a fleet.json", "a folder", "built-in"])
        self.assertEqual(self.files_of("vxprintagent", "check", "--config", ""), ["a fleet.json", "a folder"])

    def test_offers_the_printers(self):
        six = ["Branch Office", "Front Desk Laser", "Laboratory", "Returns", "Shipping", "Warehouse"]
        self.assertEqual(sorted(self.candidates(MONITOR, "status", "")), six)
        self.assertEqual(sorted(self.candidates(MONITOR, "watch", "Shipping", "")), six)
        self.assertEqual(sorted(self.candidates(MONITOR, "log", "x.jsonl", "--printer", "")), six)
        self.assertEqual(self.candidates(MONITOR, "send", "Shipping", ""), [])
        self.assertEqual(self.candidates(MONITOR, "enough", "Re"), ["Returns"])

    def test_offers_the_printers_of_the_fleet_that_is_given(self):
        """As they are called, whatever the name; one that cannot be typed is left out."""
        self.assertEqual(sorted(self.candidates(MONITOR, "status", "--virtual", "a fleet.json", "")),
                         ["$(touch x)", "It's", "Lager Süd", "Packing Line 2", 'Say "hi"', r"\\server\unit"])
        self.assertEqual(sorted(os.listdir(self.files)), ["a fleet.json", "a folder"])

    def test_says_nothing_when_the_monitor_fails(self):
        self.assertEqual(self.candidates(MONITOR, "status", "--virtual", "no such file", ""), [])

    def shown(self, options):
        return options - {"--"}

    def files_of(self, *words):
        return sorted({name.rstrip("/") for name in self.candidates(*words)})


class Bash(Completion, Pages):
    def candidates(self, tool, *words):
        script = ('source "$1" && shift && COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) && '
                  '"$(complete -p "$1" | sed "s/.*-F \\([^ ]*\\).*/\\1/")" "$1" && '
                  '[ ${#COMPREPLY[@]} = 0 ] || printf "%s\\n" "${COMPREPLY[@]}"')
        status, output, errors = run("bash", "--norc", "--noprofile", "-uc", script, "bash",
                                     self.folder / f"bash/{tool}", tool, *words, cwd=self.files)
        self.assertEqual((status, errors), (0, ""))
        return output.splitlines()

    def test_takes_a_value_behind_an_equals_sign(self):
        self.assertEqual(self.candidates(MONITOR, "log", "--severity", "=", "w"), ["warning"])
        self.assertEqual(len(self.candidates(MONITOR, "log", "--severity", "=")), 4)
        self.assertEqual(self.candidates(MONITOR, "status", "--virtual", "=", "built-in", "Ware"), ["Warehouse"])

    def test_passes_shellcheck(self):
        for tool in TOOLS:
            self.assertEqual(run("shellcheck", "--shell=bash", self.folder / f"bash/{tool}")[:2], (0, ""))

    def test_completes_on_a_terminal(self):
        """With quotes where a name needs them."""
        with Terminal(self, "bash", "--norc", "--noprofile", "-i") as shell:
            shell.send(f"PS1='> '; set -u; source '{self.folder}/bash/{MONITOR}'; bind 'set bell-style none'; "
                       "echo rea''dy\n")
            shell.wait_for("ready")
            self.assertEqual(shell.completed(f"{MONITOR} status Bra\t"), f"{MONITOR} status Branch Office")
            self.assertEqual(shell.completed(f'{MONITOR} status "Front D\t'), f"{MONITOR} status Front Desk Laser")
            self.assertEqual(shell.completed(f"{MONITOR} status Branch\\ O\t"), f"{MONITOR} status Branch Office")
            self.assertEqual(shell.completed(f"{MONITOR} fore\t"), f"{MONITOR} forecast")
            self.assertEqual(shell.completed(f"{MONITOR} log a\\ fl\t"), f"{MONITOR} log a fleet.json")
            self.assertEqual(shell.completed(f"{MONITOR} list --virtual=built\t"), f"{MONITOR} list --virtual=built-in")
            self.assertEqual(shell.completed(f"{MONITOR} status --virtual 'a fleet.json' It\t"),
                             f"{MONITOR} status --virtual a fleet.json It's")
            self.assertEqual(shell.completed(f"{MONITOR} status --virtual 'a fleet.json' '$\t"),
                             f"{MONITOR} status --virtual a fleet.json $(touch x)")
        self.assertEqual(sorted(os.listdir(self.files)), ["a fleet.json", "a folder"])


class Terminal:
    """A shell on a terminal that is wide enough for every line."""

    def __init__(self, test, *command, **more):
        self.test = test
        self.output = b""
        self.changed = threading.Condition()
        ours, theirs = pty.openpty()
        fcntl.ioctl(theirs, termios.TIOCSWINSZ, struct.pack("HHHH", 200, 250, 0, 0))
        self.ours = ours
        self.process = subprocess.Popen(command, stdin=theirs, stdout=theirs, stderr=theirs, cwd=test.files,
                                        env=environment(HOME=str(test.home), **more), start_new_session=True)
        os.close(theirs)
        self.reader = threading.Thread(target=self.read, daemon=True)
        self.reader.start()

    def read(self):
        while True:
            try:
                part = os.read(self.ours, 65536)
            except OSError:
                part = b""
            with self.changed:
                self.output += part
                self.changed.notify_all()
            if not part:
                return

    def send(self, text):
        os.write(self.ours, text.encode())

    def wait_for(self, text):
        with self.changed:
            self.test.assertTrue(self.changed.wait_for(lambda: text.encode() in self.output, LIMIT),
                                 self.output.decode(errors="replace"))

    def completed(self, keys):
        """What the shell makes of a line with a tab in it: its words, joined by spaces."""
        with self.changed:
            self.output = b""
        # The tab is done before the next key is read. Ctrl-A goes to the beginning of the line.
        self.send(f"{keys}\x01show \n")
        with self.changed:
            found = self.changed.wait_for(lambda: re.search(rb"<<(.*?)>>", self.output), LIMIT)
            self.test.assertTrue(found, self.output.decode(errors="replace"))
            return found[1].decode()

    def __enter__(self):
        # What is typed has no "<<", so that its echo is not taken for what it prints.
        self.send("show() { printf '<%s%s>%s\\n' '<' \"$*\" '>'; }\n")
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.process.kill()
        self.process.wait()
        self.reader.join()
        os.close(self.ours)


class Zsh(Completion, Pages):
    """Candidates are those that the completion passes to zsh's own compadd."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.found = pathlib.Path(cls.scratch.name, "found")
        cls.terminal = Terminal(cls("test_offers_files"), "zsh", "-f", "-i")
        cls.addClassCleanup(cls.terminal.close)
        script = pathlib.Path(cls.scratch.name, "set up.zsh")
        script.write_text(f"""
            fpath=('{cls.folder}/zsh' $fpath)
            autoload -Uz compinit && compinit -D -u
            zstyle ':completion:*' list-grouped false
            LISTMAX=10000
            PS1='> '
            compadd() {{
                if [[ ${{@[1,(i)(-|--)]}} == *-(O|A|D)\\ * ]]; then
                    builtin compadd "$@"
                    return
                fi
                local -a hits
                builtin compadd -O hits "$@"
                (( ! $#hits )) || print -rl -- $hits >>'{cls.found}'
                builtin compadd "$@"
            }}
            mark() {{ print -- '<end>' >>'{cls.found}'; BUFFER= }}
            zle -N mark && bindkey '^T' mark
            setopt no_beep no_list_beep
            echo rea''dy
        """, encoding="utf-8")
        cls.terminal.send(f"source '{script}'\n")
        cls.terminal.wait_for("ready")

    def candidates(self, tool, *words):
        self.found.write_bytes(b"")
        self.terminal.test = self
        typed = [re.sub(r"([^\w.-])", r"\\\1", word) for word in words]
        self.terminal.send(" ".join([tool, *typed]) + "\t\x14")
        until = time.monotonic() + LIMIT
        while not (lines := self.found.read_text(encoding="utf-8").splitlines()) or lines[-1] != "<end>":
            self.assertLess(time.monotonic(), until, self.terminal.output.decode(errors="replace"))
            time.sleep(0.01)
        # A match that is offered in two groups is one.
        return list(dict.fromkeys(lines[:-1]))

    def files_of(self, *words):
        """zsh's function for files quotes them by itself."""
        return sorted(re.sub(r"\\(.)", r"\1", name) for name in super().files_of(*words))

    def test_are_valid(self):
        for tool in TOOLS:
            self.assertEqual(run("zsh", "-n", self.folder / f"zsh/_{tool}"), (0, "", ""))


class Fish(Completion, Pages):
    def candidates(self, tool, *words):
        typed = " ".join([tool, *(re.sub(r"([^\w.-])", r"\\\1", word) for word in words)])
        status, output, errors = run(
            "fish", "--no-config", "-c", "source $argv[1]; complete -C $argv[2]", self.folder / f"fish/{tool}.fish",
            typed, cwd=self.files, env=environment(HOME=str(self.home), XDG_RUNTIME_DIR=str(self.home)))
        self.assertEqual((status, errors), (0, ""))
        return [line.split("\t")[0] for line in output.splitlines()]

    def test_are_valid(self):
        for tool in TOOLS:
            self.assertEqual(run("fish", "--no-config", "-n", self.folder / f"fish/{tool}.fish"), (0, "", ""))


class Json(Pages):
    @staticmethod
    def without_texts(value):
        """What programs use."""
        if isinstance(value, dict):
            return {name: Json.without_texts(each) for name, each in value.items()
                    if name not in ("summary", "details", "notes", "exitStatus")}
        return [Json.without_texts(each) for each in value] if isinstance(value, list) else value

    def test_names_are_the_same_in_every_language(self):
        for tool, path in TOOLS.items():
            described = {}
            for language in ("en", "de_DE", "ja_JP"):
                status, output, _ = run(path, "--help-json", env=environment(LC_ALL=f"{language}.UTF-8",
                                                                             LANGUAGE=language))
                self.assertEqual(status, 0)
                described[language] = json.loads(output)
            self.assertNotEqual(described["en"]["summary"], described["de_DE"]["summary"])
            self.assertNotEqual(described["de_DE"]["summary"], described["ja_JP"]["summary"])
            self.assertEqual(self.without_texts(described["en"]), self.without_texts(described["de_DE"]), tool)
            self.assertEqual(self.without_texts(described["en"]), self.without_texts(described["ja_JP"]), tool)

    def test_pages_are_english_whatever_the_language(self):
        other = pathlib.Path(self.scratch.name, "other language")
        self.make(TOOLS[MONITOR], other, LC_ALL="de_DE.UTF-8", LANGUAGE="de")
        self.assertEqual((other / f"man1/{MONITOR}.1").read_text(encoding="utf-8"),
                         (self.folder / f"man1/{MONITOR}.1").read_text(encoding="utf-8"))

    def test_refuses_a_tool_that_says_no_json(self):
        status, _, errors = run(sys.executable, "-B", SOURCES / "scripts/lib/make_help_pages.py", "/bin/echo",
                                self.scratch.name)
        self.assertEqual((status, errors),
                         (1, "make_help_pages: /bin/echo --help-json: it is not JSON: Expecting value: line 1 column 1 "
                             "(char 0)\n"))

    def test_wrong_usage(self):
        status, _, errors = run(sys.executable, "-B", SOURCES / "scripts/lib/make_help_pages.py")
        self.assertEqual((status, errors), (2, "make_help_pages: expected TOOL OUTPUT_FOLDER\n"))


if __name__ == "__main__":
    missing = [name for name in ("bash", "zsh", "fish", "groff", "man", "mandoc", "shellcheck")
               if not shutil.which(name)]
    if missing:
        sys.exit(f"test_help_pages: not installed: {', '.join(missing)}; scripts/test installs what is needed")
    unittest.main(argv=sys.argv[:1])
