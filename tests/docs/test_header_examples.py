# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The examples in the comments of headers: each class has one, and one that does not compile is found.

Usage: test_header_examples.py ROOT COMPILER INCLUDES HEADER...
    INCLUDES  the folders in which the examples' headers are, separated by ";"

The examples themselves are compiled with everything else, by the target vx_header_examples.
"""
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ROOT, COMPILER = pathlib.Path(sys.argv[1]), sys.argv[2]
INCLUDES = [folder for folder in sys.argv[3].split(";") if folder]
HEADERS = [pathlib.Path(name) for name in sys.argv[4:]]
sys.path.insert(0, str(HERE))
from header_examples import BadHeader, blocks, contexts  # noqa: E402

# Why a header has no example.
WITHOUT = {
    "print_job_meta_data.h": "a record that only the print-queue service returns",
    "supply_information.h": "a record; vx_ipc_supplyd_controller.h shows where it comes from",
    "printer_types.h": "an enumeration",
    "status_codes.h": "numbers",
    "windows_printer_info.h": "the library's own; hosts use the controller",
    "printer_event.h": "a record; printer_events.h and event_log_reader.h show where it comes from",
    "status_icons.h": "one function that returns an icon",
    "ivxipcm4.h": "an interface; vx_ipc_m4_controller.h has the example",
    "ivxipcprintqd.h": "an interface; vx_ipc_printqd_controller.h has the example",
    "ivxipcsupplyd.h": "an interface; vx_ipc_supplyd_controller.h has the example",
    "vxipcserver.h": "the base of the interfaces",
}


def write(folder, text):
    header = pathlib.Path(folder, "shown.h")
    header.write_text(text, encoding="utf-8")
    return header


class HeaderExamples(unittest.TestCase):
    def test_every_header_has_one(self):
        without = {header.name for header in HEADERS if not blocks(header) and not header.name.endswith("_export.h")}
        self.assertEqual(without, set(WITHOUT))

    def test_surroundings_belong_to_headers_with_examples(self):
        with_examples = {"example_" + header.stem for header in HEADERS if blocks(header)}
        self.assertEqual(contexts() - with_examples, {"example_with_readings"})

    def compile(self, code, suffix):
        with tempfile.TemporaryDirectory() as folder:
            header = write(folder, f"#pragma once\n/// Shows it.\n///\n/// @code\n{code}/// @endcode\n")
            source = pathlib.Path(folder, f"examples{suffix}")
            subprocess.run([sys.executable, "-B", HERE / "header_examples.py", ROOT, source, header], check=True)
            if suffix == ".cpp":
                # The surroundings would be compiled for nothing.
                text = source.read_text(encoding="utf-8")
                text = text.replace('#include "header_examples.h"', "struct Example {};")
                source.write_text(text, encoding="utf-8")
            done = subprocess.run([COMPILER, "-fsyntax-only", *(["-x", "c"] if suffix == ".c" else ["-std=c++20"]),
                                   f"-I{folder}", f"-I{HERE}", *(f"-I{name}" for name in INCLUDES), source],
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8", check=False)
            return done.returncode, done.stdout, header

    def test_a_wrong_one_is_named_with_header_and_line(self):
        for suffix in (".cpp", ".c"):
            with self.subTest(suffix):
                status, output, header = self.compile("/// int known = 1;\n/// known = unknown;\n", suffix)
                self.assertNotEqual(status, 0)
                self.assertRegex(output, re.escape(f"{header}:6:") + r".*error.*unknown")

    def test_a_right_one_passes(self):
        for suffix in (".cpp", ".c"):
            with self.subTest(suffix):
                self.assertEqual(self.compile("/// #include <stddef.h>\n/// size_t size = 1;\n/// …\n/// ++size;\n",
                                              suffix)[:2], (0, ""))

    def test_another_language_is_left_out(self):
        with tempfile.TemporaryDirectory() as folder:
            header = write(folder, "/// @code{.cmake}\n/// find_package(X)\n/// @endcode\n/** @code{.cpp}\n * f();\n"
                                   " * @endcode */\n".replace(" */", "\n */"))
            self.assertEqual(blocks(header), [(5, ["f();"])])

    def test_what_is_no_block_is_refused(self):
        for text, message in (("/// @code\n/// f();\n", "shown.h:1: there is no @endcode"),
                              ("/// @code f(); @endcode\n", "shown.h:1: there is something behind @code"),
                              ("/// @code\n/// f();\n/// @endcode And then\n", "shown.h:3: there is something behind"),
                              ("/// See: @code\n", "shown.h:1: @code and @endcode need a line")):
            with self.subTest(text), tempfile.TemporaryDirectory() as folder:
                with self.assertRaises(BadHeader) as refusal:
                    blocks(write(folder, text))
                self.assertIn(message, str(refusal.exception))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
