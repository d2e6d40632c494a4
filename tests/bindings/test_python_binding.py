# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tests of the Python binding on the built-in fleet.

Usage: test_python_binding.py BINDING_FOLDER LIBRARY CATALOGUE VERSION [TEST...]
"""
import os
import sqlite3
import subprocess
import sys
import tempfile
import textwrap
import threading
import time
import unittest
from datetime import datetime, timezone

BINDING, LIBRARY, CATALOGUE, VERSION = (sys.argv.pop(1) for _ in range(4))
os.environ.update(
    VXPRINTERSTATUS_LIBRARY=LIBRARY, VX_VIRTUAL_FLEET="built-in", VX_VIRTUAL_SPEED="8", LC_ALL="C.UTF-8"
)
sys.path.insert(0, BINDING)

import vxprinterstatus as vx  # noqa: E402 (the folder is an argument)
from vxprinterstatus import _library  # noqa: E402


def wait_for(condition):
    # The program that runs the tests ends one that hangs.
    while not condition():
        time.sleep(0.005)


def run_python(code, **variables):
    """Runs code in another interpreter."""
    environment = {**os.environ, "PYTHONPATH": BINDING, **variables}
    return subprocess.run(
        [sys.executable, "-B", "-c", textwrap.dedent(code)],
        env=environment,
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        universal_newlines=True,
        check=False,
    )


class Library(unittest.TestCase):
    def test_versions_agree(self):
        self.assertEqual(vx.library_version(), VERSION)
        self.assertEqual(vx.__version__, VERSION)

    def test_functions_are_those_of_the_header(self):
        # A function with other arguments than the header's would be called with garbage.
        with open(os.path.join(BINDING, "../../kit/include/vxkit.h"), encoding="utf-8") as file:
            header = " ".join(file.read().split())
        for name, arguments in _library._FUNCTIONS.items():
            declaration = header.split(f"VXKIT_CALL {name}(", 1)[1].split(")", 1)[0]
            self.assertEqual(declaration.count(",") + 1, len(arguments), name)

    def test_missing_library_is_named(self):
        code = """
            import vxprinterstatus
            try:
                vxprinterstatus.library_version()
            except vxprinterstatus.LibraryNotFoundError as error:
                print(error)
        """
        for value, message in {
            "/no/such/library.so": "VXPRINTERSTATUS_LIBRARY",
            os.path.dirname(os.path.abspath(__file__)): "in which there is no libvxprinterstatuskit.so",
            __file__: "cannot be loaded",
            _any_other_library(): "is another library",
        }.items():
            result = run_python(code, VXPRINTERSTATUS_LIBRARY=value)
            self.assertEqual(result.returncode, 0, result.stderr)
            self.assertIn(message, result.stdout)

    def test_folder_of_the_library_is_enough(self):
        result = run_python(
            "import vxprinterstatus; print(vxprinterstatus.library_version())",
            VXPRINTERSTATUS_LIBRARY=os.path.dirname(LIBRARY),
        )
        self.assertEqual((result.stdout, result.stderr), (VERSION + "\n", ""))


def _any_other_library():
    with open("/proc/self/maps", encoding="utf-8") as maps:
        return next(line.split()[-1] for line in maps if "/libc.so" in line)


class History(unittest.TestCase):
    def test_what_is_used_is_recorded(self):
        with tempfile.TemporaryDirectory() as folder:
            file = os.path.join(folder, "new", "history.db")
            with vx.Session(catalogue=CATALOGUE, history=file) as session:
                wait_for(lambda: session.reading("Shipping").supply.ratio is not None)
            connection = sqlite3.connect(file)
            names = {row[0] for row in connection.execute("SELECT name FROM printer")}
            connection.close()
            self.assertIn("Shipping", names)

    def test_estimates_are_those_of_the_json(self):
        with vx.Session(catalogue=CATALOGUE) as session:
            json = dict(session.reading("Shipping").json["supply"])
        self.assertIsNone(vx.Level.from_json({**json, "estimatedSecondsRemaining": None}).seconds_remaining)
        json["estimatedSecondsRemaining"] = {"p10": 60.0, "p50": 120.5, "p90": 600.0}
        self.assertEqual(vx.Level.from_json(json).seconds_remaining, vx.RemainingTime(60.0, 120.5, 600.0))


class Reading(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.session = vx.Session(catalogue=CATALOGUE, language="en")
        wait_for(lambda: cls.session.reading("Shipping").ribbon1.ratio is not None)

    @classmethod
    def tearDownClass(cls):
        cls.session.close()

    def test_printers_are_listed(self):
        names = [reading.name for reading in self.session.readings()]
        self.assertEqual(names, ["Branch Office", "Laboratory", "Returns", "Shipping", "Warehouse"])

    def test_everything_known_is_read(self):
        shipping = self.session.reading("Shipping")
        self.assertEqual(shipping.model, "AlderMax")
        self.assertEqual(shipping.presence, vx.Presence.PRESENT)
        self.assertIsNone(shipping.gone_since)
        self.assertTrue(shipping.online)
        self.assertEqual(shipping.json["name"], "Shipping")
        self.assertEqual(shipping.supply.state, vx.State.LOADED)
        self.assertEqual(shipping.supply.name, "Yellow Vinyl")
        self.assertGreater(shipping.supply.meters, 0)
        self.assertLessEqual(shipping.supply.ratio, 1)
        self.assertIsNone(shipping.supply.labels)  # it is continuous
        self.assertRegex(shipping.supply.colors[0], "^#[0-9a-f]{6}$")
        self.assertIsInstance(shipping.ribbon2, vx.Level)
        self.assertLess(abs(datetime.now(timezone.utc) - shipping.last_report).total_seconds(), 3600)

    def test_unknown_is_none(self):
        branch = self.session.reading("Branch Office")
        self.assertEqual(branch.watching, "networkPrinter")
        self.assertEqual((branch.status_code, branch.severity), (256, vx.Severity.INFORMATION))
        self.assertEqual(branch.supply.state, vx.State.NOT_KNOWN)
        for value in (branch.last_report, branch.serial_number, branch.supply.ratio, branch.supply.meters):
            self.assertIsNone(value)
        self.assertIsNone(branch.ribbon2)

    def test_active_printer_is_told(self):
        wait_for(lambda: self.session.active_printer == "Warehouse")

    def test_codes_are_explained(self):
        self.assertEqual(self.session.status_info(2).key, "out_of_labels")
        self.assertEqual(self.session.status_info(1).short_title, "Ready")
        self.assertEqual(self.session.status_info(1, "de").short_title, "Bereit")
        self.assertEqual(self.session.status_info(-5).severity, vx.Severity.ERROR)
        codes = [info.code for info in self.session.all_status_info()]
        self.assertEqual(codes, sorted(codes))
        self.assertGreater(len(codes), 20)

    def test_commands_are_sent(self):
        result = self.session.send("Warehouse", "FEED 3")
        self.assertEqual((result.failure, result.bytes), (vx.Failure.NONE, 8))
        self.assertGreater(result.job, 0)
        self.assertEqual(self.session.send("Warehouse", b"\0\1\xff").bytes, 3)
        with self.assertRaisesRegex(vx.CommandError, "No such printer") as caught:
            self.session.send("No such printer", "FEED")
        self.assertEqual(caught.exception.command.failure, vx.Failure.CANNOT_OPEN_PRINTER)
        with self.assertRaises(vx.CommandError) as caught:
            self.session.send("Front Desk Laser", "FEED")
        self.assertEqual(caught.exception.command.failure, vx.Failure.FOREIGN_PRINTER)
        self.session.send("Front Desk Laser", "FEED", to_any_printer=True)
        with self.assertRaises(vx.CommandError):
            self.session.send("Warehouse", "")
        self.session.send("Warehouse", "", even_empty=True)

    def test_wrong_arguments_are_refused(self):
        with self.assertRaises(vx.NoSuchPrinterError):
            self.session.reading("No such printer")
        with self.assertRaises(LookupError):
            self.session.reading("")
        for name in ("Ware\0house", "\ud800", "x" * 5000):
            with self.assertRaises(vx.InvalidArgumentError):
                self.session.reading(name)
        for code in (2**31, -(2**31) - 1):
            with self.assertRaises(ValueError):
                self.session.status_info(code)
        with self.assertRaises(vx.InvalidArgumentError):
            self.session.send("Warehouse", "x" * (2**24 + 1))
        with self.assertRaises(vx.BusyError):
            vx.Session()

    def test_many_threads_read(self):
        counts = []

        def read():
            for _ in range(50):
                counts.append(len(self.session.readings()))

        threads = [threading.Thread(target=read) for _ in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(counts, [5] * 200)


class Changes(unittest.TestCase):
    def test_changes_are_told(self):
        seen = []
        with vx.Session(catalogue=CATALOGUE) as session, session.on_change(seen.append):
            wait_for(lambda: any(c.kind is vx.ChangeKind.CHANGED and c.fields & vx.Field.SUPPLY for c in seen))
        count = len(seen)
        with vx.Session():
            self.assertEqual(len(seen), count)

    def test_changes_are_iterated(self):
        with vx.Session() as session:
            printers = set()
            for change in session.changes():
                printers.add(change.printer)
                if {"Shipping", "Warehouse"} <= printers:
                    break
            self.assertFalse(session._queues)
            self.assertEqual(list(session.changes(timeout=0.0))[1:], [])

    def test_iteration_ends_with_the_session(self):
        session = vx.Session()
        closer = threading.Timer(0.1, session.close)
        closer.start()
        for _ in session.changes():
            pass
        closer.join()
        self.assertTrue(session.closed)

    def test_callable_may_read_and_not_close(self):
        results = []
        done = threading.Event()
        with vx.Session() as session:

            def look(change):
                if change.kind is not vx.ChangeKind.CHANGED or done.is_set():
                    return
                results.append(session.reading(change.printer).name == change.printer)
                with session.on_change(lambda other: None):
                    pass
                try:
                    session.close()
                except vx.InCallbackError as error:
                    results.append(error.result)
                done.set()

            with session.on_change(look):
                done.wait()
            self.assertFalse(session.closed)
        self.assertEqual(results, [True, vx.Result.IN_CALLBACK])

    def test_callable_closes_its_own_subscription(self):
        calls = []
        with vx.Session() as session:
            subscription = None
            ready = threading.Event()

            def once(change):
                ready.wait()
                calls.append(change)
                subscription.close()

            subscription = session.on_change(once)
            ready.set()
            wait_for(lambda: calls)
            more = []
            with session.on_change(more.append):
                wait_for(lambda: len(more) > 3)
            subscription.close()
        self.assertEqual(len(calls), 1)

    def test_exceptions_are_reported(self):
        code = """
            import sys, threading
            import vxprinterstatus
            reported = threading.Event()
            sys.unraisablehook = lambda what: (print(repr(what.exc_value)), reported.set())
            def fail(change):
                if not reported.is_set():
                    raise RuntimeError("nobody catches this")
            with vxprinterstatus.Session() as session, session.on_change(fail):
                reported.wait()
        """
        result = run_python(code)
        self.assertEqual(result.returncode, 0, result.stderr)
        self.assertEqual(result.stdout, "RuntimeError('nobody catches this')\n")


class Lifetimes(unittest.TestCase):
    def test_closed_session_is_refused(self):
        session = vx.Session()
        subscription = session.on_change(lambda change: None)
        session.close()
        session.close()
        subscription.close()
        for call in (session.readings, lambda: session.active_printer, lambda: session.on_change(print),
                     lambda: session.send("Warehouse", "x"), lambda: session.status_info(1)):
            with self.assertRaises(vx.InvalidHandleError):
                call()

    def test_wrong_options_leave_no_session(self):
        with self.assertRaises(vx.InvalidArgumentError):
            vx.Session(language="no language")
        with self.assertRaisesRegex(vx.VxError, "/no/such/folder"):
            vx.Session(log_file="/no/such/folder/printers.log")
        vx.Session().close()

    def test_many_sessions_follow_each_other(self):
        for _ in range(10):
            with vx.Session() as session, session.on_change(lambda change: None):
                session.readings()

    def test_interpreter_ends_with_an_open_session(self):
        for ending in ("", "sys.exit(3)", "raise SystemExit(3)", "del session; gc.collect()"):
            result = run_python(
                f"import gc, sys, vxprinterstatus\n"
                f"session = vxprinterstatus.Session()\n"
                f"session.on_change(lambda change: None)\n"
                f"{ending}"
            )
            self.assertEqual((result.returncode, result.stderr), (3 if "3" in ending else 0, ""), ending)

    def test_threads_that_use_a_session_while_it_is_closed(self):
        for _ in range(5):
            session = vx.Session()
            errors = []

            def use():
                try:
                    while True:
                        session.readings()
                        with session.on_change(lambda change: None):
                            pass
                except vx.VxError as error:
                    errors.append(type(error))

            threads = [threading.Thread(target=use) for _ in range(3)]
            for thread in threads:
                thread.start()
            closers = [threading.Thread(target=session.close) for _ in range(3)]
            for closer in closers:
                closer.start()
            for thread in threads + closers:
                thread.join()
            self.assertEqual(len(errors), 3)
            self.assertLessEqual(set(errors), {vx.InvalidHandleError, vx.NotRunningError})


if __name__ == "__main__":
    unittest.main(verbosity=2)
