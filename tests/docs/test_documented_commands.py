# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Every command in the README and the guides works, or it is known what else tests it.

Usage: test_documented_commands.py ROOT BUILD [PAGE...]

A command of this product's own programs is run in a folder that looks like the source tree, on virtual printers.
One that runs a script, a test or a benchmark is compared with what that accepts; something that CI runs must call
a script. commands.json says for every other command how it is run here or what else tests it. A command that none of
this covers fails, with its page and line. VX_COMMAND_LIMIT=SECONDS ends a command that hangs sooner.
"""
import concurrent.futures
import contextlib
import functools
import json
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ROOT, BUILD = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()
ONLY = set(sys.argv[3:])
sys.path[:0] = [str(ROOT / "scripts/lib"), str(HERE)]
try:
    from markdown_pages import files_of_tree
except ImportError:
    sys.exit("python3-markdown-it is not installed; scripts/test installs it")
from documented_commands import TOOLS, Command, page_commands, programs_of, without_comment, words_of  # noqa: E402

# In seconds; ends what hangs.
LIMIT = int(os.environ.get("VX_COMMAND_LIMIT", "600"))
DATA = json.loads((HERE / "commands.json").read_text(encoding="utf-8"))
RULES = DATA["commands"]
PAGES = {path.relative_to(ROOT).as_posix(): path for path in files_of_tree(ROOT, ".md")
         if path.relative_to(ROOT).parts[0] in ("README.md", "docs", "benchmarks", "tests", "bindings", "examples")}


class Fault(Exception):
    pass


@functools.cache
def all_commands():
    return {page: page_commands(path, page, DATA["tables"]) for page, path in PAGES.items()}


def rule_of(command):
    for number, rule in enumerate(RULES):
        if rule.get("page", command.page) == command.page and rule.get("place", command.place) == command.place and \
                rule.get("shown", "") in "\n".join(command.output) and re.fullmatch(rule["command"], command.text):
            return number
    return None


# ---- what is compared, not run


@functools.cache
def text_of(path):
    return path.read_text(encoding="utf-8")


@functools.cache
def usage(script):
    """The comment at the beginning of a script, or the text at that of a program in Python."""
    text = text_of(script)
    if "python" in text.splitlines()[0]:
        return text.split('"""')[1]
    return "\n".join(line for line in text.splitlines()[1:60] if line.startswith("#"))


@functools.cache
def called_by_ci():
    """The scripts that .ci/run calls, and those that they call."""
    found, todo = set(), {ROOT / ".ci/run"}
    while todo:
        script = todo.pop()
        found.add(script)
        if script.suffix == ".py":
            continue  # calls no script that is described
        code = "\n".join(line for line in text_of(script).splitlines() if not line.lstrip().startswith("#"))
        for name in re.findall(r"\b(?:scripts|lib)/[\w/-]+(?:\.\w+)?", code):
            called = ROOT / (name if name.startswith("scripts/") else f"scripts/{name}")
            if called.is_file() and called not in found:
                todo.add(called)
    return found


@functools.cache
def test_sources():
    return "\n".join(text_of(path) for suffix in (".py", ".cpp", ".mjs", "CMakeLists.txt", ".cmake")
                     for path in files_of_tree(ROOT / "tests", suffix) if path.parent != HERE)


def check_script(command):
    """A script exists, knows the options that are named, and something that CI runs calls it."""
    words = command.text.split()
    name = words[0]
    script = ROOT / name
    if not script.is_file():
        raise Fault(f"there is no {name}")
    if not os.access(script, os.X_OK):
        raise Fault(f"{name} is not executable")
    options = [word.partition("=")[0] for word in words[1:] if word.startswith("--")]
    for option in options:
        if not re.search(rf"(?<![\w-]){re.escape(option)}(?![\w-])", usage(script)):
            raise Fault(f"{name} does not describe {option} in its usage comment")
        if option not in text_of(script).replace(usage(script), "") and name != "scripts/package":
            raise Fault(f"{name} does not accept {option}")
    for word in words[1:]:
        # A word in small letters that is no value of an option is a kind or an action.
        before = words[words.index(word) - 1]
        if re.fullmatch(r"[a-z]+", word) and not re.search(rf"(?<![\w-]){word}(?![\w-])", usage(script)) and \
                not (script.parent / f"lib/{script.name}-{word}").exists():
            if before.startswith("--") and before in options:
                raise Fault(f"{name} does not describe the value {word}")
            raise Fault(f"{name} does not describe {word}")
    if script in called_by_ci() or script == ROOT / ".ci/run":
        return
    if re.search(rf"(?<![\w-]){re.escape(name)}(?![\w-])", test_sources()):
        return
    if name in DATA["by_hand"]:
        return
    raise Fault(f"neither .ci/run, a script that it calls, nor a test calls {name}")


@functools.cache
def source_of(program):
    for folder in ("tests", "benchmarks", "fuzz"):
        for path in files_of_tree(ROOT / folder, f"{program}.cpp"):
            if path.stem == program:
                return path
    return None


def check_test_program(command):
    """A test or benchmark exists, is built, and knows the functions, options and variables that are named."""
    variables, words = words_of(command.text)
    program = pathlib.PurePosixPath(words[0]).name
    if re.search("[A-Z]", program):  # such as fuzz_NAME
        stem = re.sub("[A-Z]+$", "", program)
        if not any(path.stem.startswith(stem) for path in files_of_tree(ROOT, ".cpp")):
            raise Fault(f"there is no program {program}")
        return
    source = source_of(program)
    if not source:
        raise Fault(f"there is no source of {program}")
    registered = [path for path in files_of_tree(source.parent, "CMakeLists.txt")] or [source.parent / "CMakeLists.txt"]
    # A list of benchmarks names them without the beginning.
    names = rf"\b({program}|{program.partition('_')[2]})\b"
    if not any(re.search(names, text_of(path)) for path in registered):
        raise Fault(f"{program} is not built")
    everything = test_sources() + text_of(source) + "\n".join(
        text_of(path) for path in files_of_tree(source.parent, ".h"))
    for variable in variables:
        if variable.startswith("VX_") and f'"{variable}"' not in everything:
            raise Fault(f"no test reads {variable}")
    options = [word for word in words[1:] if word.startswith("--")]
    for option in options:
        if f'"{option}"' not in text_of(source) and f'"{option[2:]}"' not in text_of(source):
            raise Fault(f"{program} does not know {option}")
    if program.startswith("tst_"):
        for function in words[1:]:
            if re.fullmatch(r"[a-z]\w+", function) and f"::{function}(" not in text_of(source):
                raise Fault(f"{program} has no function {function}")


@functools.cache
def ctest_names():
    names = set()
    for path in BUILD.rglob("CTestTestfile.cmake"):
        names |= set(re.findall(r'^add_test\("?\[?=*\[?([\w-]+)', path.read_text(encoding="utf-8"), re.M))
    return names


def check_ctest(command):
    variables, words = words_of(command.text)
    for variable in variables:
        if f'"{variable}"' not in test_sources():
            raise Fault(f"no test reads {variable}")
    if "-R" in words:
        pattern = words[words.index("-R") + 1]
        if not any(re.search(pattern, name) for name in ctest_names()):
            raise Fault(f"no test is called {pattern}")


@functools.cache
def help_of(tool, verb):
    """The help of a program or of one of its commands; "" if it has no such command."""
    program = BUILD / "bin" / tool
    arguments = ["help", verb] if verb else ["--help"]
    done = subprocess.run([program, *arguments], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8",
                          env=dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", LANGUAGE="en"),
                          check=False)
    return done.stdout if done.returncode == 0 else ""


def check_mention(command):
    """A program of ours that a sentence names: it has the command and the options."""
    _, words = words_of(command.text)
    tool = pathlib.PurePosixPath(words[0]).name
    verb = words[1] if len(words) > 1 and tool != "vxprintview" and re.fullmatch(r"[a-z]+", words[1]) else ""
    if verb and verb != "help" and not help_of(tool, verb):
        raise Fault(f"{tool} has no command {verb}")
    text = help_of(tool, verb) + help_of(tool, "")
    if verb == "case" and len(words) > 2 and words[2] not in text and words[2].islower():
        raise Fault(f"{tool} case has no action {words[2]}")
    for word in words[1:]:
        if word.startswith("--") and word != "--help" and \
                not re.search(rf"(?<![\w-]){re.escape(word)}(?![\w-])", text):
            raise Fault(f"{tool} {verb} does not know {word}")


def check_elsewhere(rule):
    """What else tests the command is there and has what it is known by."""
    by = rule["by"]
    file = ROOT / by["file"]
    if not file.is_file():
        raise Fault(f"{by['file']}, which tests it, does not exist")
    for text in [by["text"]] if isinstance(by["text"], str) else by["text"]:
        if text not in text_of(file):
            raise Fault(f"{by['file']}, which tests it, does not have {text}")
    if file.is_relative_to(ROOT / "tests") or file.name == "CMakePresets.json":
        return
    if file not in called_by_ci():
        raise Fault(f"{by['file']} is neither a test nor called by .ci/run")


# ---- what is run


def free_ports(count):
    with contextlib.ExitStack() as stack:
        listeners = [stack.enter_context(contextlib.closing(socket.socket())) for _ in range(count)]
        for listener in listeners:
            listener.bind(("127.0.0.1", 0))
        return [listener.getsockname()[1] for listener in listeners]


class Sandbox:
    """A folder that looks like the source tree, with the programs on the path and no way to the system's own files:
    paths such as /etc begin in `root/`, and programs that would change the system only say what they were asked."""

    LINKS = ("data", "deploy", "docs", "scripts", "tests", "web", "virtualwindows", "examples")
    SYSTEM = re.compile(r"(?<![\w.$/])/(etc|usr/local|var|usr/share/VxPrinterStatus)\b")

    def __init__(self, page):
        self.page = DATA["pages"].get(page, {})
        # The path of a socket below it has to be short.
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vxd-", dir="/tmp"))
        self.cwd = self.folder
        for name in self.LINKS:
            (self.folder / name).symlink_to(ROOT / name)
        for name in ("build/native", "home", "run", "tmp", "stubs", "root/etc", "root/var/lib"):
            (self.folder / name).mkdir(parents=True, mode=0o700)
        for name in ("bin", "tests"):
            (self.folder / "build/native" / name).symlink_to(BUILD / name)
        for name, text in DATA["stand_ins"].items():
            stub = self.folder / "stubs" / name
            stub.write_text("#!/bin/bash\n" + text + "\n")
            stub.chmod(0o755)
        names = self.page.get("ports", ())
        self.ports = dict(zip(names, free_ports(len(names))))
        self.environment = {
            "PATH": f"{self.folder}/stubs:{BUILD}/bin:/usr/local/bin:/usr/bin:/bin:/usr/sbin:/sbin",
            "HOME": f"{self.folder}/home", "XDG_RUNTIME_DIR": f"{self.folder}/run", "TMPDIR": f"{self.folder}/tmp",
            "LC_ALL": "C.UTF-8", "LANGUAGE": "en", "QT_QPA_PLATFORM": "offscreen", "TERM": "xterm",
            "VX_SANDBOX": str(self.folder), "QT_FORCE_STDERR_LOGGING": "1"}
        self.hosts = []
        self.status = 0  # of the last command

    def fill(self, text):
        for name, value in {**self.ports, "status": self.status}.items():
            text = text.replace("{" + name + "}", str(value))
        return text

    def start(self):
        for name, text in self.page.get("files", {}).items():
            path = self.folder / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(self.fill("\n".join(text) if isinstance(text, list) else text) + "\n", encoding="utf-8")
            path.chmod(0o600)
        for command in self.page.get("set_up", ()):
            rule = command if isinstance(command, dict) else {"command": command}
            self.run(rule["command"], rule)
        for host in self.page.get("hosts", ()):
            self.host(host)

    def popen(self, command, **options):
        return subprocess.Popen(["bash", "-c", "set -euo pipefail\n" + self.fill(command)], cwd=self.cwd,
                                env=self.environment, start_new_session=True, **options)

    def host(self, host):
        process = self.popen(host["command"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.hosts.append(process)
        self.until(process, process.stdout.fileno(), host["ready"], host["command"])

    def until(self, process, descriptor, pattern, command):
        """Reads what a program prints until the pattern is in it."""
        output, deadline = b"", time.monotonic() + LIMIT
        while not re.search(pattern.encode(), output, re.M):
            if time.monotonic() > deadline:
                raise Fault(f"{command}: did not print {pattern} but\n{output.decode(errors='replace')}")
            if select.select([descriptor], [], [], 1)[0]:
                try:
                    data = os.read(descriptor, 1 << 16)
                except OSError:  # a terminal that nobody writes to any more
                    data = b""
                if not data:
                    process.wait()
                    raise Fault(f"{command}: ended with {process.returncode} before it printed {pattern}; it printed\n"
                                f"{output.decode(errors='replace')}")
                output += data
        return output

    def run(self, command, rule):
        """Runs a command, and returns what it has printed."""
        command = self.SYSTEM.sub(lambda found: f"{self.folder}/root{found[0]}", command)
        for before in rule.get("before", ()):
            self.run(before, {})
        if rule.get("interrupt") or rule.get("keys"):
            output = self.run_until(command, rule)
        else:
            output = self.run_to_end(command, rule)
        if "output" in rule and not re.search(rule["output"], output, re.M):
            raise Fault(f"it did not print {rule['output']} but\n{output}")
        for name in rule.get("creates", ()):
            path = self.cwd / self.SYSTEM.sub(lambda found: f"{self.folder}/root{found[0]}", name)
            if not path.exists():
                raise Fault(f"it has not created {name}")
        return output

    def expect(self, status, rule, output):
        self.status = status
        if status != rule.get("status", 0):
            raise Fault(f"it ended with {status} instead of {rule.get('status', 0)}, and printed\n{output}")

    def run_to_end(self, command, rule):
        process = self.popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        try:
            output = process.communicate(rule.get("input", "").encode(), timeout=LIMIT)[0].decode(errors="replace")
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            raise Fault(f"it did not end within {LIMIT} s, and printed\n"
                        f"{process.communicate()[0].decode(errors='replace')}") from None
        self.expect(process.returncode, rule, output)
        return output

    def run_until(self, command, rule):
        """Runs a command that goes on until somebody ends it, by a signal or by a key in a terminal."""
        if "keys" in rule:
            terminal, side = pty.openpty()
            process = self.popen(command, stdin=side, stdout=side, stderr=side)
            os.close(side)
            descriptor = terminal
        else:
            process = self.popen("exec " + command if re.match(r"[\w./]+ ", command) else command,
                                 stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
            descriptor = process.stdout.fileno()
        try:
            output = self.until(process, descriptor, rule["interrupt"] if "interrupt" in rule else rule["shows"], command)
            if "keys" in rule:
                os.write(terminal, rule["keys"].encode())
            else:
                os.killpg(process.pid, signal.SIGINT)
            deadline = time.monotonic() + LIMIT
            while time.monotonic() < deadline and process.poll() is None:
                with contextlib.suppress(OSError):
                    if select.select([descriptor], [], [], 0.1)[0]:
                        output += os.read(descriptor, 1 << 16)
            if process.poll() is None:
                raise Fault(f"it did not end within {LIMIT} s after it was asked to")
            with contextlib.suppress(OSError):
                while select.select([descriptor], [], [], 0)[0] and (more := os.read(descriptor, 1 << 16)):
                    output += more
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
            if "keys" in rule:
                os.close(terminal)
            else:
                process.stdout.close()
        text = output.decode(errors="replace")
        self.expect(process.returncode, rule, text)
        return text

    def close(self):
        for process in self.hosts:
            with contextlib.suppress(ProcessLookupError):
                os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            process.stdin.close()
            process.stdout.close()
        shutil.rmtree(self.folder)


def compare_output(shown, printed):
    """Compares what a page shows below a command with what it prints. "..." stands for the rest."""
    shown = [line.rstrip() for line in shown]
    while shown and not shown[-1]:
        shown.pop()
    lines = [line.rstrip() for line in printed.splitlines()]
    if shown and shown[-1] == "...":
        lines, shown = lines[: len(shown) - 1], shown[:-1]
    if shown and lines != shown:
        raise Fault("the page shows\n" + "\n".join(shown) + "\nbut it prints\n" + "\n".join(lines))


# What goes on until somebody ends it, unless an option says for how long.
ENDLESS = re.compile(r"(?!.*--for )(vxprintmon (watch|record)|vxprintagent run|vxipc watch)\b")


def run_here(sandbox, command, rule):
    text = command.text
    if isinstance(rule.get("run"), str):
        text = re.sub(rule["command"], rule["run"], text, count=1)
    if text.startswith("cd "):
        sandbox.cwd = (sandbox.cwd / text[3:]).resolve()
        return
    if "script_lines" in rule:
        lines = re.findall(rule["script_lines"], text_of(ROOT / command.text), re.M)
        if not lines:
            raise Fault("nothing in the script is run")
        for line in lines:
            sandbox.run(f"{rule['program']} {line}", rule)
        return
    missing = [name for name in rule.get("needs", ()) if not shutil.which(name, path=sandbox.environment["PATH"])]
    if missing:
        print(f"{command}: not run, because {', '.join(missing)} is not installed")
        return
    simple = re.sub(r"^(\w+=\S* )*([\w./]*/)?", "", text)
    if ENDLESS.match(simple) and not {"interrupt", "keys"} & set(rule):
        rule = {**rule, "interrupt": r"\n"}
    compare_output(command.output, sandbox.run(text, rule))


def runs(command, rule):
    """Whether the command is run here."""
    if rule is not None:
        return "run" in rule or "script_lines" in rule
    programs = programs_of(command.text)
    return command.place == "block" and len(programs) == 1 and pathlib.PurePosixPath(programs[0]).name in TOOLS


def check(command, rule):
    """Checks a command that is not run here."""
    if rule is not None:
        if "by" in rule:
            check_elsewhere(rule)
        return
    programs = programs_of(command.text)
    name = programs[0] if programs else ""
    base = pathlib.PurePosixPath(name).name
    if len(programs) == 1 and (name.startswith("scripts/") or name == ".ci/run"):
        return check_script(command)
    if len(programs) == 1 and re.match(r"(tst|bench|fuzz)_", base):
        return check_test_program(command)
    if name == "ctest":
        return check_ctest(command)
    if command.place != "block" and base in TOOLS:
        return check_mention(command)
    raise Fault("nothing says how this command is tested; add it to tests/docs/commands.json")


def check_page(page):
    """The faults of a page's commands."""
    faults = []
    commands = all_commands()[page]
    rules = {id(command): None if (number := rule_of(command)) is None else RULES[number] for command in commands}
    if any(runs(command, rules[id(command)]) for command in commands):
        sandbox = Sandbox(page)
        try:
            sandbox.start()
        except Fault as fault:
            sandbox.close()
            return [f"{page}: what its commands need could not be prepared: {fault}"]
    else:
        sandbox = None
    try:
        for command in commands:
            rule = rules[id(command)]
            try:
                if runs(command, rule):
                    run_here(sandbox, command, rule or {})
                else:
                    check(command, rule)
            except Fault as fault:
                faults.append(f"{command}\n    {fault}")
            sys.stdout.write(f"{page}:{command.line}\n")
            sys.stdout.flush()
    finally:
        if sandbox:
            sandbox.close()
    return faults


class DocumentedCommands(unittest.TestCase):
    maxDiff = None

    def test_commands_work(self):
        pages = [page for page in PAGES if not ONLY or page in ONLY]
        with concurrent.futures.ThreadPoolExecutor(4) as pool:
            faults = [fault for found in pool.map(check_page, pages) for fault in found]
        if faults:
            self.fail("\n" + "\n".join(faults))
        self.assertGreater(sum(map(len, all_commands().values())), 100)

    def test_every_rule_is_needed(self):
        used = {rule_of(command) for commands in all_commands().values() for command in commands}
        self.assertEqual([rule["command"] for number, rule in enumerate(RULES) if number not in used], [])
        for rule in RULES:
            if "run" not in rule and "script_lines" not in rule:
                self.assertTrue(rule.get("why"), rule["command"])
        self.assertEqual([page for page in DATA["pages"] if page not in PAGES], [])

    def test_blocks_are_read(self):
        rows = {
            'a b   # c': 'a b', 'a "# b"': 'a "# b"', "a '#b' # c": "a '#b'", 'a#b': 'a#b', '# a': '',
            'a -t \'x/#\'': 'a -t \'x/#\'', 'a   ': 'a',
        }
        for line, text in rows.items():
            self.assertEqual(without_comment(line), text, line)

    def test_what_is_wrong_is_found(self):
        def inline(text):
            return Command("page.md", 1, text, "inline")
        rows = {
            "scripts/nothing": "there is no scripts/nothing",
            "scripts/test --fast": "does not describe --fast",
            "scripts/test --sanitize memory": "does not describe the value memory",
            "build/native/tests/tst_nothing": "there is no source",
            "VX_NOTHING=1 tst_rolldb": "no test reads VX_NOTHING",
            "tst_rolldb nothing": "has no function nothing",
            "ctest -R ^nothing$": "no test is called ^nothing$",
            "vxprintmon nothing": "has no command nothing",
            "vxprintmon watch --nothing": "does not know --nothing",
            "make all": "nothing says how this command is tested",
        }
        for text, message in rows.items():
            with self.subTest(text), self.assertRaises(Fault) as fault:
                check(inline(text), None)
            self.assertIn(message, str(fault.exception))
        with self.assertRaises(Fault):
            compare_output(["a", "..."], "b\nc\n")
        with self.assertRaises(Fault):
            check_elsewhere({"by": {"file": "tests/docs/CMakeLists.txt", "text": "no such text"}})

    def test_what_fails_is_found(self):
        sandbox = Sandbox("page.md")
        try:
            for text, rule, message in (
                    ("vxprintmon status Nobody", {}, "it ended with 1 instead of 0"),
                    ("vxprintmon list", {"status": 3}, "it ended with 0 instead of 3"),
                    ("vxprintmon list", {"output": "Nobody"}, "it did not print Nobody"),
                    ("vxprintmon list", {"creates": ["x"]}, "it has not created x"),
                    ("vxprintmon watch --for 1", {"interrupt": "Nobody"}, "before it printed Nobody")):
                with self.subTest(text), self.assertRaises(Fault) as fault:
                    run_here(sandbox, Command("page.md", 1, text, "block"), rule)
                self.assertIn(message, str(fault.exception))
        finally:
            sandbox.close()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
