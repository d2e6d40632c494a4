# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Builds the wheel twice, installs it into a folder and runs the example from there.

Usage: test_wheel.py ROOT LIBRARY CATALOGUE VERSION
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest
import zipfile

ROOT, LIBRARY, CATALOGUE, VERSION = (sys.argv.pop(1) for _ in range(4))


def build_wheel(folder, **variables):
    path = subprocess.run(
        [f"{ROOT}/scripts/python-wheel", folder],
        env={**os.environ, **variables},
        stdout=subprocess.PIPE,
        universal_newlines=True,
        check=True,
    ).stdout.strip()
    return pathlib.Path(path)


class Wheel(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.path = pathlib.Path(self.folder.name)

    def test_same_sources_give_the_same_bytes(self):
        before = subprocess.run(["git", "-C", ROOT, "status", "--short"], stdout=subprocess.PIPE, check=False)
        one = build_wheel(self.path / "one", SOURCE_DATE_EPOCH="1700000000", TZ="UTC")
        other = build_wheel(self.path / "other", SOURCE_DATE_EPOCH="1700000000", TZ="Asia/Tokyo")
        self.assertEqual(one.read_bytes(), other.read_bytes())
        later = build_wheel(self.path / "later", SOURCE_DATE_EPOCH="1800000000")
        self.assertNotEqual(one.read_bytes(), later.read_bytes())
        # Nothing is left beside the sources.
        after = subprocess.run(["git", "-C", ROOT, "status", "--short"], stdout=subprocess.PIPE, check=False)
        self.assertEqual(before.stdout, after.stdout)

    def test_installed_wheel_runs_the_example(self):
        wheel = build_wheel(self.path / "wheel")
        self.assertEqual(wheel.name, f"vxprinterstatus-{VERSION}-py3-none-any.whl")
        # A pure wheel is installed by unpacking it.
        with zipfile.ZipFile(wheel) as archive:
            names = archive.namelist()
            archive.extractall(self.path / "site")
        self.assertIn("vxprinterstatus/py.typed", names)
        self.assertTrue(any(name.endswith("LICENSE") for name in names), names)
        result = subprocess.run(
            [sys.executable, "-B", f"{ROOT}/examples/python_host/python_host.py"]
            + ["--catalogue", CATALOGUE, "--changes", "3"],
            env={
                **os.environ,
                "PYTHONPATH": str(self.path / "site"),
                "VXPRINTERSTATUS_LIBRARY": LIBRARY,
                "VX_VIRTUAL_FLEET": "built-in",
                "VX_VIRTUAL_SPEED": "20",
                "LC_ALL": "C.UTF-8",
            },
            cwd=self.path,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            universal_newlines=True,
            check=False,
        )
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        lines = result.stdout.splitlines()
        self.assertEqual(len(lines), 5 + 3, result.stdout)
        self.assertIn("Branch Office: Printer Is Remotely Connected", lines[0])
        self.assertIn("supply not known", lines[0])
        self.assertTrue(any("White Vinyl" in line or "Yellow Vinyl" in line for line in lines), lines)

    def test_installed_wheel_is_typed(self):
        wheel = build_wheel(self.path / "wheel")
        with zipfile.ZipFile(wheel) as archive:
            archive.extractall(self.path / "site")
        result = subprocess.run(
            ["mypy", "--strict", "--python-version", "3.9", "--cache-dir", str(self.path / "cache")]
            + [f"{ROOT}/examples/python_host/python_host.py", str(self.path / "site/vxprinterstatus")],
            env={**os.environ, "MYPYPATH": str(self.path / "site")},
            cwd=self.path,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            universal_newlines=True,
            check=False,
        )
        self.assertEqual(result.returncode, 0, result.stdout)


if __name__ == "__main__":
    unittest.main(verbosity=2)
