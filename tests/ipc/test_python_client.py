# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Calls the endpoints of a host application without the library, with the client that the documentation
shows.

test_python_client.py HOST ROLLDB CATALOGUE DOCUMENT

The host opens the database beside itself, so the test copies the host into its own folder.
"""
import csv
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

HOST, ROLLDB, CATALOGUE, DOCUMENT = sys.argv[1:]
SUPPLIES, PRINTERS, PRINT_QUEUE = range(3)


def documented_client():
    with open(DOCUMENT, encoding="utf-8") as document:
        code = re.search(r"```python\n(.*?)```", document.read(), re.DOTALL).group(1)
    names = {}
    exec(compile(code, DOCUMENT, "exec"), names)
    return names["endpoint"], names["call"]


def rows(table):
    with open(os.path.join(CATALOGUE, table), encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))


class PythonClient(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        host = shutil.copy(HOST, cls.folder.name)
        subprocess.run([ROLLDB, "build", CATALOGUE, os.path.join(cls.folder.name, "roll.db")],
                       check=True, stdout=subprocess.DEVNULL)
        # A folder of its own for the endpoints too: the names are those of any other host's.
        os.environ["XDG_RUNTIME_DIR"] = cls.folder.name
        cls.host = subprocess.Popen(
            [host, "CedarMax"], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
            env={**os.environ, "LC_ALL": "C.UTF-8", "LANGUAGE": "de"})
        cls.names = [cls.host.stdout.readline().strip() for _ in range(3)]

    @classmethod
    def tearDownClass(cls):
        cls.host.stdin.close()
        cls.host.stdout.close()
        status = cls.host.wait()
        cls.folder.cleanup()
        assert status == 0, status

    def setUp(self):
        self.endpoint, self.call = documented_client()

    def ask(self, service, method, *arguments):
        with self.endpoint(service) as stream:
            answer = self.call(stream, method, *arguments)
        self.assertNotIn("error", answer)
        return answer["result"]

    def test_finds_the_endpoints(self):
        self.assertEqual(self.names, ["vxipc-0", "vxipc-1", "vxipc-2"])

    def test_reads_colour_names(self):
        german = {colour["colour"]: colour["de"] for colour in rows("colours.csv")}
        supplies = rows("supplies.csv")
        self.assertGreaterEqual(len(supplies), 40)
        with self.endpoint(SUPPLIES) as stream:
            for supply in supplies:
                answer = self.call(stream, "supplyColorName", supply["sku"], "CedarMax")
                self.assertEqual(answer["result"], german[supply["colour"]])

    def test_discovers_the_methods(self):
        for service, method, count in [(SUPPLIES, "supplyColorName", 43),
                                       (PRINTERS, "getPrinterStatus", 81),
                                       (PRINT_QUEUE, "getJobInfo", 9)]:
            document = self.ask(service, "rpc.discover")
            self.assertEqual(document["info"]["x-process"], self.host.pid)
            methods = [each["name"] for each in document["methods"]]
            self.assertIn(method, methods)
            self.assertEqual(len(methods), count)

    def test_reads_a_record(self):
        supply = rows("supplies.csv")[0]
        record = self.ask(SUPPLIES, "supplyInformationBySKUs", supply["sku"], [], "CedarMax")
        self.assertEqual(len(record), 37)
        self.assertEqual(record["supplySku"], supply["sku"])
        self.assertEqual(record["supplyWidth"], float(supply["width"]))

    def test_tells_and_asks_a_status(self):
        self.assertIsNone(self.ask(PRINTERS, "onStatusChanged", 7, "CedarMax"))
        self.assertEqual(self.ask(PRINTERS, "getPrinterStatus", "CedarMax"), 7)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], warnings="ignore")
