# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Installs, uses, upgrades and removes the product with its installer, in new Wine prefixes.

Usage: test_installer.py STAGED_FOLDER ASSIGNMENT NEW OLD HELPERS [TEST...]

NEW is the installer of STAGED_FOLDER. OLD is one of version 0.9.0, which also has the files OLD_FILES of the command-line
tools, and another CHANGED_FILE. HELPERS is a folder with the programs that the tests use. scripts/test-installer makes
all of them. The programs find no DLLs but those that were installed and Wine's own.
"""
import contextlib
import hashlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import unittest

STAGED, ASSIGNMENT, NEW, OLD, HELPERS = map(pathlib.Path, sys.argv[1:6])
ADD_PRINTER = HELPERS / "add_printer.exe"
HOLD_FILE = HELPERS / "hold_file.exe"
FULL_DISK = HELPERS / "full_disk.so"
OLD_VERSION = "0.9.0"
NEW_VERSION = re.search(r"-([0-9.]+)-win64", NEW.name).group(1)
OLD_FILES = ("bin/oldtool.dll", "share/VxPrinterStatus/old/notes.txt")
CHANGED_FILE = "include/VxPrinterStatus/printer_types.h"
# One of both versions that takes its place after the changed one.
LATER_FILE = "lib/cmake/VxPrinterStatus/VxPrinterStatusConfig.cmake"
# In seconds; ends what hangs.
LIMIT = 300
FOLDER = "C:\\Program Files\\VxPrinterStatus"
CONFIG = "C:\\ProgramData\\VxPrinterStatus\\agent.json"
UNINSTALL = "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\VxPrinterStatus"
OWN_FILES = {"uninstall.exe", "uninstall/icon.ico", "uninstall/agent.json"}
TEMPORARY = "VxPrinterStatus-setup.tmp"
FAILED, WRONG_OPTION, OLD_WINDOWS, NEWER_INSTALLED, IN_USE, OTHER_FOLDER, SERVICE = 2, 3, 4, 6, 7, 8, 9
NO_FOLDER, FILES_OF_OTHERS, NOT_PUT_BACK, NOT_STARTED = 11, 12, 13, 14
sys.path.append(str(pathlib.Path(__file__).parent))
from test_package import PRINTERS, foreign_dlls  # noqa: E402

# What Wine itself writes while programs run: where an uninstaller has itself deleted at the next start, what
# programs keep for a while, its print spooler, and the devices that it finds.
VOLATILE_FILES = re.compile(r"^(users/[^/]+/(AppData/Local/)?Temp|windows/temp|windows/wininit\.ini)(/|$)", re.IGNORECASE)
VOLATILE_KEYS = re.compile(r"\\Control\\(Session Manager$|Print\\|Class\\|DeviceClasses\\)"
                           r"|^System\\CurrentControlSet\\(Enum|Services\\wine[a-z]*$)|\\NetworkCards$", re.IGNORECASE)


def assigned(*components):
    """The staged files of the components, and the lists that the installer adds."""
    lines = [line.split("\t") for line in ASSIGNMENT.read_text(encoding="utf-8").splitlines()]
    return {path for owner, path in lines if owner in components} | {f"uninstall/{name}.ini" for name in components}


def digest(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def until(condition, describe):
    deadline = time.monotonic() + LIMIT
    while not condition():
        if time.monotonic() > deadline:
            raise AssertionError(describe())
        time.sleep(0.1)


class Installer(unittest.TestCase):
    maxDiff = 4000

    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="vxinstaller-", ignore_cleanup_errors=True)
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.scratch.chmod(0o755)
        self.prefix = self.scratch / "prefix"
        self.prefix.mkdir()
        self.drive = self.prefix / "drive_c"
        # Without a display: nothing here may show a window. Wine would enter start menus into that of the system.
        self.environment = {key: value for key, value in os.environ.items() if key not in ("DISPLAY", "WAYLAND_DISPLAY")}
        self.environment.update(WINEPREFIX=str(self.prefix), WINEPATH="", WINEDEBUG="-all", LC_ALL="C.UTF-8",
                                WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d", HOME=str(self.scratch))
        # A command that starts programs in another way.
        self.launcher = ()
        self.addCleanup(self.end_wine)
        self.quietly("wine", "wineboot", "-i")
        self.quietly("wineserver", "-w")
        # It stays up; otherwise each program would start Wine's services again, which makes services hard to start.
        self.quietly("wineserver", "-p")
        self.wine("reg", "add", "HKCU\\Software\\Wine", "/v", "Version", "/d", "win10", "/f")
        # The first program that asks for them makes some keys and folders.
        self.wine("cmd", "/c", "exit")

    def quietly(self, *command):
        subprocess.run((*self.launcher, *command), env=self.environment, check=False, timeout=LIMIT, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def end_wine(self):
        self.quietly("wineserver", "-k")
        self.quietly("wineserver", "-w")

    def wine(self, *command, expected=0, **environment):
        """Runs a Windows program and returns what it printed. The output is a file, because a service that is started
        on the way keeps a pipe open."""
        with tempfile.TemporaryFile(dir=self.scratch) as output:
            status = subprocess.run((*self.launcher, "wine", *map(str, command)), check=False, timeout=LIMIT,
                                    env={**self.environment, **environment}, stdin=subprocess.DEVNULL, stdout=output,
                                    stderr=output).returncode
            output.seek(0)
            text = output.read().decode("utf-8", "replace").replace("\r\n", "\n")
        if expected is not None:
            self.assertEqual(status, expected, f"{command}\n{text}")
        return text

    def install(self, installer, *options, expected=0, **environment):
        return self.wine(installer, "/S", *options, expected=expected, **environment)

    def install_on_full_disk(self, installer, megabytes, *options):
        """Fails because no more than some megabytes can be written below the folder of the new files."""
        text = self.install(installer, *options, expected=FAILED, LD_PRELOAD=str(FULL_DISK),
                            VX_FULL_DISK_FOLDER=f"/{TEMPORARY}/new/", VX_FULL_DISK_BYTES=str(megabytes * 1024 * 1024))
        self.assertRegex(text, re.escape(f"A file could not be written to {FOLDER}.") + ".* Nothing was changed")

    @contextlib.contextmanager
    def held(self, name, folder=FOLDER):
        """Keeps a file open so that nobody can replace it."""
        with subprocess.Popen(("wine", str(HOLD_FILE), f"{folder}\\{name}".replace("/", "\\")), env=self.environment,
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL) as holder:
            self.assertEqual(holder.stdout.readline().strip(), b"held")
            try:
                yield
            finally:
                holder.stdin.close()
                self.assertEqual(holder.wait(LIMIT), 0)

    def uninstall(self, folder=FOLDER, expected=0):
        """Removes the product with a copy of its uninstaller, which can be waited for."""
        copy = self.scratch / "uninstall.exe"
        shutil.copy(self.path(folder) / "uninstall.exe", copy)
        return self.wine(copy, "/S", *f"_?={folder}".split(" "), expected=expected)

    def path(self, windows):
        return self.drive / windows.removeprefix("C:\\").replace("\\", "/")

    def value(self, name, key=UNINSTALL):
        """A value of the registry as text, None if it does not exist."""
        text = self.wine("reg", "query", key, "/v", name, expected=None)
        found = re.search(rf"^ +{re.escape(name)} +REG_\w+ +(.*)$", text, re.MULTILINE)
        return found.group(1) if found else None

    def service_state(self):
        found = re.search(r"STATE *: (\d+)", self.wine("sc", "query", "vxprintagent", expected=None))
        return int(found.group(1)) if found else None

    def files(self, folder=None):
        """The files and folders below a folder of Windows, or of the whole disk, with their digests."""
        top = self.path(folder) if folder else self.drive
        found = {}
        for path in top.rglob("*"):
            name = path.relative_to(top).as_posix()
            if folder or not VOLATILE_FILES.match(name):
                found[name] = digest(path) if path.is_file() and not path.is_symlink() else ""
        return found

    def installed(self, folder=FOLDER):
        return {name for name, content in self.files(folder).items() if content}

    def registry(self):
        """The values of the whole registry by key, as Wine writes them down at its end."""
        self.end_wine()
        self.quietly("wineserver", "-p")
        found = {}
        for file in ("system.reg", "user.reg", "userdef.reg"):
            key = None
            for line in (self.prefix / file).read_text(encoding="utf-8", errors="replace").splitlines():
                if line.startswith("["):
                    name = line[1:line.rindex("]")]
                    key = None if VOLATILE_KEYS.search(name.replace("\\\\", "\\")) else (file, name)
                    if key:
                        found[key] = []
                elif key and line and not line.startswith("#"):
                    found[key].append(line)
        return found

    def state(self):
        return self.registry(), self.files()

    def assert_same(self, before, after):
        for one, other in zip(before, after):
            changed = {key: (one.get(key), other.get(key)) for key in one.keys() | other.keys()
                       if one.get(key) != other.get(key)}
            self.assertEqual(changed, {}, "\n".join(f"{key}: {values}" for key, values in sorted(changed.items())))

    def assert_refused(self, status, pattern, installer, *options):
        before = self.files()
        text = self.install(installer, *options, expected=status)
        self.assertRegex(text, pattern)
        self.assert_same([before], [self.files()])


class NewInstallation(Installer):
    def test_installs_works_and_leaves_nothing(self):
        before = self.state()
        self.install(NEW)

        expected = assigned("library", "tools", "window", "documentation")
        self.assertEqual(self.installed(), expected | OWN_FILES)
        content = self.files(FOLDER)
        for path in expected:
            if not path.startswith("uninstall/"):
                self.assertEqual(content[path], digest(STAGED / path), path)
        self.assertEqual(self.value("DisplayName"), "VxPrinterStatus")
        self.assertEqual(self.value("DisplayVersion"), NEW_VERSION)
        self.assertEqual(self.value("Publisher"), "The VxPrinterStatus authors")
        self.assertEqual(self.value("InstallLocation"), FOLDER)
        self.assertEqual(self.value("Components"), "library,tools,window,documentation")
        self.assertEqual(self.value("UninstallString"), f'"{FOLDER}\\uninstall.exe"')
        self.assertEqual(self.value("QuietUninstallString"), f'"{FOLDER}\\uninstall.exe" /S')
        self.assertEqual((self.value("NoModify"), self.value("NoRepair")), ("0x1", "0x1"))
        size = sum((STAGED / path).stat().st_size for path in expected if not path.startswith("uninstall/"))
        self.assertAlmostEqual(int(self.value("EstimatedSize"), 16), size / 1024, delta=size / 1024 / 10)
        entry = self.drive / "ProgramData/Microsoft/Windows/Start Menu/Programs/Label Printers.lnk"
        self.assertIn("vxprintview.exe".encode("utf-16-le"), entry.read_bytes())
        self.assertIsNone(self.service_state())
        # What "Run" and "start" do: there is no path.
        self.assertIn(NEW_VERSION, self.wine("start", "/wait", "/exec", "vxprintmon", "--version"))

        self.wine("C:\\Program Files\\VxPrinterStatus\\uninstall.exe", "/S")
        # It goes on in a copy of itself, and this is its last step.
        until(lambda: self.value("DisplayName") is None, lambda: "the uninstaller does not end")
        self.assert_same(before, self.state())

    def test_installed_monitor_shows_printers_of_the_spooler(self):
        for name, driver, port, *_ in PRINTERS:
            self.wine(ADD_PRINTER, name, driver, port)
        self.install(NEW, "/COMPONENTS=tools")
        self.assertEqual(self.installed(), assigned("library", "tools") | OWN_FILES)

        monitor = FOLDER + "\\bin\\vxprintmon.exe"
        trace = self.wine(monitor, "list", WINEDEBUG="+loaddll")
        for name, driver, *_ in PRINTERS:
            self.assertRegex(trace, f"(?m)^{name} .*{driver}")
        self.assertEqual([path for path in foreign_dlls(trace, self.path(FOLDER))
                          if "VxPrinterStatus" not in path], [])
        self.wine(FOLDER + "\\bin\\rolldb.exe", "build", FOLDER + "\\share\\VxPrinterStatus\\supplies",
                  FOLDER + "\\bin\\roll.db")
        lines = self.wine(monitor, "watch", "--json", "--for", "3")
        self.assertTrue(lines.startswith("{"), lines)
        snapshot = json.loads(lines.splitlines()[0])
        self.assertEqual(sorted(reading["name"] for reading in snapshot["printers"]),
                         sorted(name for name, *_, number in PRINTERS if number))


class Service(Installer):
    def test_example_is_installed_and_removed_with_the_service(self):
        before = self.state()
        self.install(NEW, "/COMPONENTS=agent")
        self.assertEqual(self.installed(), assigned("library", "agent") | OWN_FILES)
        self.assertEqual(self.service_state(), 1)
        self.assertEqual(self.value("ImagePath", "HKLM\\System\\CurrentControlSet\\Services\\vxprintagent"),
                         f'"{FOLDER}\\bin\\vxprintagent.exe" service --config "{CONFIG}"')
        json.loads(self.path(CONFIG).read_text(encoding="utf-8"))
        self.wine(FOLDER + "\\bin\\vxprintagent.exe", "check", "--config", CONFIG)

        self.uninstall()
        self.assertIsNone(self.service_state())
        self.assert_same(before, self.state())

    def configure(self):
        """What an administrator distributes before the installer."""
        config = self.path(CONFIG)
        config.parent.mkdir()
        config.write_text(json.dumps({"site": "bremen", "dataFolder": "C:\\ProgramData\\VxPrinterStatus\\data",
                                      "metrics": {"textfile": "vxprint.prom"}}), encoding="utf-8")
        return config

    def start_spooler(self):
        # Wine starts no service for others while it starts its own.
        until(lambda: re.search("success|already", self.wine("net", "start", "Spooler", expected=None)),
              lambda: "Wine does not start its print spooler: " + self.wine("net", "start", "Spooler", expected=None))

    def test_upgrade_stops_and_starts_the_service_and_keeps_its_configuration(self):
        folder = "C:\\Etiketten Süd 札幌\\Vx Printer"
        config = self.configure()
        written = config.read_bytes()
        self.start_spooler()
        self.install(OLD, "/COMPONENTS=agent,tools", *f"/D={folder}".split(" "))
        self.assertEqual(self.service_state(), 4)
        self.assertIn(OLD_FILES[0], self.installed(folder))

        self.install(NEW)
        self.assertEqual(self.service_state(), 4)
        self.assertEqual(self.installed(folder), assigned("library", "agent", "tools") | OWN_FILES)
        self.assertEqual(config.read_bytes(), written)

        # A program that somebody uses: the service goes on as it was.
        with self.running_monitor(folder):
            text = self.install(NEW, expected=IN_USE)
            self.assertIn(".exe is in use", text)
            self.assertEqual(self.service_state(), 4)
            self.uninstall(folder, expected=IN_USE)
            self.assertEqual(self.service_state(), 4)
            self.assertEqual(self.installed(folder), assigned("library", "agent", "tools") | OWN_FILES)

        self.install(NEW, "/COMPONENTS=tools")
        self.assertIsNone(self.service_state())
        self.assertEqual(self.installed(folder), assigned("library", "tools") | OWN_FILES)
        self.uninstall(folder)
        self.assertFalse(self.path(folder).exists())
        self.assertEqual(config.read_bytes(), written)

    @contextlib.contextmanager
    def running_monitor(self, folder):
        output = self.scratch / "monitor.txt"
        with open(output, "wb") as file, subprocess.Popen(
                ("wine", folder + "\\bin\\vxprintmon.exe", "watch", "--json"), env=self.environment,
                stdin=subprocess.DEVNULL, stdout=file, stderr=subprocess.STDOUT) as monitor:
            try:
                until(lambda: output.stat().st_size or monitor.poll() is not None, lambda: "the monitor does not start")
                self.assertIsNone(monitor.poll(), output.read_text(encoding="utf-8", errors="replace"))
                yield
            finally:
                monitor.kill()

    def test_new_installation_that_fails_leaves_no_service_and_no_configuration(self):
        before = self.state()
        self.install_on_full_disk(NEW, 5, "/COMPONENTS=agent")
        self.assert_same(before, self.state())

    def test_upgrade_that_fails_leaves_the_service_as_it_was(self):
        self.configure()
        self.start_spooler()
        self.install(OLD, "/COMPONENTS=agent,tools")
        self.assertEqual(self.service_state(), 4)
        key = "HKLM\\System\\CurrentControlSet\\Services\\vxprintagent"
        service, before = self.wine("reg", "query", key, "/s"), self.files(FOLDER)

        self.install_on_full_disk(NEW, 5)
        self.assertEqual((self.files(FOLDER), self.service_state()), (before, 4))
        # Without the agent: its service is gone for a while.
        with self.held(LATER_FILE):
            self.install(NEW, "/COMPONENTS=tools", expected=FAILED)
        self.assertEqual((self.files(FOLDER), self.service_state()), (before, 4))
        self.assertEqual(self.wine("reg", "query", key, "/s"), service)
        self.assertEqual((self.value("DisplayVersion"), self.value("Components")), (OLD_VERSION, "library,tools,agent"))

    def test_configuration_that_is_wrong_leaves_nothing_installed(self):
        config = self.configure()
        config.write_text('{\n"site": "bremen",\n"mqt": {}}', encoding="utf-8")
        before = self.state()
        text = self.install(NEW, "/COMPONENTS=agent", expected=SERVICE)
        self.assertRegex(text, r"could not be registered. Nothing was changed")
        self.assertRegex(text, r"agent\.json:3: mqt: unknown key")
        self.assertIsNone(self.service_state())
        self.assert_same(before, self.state())

    def test_configuration_that_is_wrong_leaves_the_installed_version(self):
        self.install(OLD, "/COMPONENTS=tools")
        self.configure().write_text("{", encoding="utf-8")
        before = self.state()
        self.install(NEW, "/COMPONENTS=tools,agent", expected=SERVICE)
        self.assert_same(before, self.state())

    def test_service_that_does_not_start_after_an_upgrade(self):
        config = self.configure()
        self.start_spooler()
        self.install(OLD, "/COMPONENTS=agent")
        self.assertEqual(self.service_state(), 4)
        config.write_text("{", encoding="utf-8")
        text = self.install(NEW, expected=NOT_STARTED)
        self.assertRegex(text, "Everything is installed, but the service vxprintagent could not be started")
        self.assertEqual(self.service_state(), 1)
        self.assertEqual(self.installed(), assigned("library", "agent") | OWN_FILES)


class Upgrade(Installer):
    def test_upgrade_keeps_what_people_made_and_removes_what_was_left_out(self):
        self.install(OLD, "/COMPONENTS=tools,window")
        self.assertEqual(self.value("DisplayVersion"), OLD_VERSION)
        self.assertLess(set(OLD_FILES), self.installed())
        (self.path(FOLDER) / "bin/roll.db").write_text("a catalogue", encoding="ascii")
        notes = self.path(FOLDER) / "share/VxPrinterStatus/my notes.txt"
        notes.write_text("notes", encoding="ascii")
        people = {"bin/roll.db", "share/VxPrinterStatus/my notes.txt"}
        settings = self.drive / "users" / "settings.ini"
        settings.write_text("settings", encoding="ascii")

        self.install(NEW)
        self.assertEqual(self.value("DisplayVersion"), NEW_VERSION)
        self.assertEqual(self.value("Components"), "library,tools,window")
        self.assertEqual(self.installed(), assigned("library", "tools", "window") | OWN_FILES | people)
        self.assertNotIn("share/VxPrinterStatus/old", self.files(FOLDER))
        self.assertEqual((self.path(FOLDER) / "bin/roll.db").read_text(encoding="ascii"), "a catalogue")

        # Other components: what is not chosen any more goes, with its entries.
        self.install(NEW, "/COMPONENTS=documentation")
        self.assertEqual(self.installed(), assigned("library", "documentation") | OWN_FILES | people)
        self.assertEqual(list(self.drive.rglob("Label Printers.lnk")), [])
        self.assertIsNone(self.value("(Default)", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\App Paths"
                                                  "\\vxprintmon.exe"))

        self.uninstall()
        self.assertEqual(set(self.files(FOLDER)), people | {"bin", "share", "share/VxPrinterStatus"})
        self.assertTrue(settings.exists())
        self.assertIsNone(self.value("DisplayName"))


class Undone(Installer):
    def test_new_installation_on_a_disk_that_fills_up(self):
        before = self.state()
        self.install_on_full_disk(NEW, 5)
        # Later, and in folders that did not exist.
        (self.drive / "mine").mkdir()
        before[1]["mine"] = ""
        text = self.install(NEW, "/D=C:\\mine\\a\\b", expected=FAILED, LD_PRELOAD=str(FULL_DISK),
                            VX_FULL_DISK_FOLDER=f"/{TEMPORARY}/new/uninstall", VX_FULL_DISK_BYTES="100000")
        self.assertIn("A file could not be written to C:\\mine\\a\\b.", text)
        self.assert_same(before, self.state())

    def test_upgrade_with_a_file_that_cannot_be_replaced(self):
        self.install(OLD, "/COMPONENTS=tools,window")
        before = self.state()
        self.install_on_full_disk(NEW, 5)
        with self.held(LATER_FILE):
            text = self.install(NEW, expected=FAILED)
        self.assertIn(f"{FOLDER}\\{LATER_FILE} could not be replaced.".replace("/", "\\"), text)
        self.assert_same(before, self.state())
        self.assertIn(NEW_VERSION, self.wine(FOLDER + "\\bin\\vxprintmon.exe", "--version"))

        self.install(NEW)
        self.assertEqual(self.installed(), assigned("library", "tools", "window") | OWN_FILES)
        self.assertEqual(self.files(FOLDER)[CHANGED_FILE], digest(STAGED / CHANGED_FILE))

    def test_installer_that_was_ended_in_the_middle(self):
        """What it leaves when files have begun to take their places."""
        self.install(OLD, "/COMPONENTS=tools")
        before = self.state()
        folder = self.path(FOLDER)
        temporary = folder / TEMPORARY
        for name in ("lists", "new/bin", "new/share/later", "old/bin"):
            (temporary / name).mkdir(parents=True)
        # The first file is new, the second replaced, the third has not yet taken the place that is free for it, the
        # fourth and fifth are still to come.
        (folder / "bin/first.dll").write_text("new", encoding="ascii")
        (folder / "bin/rolldb.exe").rename(temporary / "old/bin/rolldb.exe")
        (folder / "bin/rolldb.exe").write_text("new", encoding="ascii")
        (folder / "uninstall.exe").rename(temporary / "old/uninstall.exe")
        (temporary / "new/uninstall.exe").write_text("new", encoding="ascii")
        (temporary / "new/bin/vxipc.exe").write_text("new", encoding="ascii")
        (temporary / "new/share/later/file.txt").write_text("new", encoding="ascii")
        (folder / "share/later").mkdir()
        (temporary / "new/uninstall").mkdir()
        for name in ("library", "tools"):
            shutil.copy(folder / f"uninstall/{name}.ini", temporary / f"new/uninstall/{name}.ini")
        for name, lines in (("library", ("bin\\",)), ("own", ("uninstall.exe",)),
                            ("tools", ("bin\\first.dll", "bin\\rolldb.exe", "bin\\vxipc.exe", "share\\later\\file.txt",
                                       "share\\later\\", "bin\\"))):
            (temporary / f"lists/{name}.ini").write_text("\r\n".join(["[files]", *(f"{line}=1" for line in lines), ""]),
                                                         encoding="utf-16")
        shutil.copytree(folder, self.scratch / "copy")

        # One of these files is in use.
        with self.held("bin/first.dll"):
            text = self.install(NEW, expected=NOT_PUT_BACK)
        self.assertIn(f"{FOLDER}\\bin\\first.dll could not be put back.", text)
        self.assertTrue((temporary / "lists").exists())

        # The installer puts everything back even if it then goes no further.
        (self.scratch / "copy").rename(self.scratch / "again")
        with self.held(LATER_FILE):
            self.install(NEW, expected=FAILED)
        self.assert_same(before, self.state())

        shutil.rmtree(folder)
        shutil.copytree(self.scratch / "again", folder)
        self.install(NEW)
        self.assertEqual(self.installed(), assigned("library", "tools") | OWN_FILES)
        self.assertFalse(temporary.exists())
        self.uninstall()
        self.assertFalse(folder.exists())


class FilesOfOthers(Installer):
    def test_files_of_the_same_names_are_refused_and_others_stay(self):
        folder = self.path("C:\\Tools")
        for name in ("bin/vxipc.exe", "uninstall.exe", "uninstall/agent.ini", "uninstall/mine.ini", "LICENSES", "share"):
            self.assertFalse(folder.exists())
            file = folder / name
            file.parent.mkdir(parents=True)
            file.write_text("[files]\nbin\\mine.txt=1\n", encoding="ascii")
            shown = r"uninstall\*.ini" if name.endswith(".ini") else name.replace("/", "\\")
            if name == "LICENSES":
                self.install(NEW, "/COMPONENTS=tools", "/D=C:\\Tools")
                self.uninstall("C:\\Tools")
                self.assertEqual(self.installed("C:\\Tools"), {name})
            else:
                self.assert_refused(FILES_OF_OTHERS, re.escape(f"C:\\Tools\\{shown} exists already"), NEW,
                                    "/D=C:\\Tools")
            shutil.rmtree(folder)
        # A folder where a file belongs, and one of a component that is not installed.
        (folder / "bin/vxipc.exe").mkdir(parents=True)
        self.assert_refused(FILES_OF_OTHERS, r"bin\\vxipc\.exe exists already", NEW, "/D=C:\\Tools")
        self.install(NEW, "/COMPONENTS=library", "/D=C:\\Tools")
        self.uninstall("C:\\Tools")
        self.assertEqual(set(self.files("C:\\Tools")), {"bin", "bin/vxipc.exe"})

    def test_upgrade_refuses_what_somebody_has_put_in_the_place_of_a_new_file(self):
        self.install(NEW, "/COMPONENTS=library")
        (self.path(FOLDER) / "bin/vxipc.exe").write_text("mine", encoding="ascii")
        self.assert_refused(FILES_OF_OTHERS, r"bin\\vxipc\.exe exists already", NEW, "/COMPONENTS=tools")
        self.uninstall()
        self.assertEqual(self.installed(), {"bin/vxipc.exe"})

    def test_registry_that_was_lost(self):
        # Windows was installed anew, and the folder is on another disk.
        self.install(OLD, "/COMPONENTS=tools")
        self.wine("reg", "delete", UNINSTALL, "/f")
        self.install(NEW, "/COMPONENTS=tools")
        self.assertEqual(self.installed(), assigned("library", "tools") | OWN_FILES)
        self.assertEqual(self.value("DisplayVersion"), NEW_VERSION)


class Refused(Installer):
    def test_wrong_options(self):
        self.assert_refused(WRONG_OPTION, r'"tolls" is not known\. Expected .* agent', NEW, "/COMPONENTS=tools,tolls")
        self.assert_refused(WRONG_OPTION, r'/COMPONENTS: "" is not known', NEW, "/COMPONENTS=")
        self.assert_refused(WRONG_OPTION, r"option /COMPONENT=tools is not known", NEW, "/COMPONENT=tools")
        self.assert_refused(WRONG_OPTION, r'/LANGUAGE: "xx" is not known', NEW, "/LANGUAGE=xx")
        self.assert_refused(WRONG_OPTION, r"Die Option /x .* unbekannt", NEW, "/LANGUAGE=de", "/x")
        self.assert_refused(WRONG_OPTION, r"/COMPONENTS：未知的组件“x”", NEW, "/LANGUAGE=zh_CN", "/COMPONENTS=x")

    def test_drive_that_is_full(self):
        # There is no space in /proc.
        self.assert_refused(NO_FOLDER, r"too little space for Z:\\proc\\vx: [1-9]\d MB", NEW, "/D=Z:\\proc\\vx")

    def test_folder_that_cannot_be_written(self):
        (self.drive / "file.txt").write_text("mine", encoding="ascii")
        # NSIS itself would take the usual folder instead of these: below a file, on a drive that does not exist.
        for folder in (r"C:\file.txt\vx", r"C:\file.txt\vx\deeper", r"Q:\vx", "relative"):
            self.assert_refused(NO_FOLDER, re.escape(f"Nothing can be written to {folder}."), NEW, f"/D={folder}")

        # One in which nobody may write. The rights keep root out, too, without the capability to pass over them.
        if os.geteuid() == 0:
            self.end_wine()
            self.launcher = ("setpriv", "--bounding-set=-dac_override,-dac_read_search",
                             "--inh-caps=-dac_override,-dac_read_search")
            self.quietly("wineserver", "-p")
        (self.drive / "mine").mkdir()
        (self.drive / "mine").chmod(0o555)
        for folder in (r"C:\mine", r"C:\mine\a\b"):
            self.assert_refused(NO_FOLDER, re.escape(f"Nothing can be written to {folder}."), NEW, f"/D={folder}")

    def test_windows_that_is_too_old(self):
        self.wine("reg", "add", "HKCU\\Software\\Wine", "/v", "Version", "/d", "win7", "/f")
        self.assert_refused(OLD_WINDOWS, "needs Windows 10", NEW)

    def test_downgrade_and_another_folder(self):
        self.install(NEW, "/COMPONENTS=tools")
        self.assert_refused(NEWER_INSTALLED, re.escape(f"version {NEW_VERSION} is installed in {FOLDER}."), OLD)
        self.assert_refused(OTHER_FOLDER, re.escape(f"is installed in {FOLDER}."), NEW, "/D=C:\\Elsewhere")
        self.assertEqual(self.value("DisplayVersion"), NEW_VERSION)

        self.install(OLD, "/ALLOWDOWNGRADE")
        self.assertEqual(self.value("DisplayVersion"), OLD_VERSION)
        self.assertEqual(self.installed(), assigned("library", "tools") | OWN_FILES | set(OLD_FILES))


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[6:]], verbosity=2)
