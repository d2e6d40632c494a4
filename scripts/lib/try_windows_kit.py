# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tries the Windows test kit under Wine, unpacked where nothing of the build can be reached.

Usage: try_windows_kit.py [--short] ZIP BUILD_FOLDER

In a new Wine prefix with a printer that belongs to somebody:
  - the manifest has the tests that CTest has, and gives a reason for each that cannot run elsewhere
  - wrong options are refused, and help is shown in each language
  - the answer "no" changes nothing in the registry and the files
  - tests that need an administrator or stop the spooler are not run where that is not allowed
  - a test that hangs is ended, with the processes that it has started
  - a run that is interrupted or killed is cleaned up, the latter at the next start
  - all tests run (not with --short): everything passes, nothing is left behind, and the report has no path
    of the build machine and no name of the person, the computer and the printer
VX_TEST_DISPLAY is the X display on which windows are shown.
"""
import contextlib
import getpass
import json
import os
import pathlib
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

SCRIPTS = pathlib.Path(__file__).resolve().parent
SOURCES = SCRIPTS.parents[1]
LANGUAGES = ("de", "en", "es", "fr", "it", "ja", "zh")
# A printer of somebody who runs the kit.
FOREIGN_PRINTER = "Lager Süd (Meier)"
INBOX_DRIVER = "Generic / Text Only"
# What Wine itself changes in any run (scripts/lib/wine_leftovers.py).
LEFTOVERS = SCRIPTS / "wine_leftovers.py"
# Only what hangs is ended by these.
LONG = 7200
SHORT = 600


class Failure(Exception):
    pass


def check(holds, text):
    if not holds:
        raise Failure(text)


def wait_until(condition, what):
    deadline = time.monotonic() + SHORT
    while not condition():
        check(time.monotonic() < deadline, f"waited {SHORT} s in vain for: {what}")
        time.sleep(0.2)


class Kit:
    def __init__(self, archive, build, scratch):
        self.build, self.scratch = build, scratch
        self.prefix = scratch / "prefix"
        self.prefix.mkdir()
        shutil.unpack_archive(archive, scratch / "Entpackt für Tests (1)")
        (self.folder,) = (scratch / "Entpackt für Tests (1)").iterdir()
        # Of the build, which the kit's Wine cannot reach.
        self.printer_adder = shutil.copy2(build / "bin/add_printer.exe", scratch)
        self.manifest_file = self.folder / "manifest.json"
        self.manifest = json.loads(self.manifest_file.read_text(encoding="utf-8"))
        self.environment = {
            "PATH": "/usr/local/bin:/usr/bin:/bin", "HOME": os.environ["HOME"],
            "USER": getpass.getuser(), "LC_ALL": "C.UTF-8", "DISPLAY": os.environ["VX_TEST_DISPLAY"],
            "WINEPREFIX": str(self.prefix), "WINEDEBUG": "-all", "WINEDLLOVERRIDES": "mscoree,mshtml=",
        }

    def isolated(self, command):
        """The command where the sources, the build and the caches of the build are empty folders."""
        hidden = [SOURCES, pathlib.Path.home() / ".cache"]
        options = ["--dev-bind", "/", "/"]
        for folder in hidden:
            if folder.is_dir():
                options += ["--tmpfs", str(folder)]
        return ["bwrap", *options, "--die-with-parent", "--chdir", str(self.scratch), *command]

    def wine(self, *command, **options):
        """Runs a program outside of the kit and waits for it."""
        return subprocess.run(["wine", *command], env=self.environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=SHORT,
                              check=False, **options).returncode

    def start(self, *options, answers=None):
        """Starts the kit as run-tests.cmd does. Its output is a file: a pipe would stay open as long as
        a service that was started meanwhile."""
        self.output_file = self.scratch / "output.txt"
        answers_file = self.scratch / "answers.txt"
        answers_file.write_text(answers or "", encoding="utf-8")
        with open(self.output_file, "wb") as output, open(answers_file, "rb") as given:
            return subprocess.Popen(self.isolated(["wine", str(self.folder / "bin/vxtestkit.exe"), *options]),
                                    env=self.environment, stdin=given, stdout=output,
                                    stderr=subprocess.STDOUT)

    def output(self):
        return self.output_file.read_text(encoding="utf-8", errors="replace").replace("\r", "")

    def run(self, *options, answers=None, limit=SHORT):
        process = self.start(*options, answers=answers)
        try:
            return process.wait(timeout=limit), self.output()
        except subprocess.TimeoutExpired:
            process.kill()
            raise Failure(f"the kit did not end within {limit} s:\n{self.output()}") from None

    def report(self):
        """The only report there is, as text and as its data. It is removed."""
        reports = sorted(self.folder.glob("VxPrinterStatus-test-report-*.html"))
        check(len(reports) == 1, f"there are {len(reports)} reports:\n{self.output()}")
        text = reports[0].read_text(encoding="utf-8")
        reports[0].unlink()
        data = re.search(r'<script type="application/json" id="report">\n(.*)\n</script>', text, re.DOTALL)
        check(data, "the report has no data for programs")
        return text, json.loads(data.group(1))

    def use_tests(self, tests):
        self.manifest_file.write_text(json.dumps({**self.manifest, "tests": tests}), encoding="utf-8")

    def add_printer(self, name, driver, port):
        code = self.wine(self.printer_adder, name, driver, port)
        check(code == 0, f"the printer {name} cannot be added")

    def has_printer(self, name):
        key = r"HKLM\System\CurrentControlSet\Control\Print\Printers" + "\\" + name
        return self.wine("reg", "query", key) == 0

    def journal(self):
        return list(self.prefix.glob("drive_c/users/*/AppData/Local/VxPrinterStatusTestKit/before.json"))

    def kit_processes(self):
        """The identifiers of the processes whose programs are in the kit."""
        found = []
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            with contextlib.suppress(OSError):
                command = (folder / "cmdline").read_bytes().split(b"\0")[0].decode(errors="replace")
                environment = (folder / "environ").read_bytes().split(b"\0")
                if command.endswith(".exe") and f"WINEPREFIX={self.prefix}".encode() in environment and \
                        self.folder.name in command:
                    found.append((int(folder.name), re.split(r"[/\\]", command)[-1]))
        return found

    @contextlib.contextmanager
    def unchanged(self, what):
        """Checks that registry, files and processes of the prefix are the same afterwards."""
        record = self.scratch / "before.json"
        self.leftovers("before", record)
        files = self.files()
        yield
        found = self.leftovers("after", record)
        check(found.returncode == 0, f"{what}: {found.stdout}")
        check(self.files() == files,
              f"{what}: the folder of the kit has changed: {sorted(self.files() ^ files)[:20]}")

    def leftovers(self, when, record):
        return subprocess.run([sys.executable, "-B", str(LEFTOVERS), when, str(record)],
                              env=self.environment, capture_output=True, text=True, check=False)

    def files(self):
        return {str(path.relative_to(self.folder)) for path in self.folder.rglob("*")}

    def set_up(self):
        run = subprocess.run
        run(["wine", "wineboot", "-i"], env=self.environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=True, timeout=SHORT)
        # These exist on any Windows; see use_wine and set-up-wine-windows.
        self.wine("reg", "add", r"HKLM\System\ControlSet001\Control\DeviceClasses", "/f")
        run([str(SCRIPTS / "set-up-wine-windows")], env=self.environment, check=True, timeout=SHORT)
        run(["wineserver", "-w"], env=self.environment, check=True, timeout=SHORT)
        # The server is one that sees what the kit may see.
        run(self.isolated(["wineserver", "-p"]), env=self.environment, check=True, timeout=SHORT,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_until(lambda: self.wine("net", "start", "Spooler") == 0, "the spooler")
        self.add_printer(FOREIGN_PRINTER, "Some Laser Driver", "LPT1:")
        # Wine would take the first printer as the default one, without writing it down.
        self.wine("reg", "add", r"HKCU\Software\Microsoft\Windows NT\CurrentVersion\Windows", "/v", "device",
                  "/d", FOREIGN_PRINTER + ",wineps.drv,LPT1:", "/f")
        # The driver that the tests' drivers are made of, which any Windows has.
        self.add_printer("Sample", INBOX_DRIVER, "LPT2:")

    def tear_down(self):
        for option in ("-k", "-w"):
            subprocess.run(["wineserver", option], env=self.environment, check=False, timeout=60)


def hanging_test():
    return {"name": "tst_hangs", "program": "tests/hanging_test.exe", "arguments": [], "environment": {},
            "locks": []}


def try_manifest(kit):
    listing = subprocess.run(["ctest", "--test-dir", str(kit.build), "--show-only=json-v1"], check=True,
                             capture_output=True, text=True)
    expected = sorted(test["name"] for test in json.loads(listing.stdout)["tests"])
    tests = kit.manifest["tests"]
    check(sorted(test["name"] for test in tests) == expected, "the manifest has not the tests of CTest")
    for test in tests:
        check(("program" in test) != ("notPossible" in test), f"{test['name']} has no program and no reason")
        check("program" not in test or (kit.folder / test["program"]).is_file(),
              f"{test['name']}: {test.get('program')} is not there")
    # Text files; programs have the paths of the sources compiled in, but do not use them.
    for path in kit.folder.rglob("*"):
        if path.suffix in (".json", ".cmd", ".txt", ".csv", ".md", ".ts"):
            check(str(SOURCES).encode() not in path.read_bytes(), f"{path} has a path of the build machine")
    check((kit.folder / "README.txt").stat().st_size > 1000, "README.txt is empty")
    return len(expected)


def try_options(kit):
    for options in (["--nonsense"], ["file"], ["--silence", "0"], ["--only", "("],
                    ["--allow-spooler-stop", "--no-spooler-stop"]):
        status, output = kit.run(*options)
        check(status == 2 and output.startswith("vxtestkit: ") and output.count("\n") == 1,
              f"{options}: exit status {status}\n{output}")
    helps = set()
    for language in LANGUAGES:
        status, output = kit.run("--language", language, "--help")
        check(status == 0 and "--allow-spooler-stop" in output, f"{language}: exit status {status}\n{output}")
        helps.add(output)
    check(len(helps) == len(LANGUAGES), "some languages have the same help")


def try_no(kit):
    for answers in ("n\n", "nein\n", "", "perhaps\nno\n"):
        with kit.unchanged(f"the answer {answers!r}"):
            status, output = kit.run(answers=answers)
            check(status == 3 and "Nothing was changed." in output, f"exit status {status}\n{output}")


def try_permissions(kit):
    chosen = "^(tst_spooler_restart_on_windows|tst_service_manager|tst_kernel_events|tst_event_viewer_log)$"
    with kit.unchanged("a run without the spooler"):
        # Yes to the run, no to the spooler.
        status, output = kit.run("--only", chosen, answers="y\nn\n")
        check(status == 0, f"exit status {status}\n{output}")
        _, report = kit.report()
    tests = {test["name"]: test for test in report["tests"]}
    check(report["agreed"] == {"run": True, "stopSpooler": False, "administrator": True}, str(report["agreed"]))
    check(tests["tst_spooler_restart_on_windows"]["reason"] == "the print spooler must not be stopped",
          "a test that stops the spooler was not left out")
    check(tests["tst_service_manager"]["result"] == "passed" and tests["tst_service_manager"]["skipped"] == 2,
          f"functions that stop the spooler were not left out: {tests['tst_service_manager']}")
    with kit.unchanged("a run without rights"):
        status, output = kit.run("--yes", "--without-administrator", "--only", chosen)
        check(status == 0, f"exit status {status}\n{output}")
        _, report = kit.report()
    for test in report["tests"]:
        wanted = {"tst_kernel_events": "passed"}.get(test["name"], "not run")
        check(test["result"] == wanted, f"without rights: {test['name']} is {test['result']}")
    reasons = {test["reason"] for test in report["tests"] if test["name"] == "tst_event_viewer_log"}
    check(reasons == {"needs an administrator's rights"}, str(reasons))


def try_stopped_spooler(kit):
    kit.wine("net", "stop", "Spooler")
    with kit.unchanged("a run while the spooler is stopped"):
        status, output = kit.run("--yes", "--only", "^tst_printer_data$")
        check(status == 0, f"exit status {status}\n{output}")
        text, report = kit.report()
    check(report["system"]["spooler"] == "stopped", f"the spooler was {report['system']['spooler']}")
    check("a driver and a port can be added and removed" in report["printerCheck"], report["printerCheck"])
    check(not report["leftBehind"], str(report["leftBehind"]))
    # Its names cannot be asked for then.
    check(FOREIGN_PRINTER not in text, "the report contains the name of a printer")
    check("<printer 2>" in report["replacedNames"], str(report["replacedNames"]))
    check(kit.wine("net", "start", "Spooler") == 0, "the spooler was not stopped again")


def try_hang(kit):
    kit.use_tests([hanging_test()])
    with kit.unchanged("a test that hangs"):
        status, output = kit.run("--yes", "--silence", "3")
        check(status == 1 and "HANGS" in output, f"exit status {status}\n{output}")
        _, report = kit.report()
        check(report["tests"][0]["result"] == "silent", str(report["tests"]))
        check(not kit.kit_processes(), "the test that hangs was not ended")


def start_with_a_printer_left(kit, *options):
    """A run in which a test hangs after it has added a printer."""
    kit.use_tests([hanging_test()])
    process = kit.start("--yes", "--silence", str(SHORT), *options)
    wait_until(lambda: len([name for _, name in kit.kit_processes() if "hanging_test" in name]) == 2,
               "the test that hangs and its child")
    kit.add_printer("Label Printer 4711-1", "Stratamark AlderMax", "USB901")
    check(kit.has_printer("Label Printer 4711-1"), "the printer of the test is not there")
    return process


def try_kill(kit):
    with kit.unchanged("a killed run"):
        process = start_with_a_printer_left(kit)
        check(len(kit.journal()) == 1, "the run has not remembered what there was before")
        for identifier, name in kit.kit_processes():
            if name == "vxtestkit.exe":
                os.kill(identifier, signal.SIGKILL)
        process.wait(timeout=SHORT)
        wait_until(lambda: not kit.kit_processes(), "the end of the test of the killed kit")
        check(kit.has_printer("Label Printer 4711-1"), "the printer was removed by somebody else")
        kit.use_tests(kit.manifest["tests"])
        status, output = kit.run(answers="n\n")
        check(status == 3 and "An earlier run did not end by itself." in output,
              f"exit status {status}\n{output}")
        check(not kit.has_printer("Label Printer 4711-1"), f"the printer is still there\n{output}")
        check(not kit.journal(), "the run still remembers what there was before")
        check(kit.has_printer(FOREIGN_PRINTER), "a printer of somebody else was removed")
        kit.use_tests([hanging_test()])
    kit.use_tests(kit.manifest["tests"])


def try_interruption(kit):
    kit.use_tests([hanging_test(), {**hanging_test(), "name": "tst_never"}])
    with kit.unchanged("an interrupted run"):
        process = start_with_a_printer_left(kit)
        for identifier, name in kit.kit_processes():
            if name == "vxtestkit.exe":
                os.kill(identifier, signal.SIGINT)
        status = process.wait(timeout=SHORT)
        check(status == 4, f"exit status {status}\n{kit.output()}")
        _, report = kit.report()
        check(report["interrupted"] and report["tests"][0]["result"] == "interrupted", str(report["tests"]))
        check(not kit.has_printer("Label Printer 4711-1"), f"the printer is still there\n{kit.output()}")
    kit.use_tests(kit.manifest["tests"])


def check_report_of_all(kit, count, status, output, text, report):
    bad = [f"{test['name']}: {test['result']} {test['reason']}\n{test['output']}" for test in report["tests"]
           if test["result"] not in ("passed", "skipped", "not run")]
    check(not bad, "\n".join(bad))
    check(status == 0, f"exit status {status}\n{output}")
    check(len(report["tests"]) == count, f"the report has {len(report['tests'])} tests instead of {count}")
    check(sum(report["counts"].values()) == count, str(report["counts"]))
    not_run = {test["name"] for test in report["tests"] if test["result"] == "not run"}
    impossible = {test["name"] for test in kit.manifest["tests"] if "notPossible" in test}
    check(not_run == impossible, f"not run: {sorted(not_run ^ impossible)}")
    check(not report["leftBehind"], str(report["leftBehind"]))
    check(report["system"]["spooler"] == "running", f"the spooler was {report['system']['spooler']}")
    for name in (str(SOURCES), str(kit.build), FOREIGN_PRINTER, FOREIGN_PRINTER.replace("ü", "?"),
                 str(kit.scratch), str(kit.scratch).replace("/", "\\")):
        check(name.lower() not in text.lower(), f"the report contains {name}:\n" + "\n".join(
            line for line in text.splitlines() if name.lower() in line.lower())[:2000])
    for name in (getpass.getuser(), socket.gethostname()):
        found = re.search(rf"(?i)(?<![^\W_]){re.escape(name)}(?![^\W_])", text)
        check(not found, f"the report contains {name}: {text[max(0, found.start() - 80):found.end() + 80]}"
              if found else "")


def try_all(kit, count):
    began = time.monotonic()
    with kit.unchanged("a run of all tests"):
        status, output = kit.run("--yes", "--allow-spooler-stop", limit=LONG)
        text, report = kit.report()
        check_report_of_all(kit, count, status, output, text, report)
    functions = sum(test["passed"] + test["failed"] + test["skipped"] for test in report["tests"])
    print(f"try_windows_kit: {report['counts']}, {functions} functions, report of {len(text) // 1024} KiB, "
          f"{time.monotonic() - began:.0f} s")


def main():
    arguments = sys.argv[1:]
    is_short = arguments[:1] == ["--short"]
    if len(arguments) != 2 + is_short:
        sys.exit(__doc__.strip())
    archive, build = arguments[is_short:]
    # Not below the folders that are hidden.
    with tempfile.TemporaryDirectory(prefix="vxkit-", dir="/var/tmp") as folder:
        kit = Kit(archive, pathlib.Path(build).resolve(), pathlib.Path(folder))
        try:
            count = try_manifest(kit)
            kit.set_up()
            for trial in (try_options, try_no, try_permissions, try_stopped_spooler, try_hang, try_kill, try_interruption):
                began = time.monotonic()
                trial(kit)
                print(f"try_windows_kit: {trial.__name__} passed ({time.monotonic() - began:.0f} s)", flush=True)
            if not is_short:
                try_all(kit, count)
        except Failure as failure:
            sys.exit(f"try_windows_kit: {failure}")
        finally:
            kit.tear_down()
    print("try_windows_kit: passed")


main()
