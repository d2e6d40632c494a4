# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Calls an endpoint with the client that the documentation shows, and nothing of the library.

test_ipc_client.py HOST DOCUMENT, where HOST publishes the test service.
"""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest
import unittest.mock

from own_folder import setUpModule  # called by unittest

HOST, DOCUMENT = sys.argv[1:]


def documented_client():
    """The functions of the document's Python text."""
    with open(DOCUMENT, encoding="utf-8") as document:
        code = re.search(r"```python\n(.*?)```", document.read(), re.DOTALL).group(1)
    lines = [line for line in code.splitlines() if line]
    assert len(lines) <= 20, "the document announces twenty lines"
    names = {}
    exec(compile(code, DOCUMENT, "exec"), names)
    return names["endpoint"], names["call"]


class PythonClient(unittest.TestCase):
    def setUp(self):
        service = os.getpid() % 2000000 * 1000
        self.host = subprocess.Popen(
            [HOST, str(service)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.name = self.host.stdout.readline().strip()
        self.assertEqual(self.name, f"vxipc-{service}")
        self.service = service
        self.endpoint, self.documented_call = documented_client()
        self.stream = self.endpoint(service)

    def tearDown(self):
        self.stream.close()
        self.host.stdin.close()
        self.host.stdout.close()
        self.assertEqual(self.host.wait(), 0)

    def call(self, method, *arguments):
        return self.documented_call(self.stream, method, *arguments)

    def test_calls_methods(self):
        self.assertEqual(
            self.call("echo", "Jägergrün"), {"jsonrpc": "2.0", "id": 1, "result": "Jägergrün"})
        self.assertEqual(self.call("scale", 3)["result"], 30)
        self.assertEqual(self.call("scale", 3, 4)["result"], 12)
        self.assertEqual(self.call("note", "a")["result"], None)
        self.assertEqual(self.call("reversed", "AAEC")["result"], "AgEA")
        self.assertEqual(self.call("wideEcho", "-9223372036854775808")["result"],
                         "-9223372036854775808")
        self.assertEqual(self.call("recordEcho", {"name": "n", "panels": ["p"]})["result"],
                         {"name": "n", "count": -1, "width": -1, "isLoaded": False, "image": "",
                          "panels": ["p"], "heats": []})

    def test_calls_by_name(self):
        request = {"jsonrpc": "2.0", "id": "x", "method": "scale",
                   "params": {"factor": 5, "value": 2}}
        self.stream.write(json.dumps(request).encode() + b"\n")
        self.assertEqual(json.loads(self.stream.readline()),
                         {"jsonrpc": "2.0", "id": "x", "result": 10})

    def test_discovers_the_methods(self):
        document = self.call("rpc.discover")["result"]
        self.assertEqual(document["info"]["title"], self.name)
        self.assertEqual(document["info"]["x-process"], self.host.pid)
        methods = {method["name"]: method for method in document["methods"]}
        self.assertEqual([each["name"] for each in methods["scale"]["params"]],
                         ["value", "factor"])
        self.assertNotIn("deleteLater", methods)

    def test_reads_errors(self):
        self.assertEqual(self.call("deleteLater")["error"]["code"], -32601)
        error = self.call("scale", "x")["error"]
        self.assertEqual(error["code"], -32602)
        self.assertEqual(error["data"]["argument"], "value")
        self.stream.write(b"garbage\n")
        self.assertEqual(json.loads(self.stream.readline())["error"]["code"], -32700)
        self.assertEqual(self.call("scale", 1)["result"], 10)

    def test_refuses_what_may_belong_to_others(self):
        folder = os.environ["XDG_RUNTIME_DIR"]
        for path, mode, restored in [
                (folder, 0o703, 0o700), (folder, 0o730, 0o700),
                (f"{folder}/{self.name}", 0o602, 0o600), (f"{folder}/{self.name}", 0o620, 0o600)]:
            with self.subTest(path=path, mode=mode):
                os.chmod(path, mode)
                with self.assertRaises(PermissionError):
                    self.endpoint(self.service)
                os.chmod(path, restored)
        if os.geteuid() == 0:
            for path in (folder, f"{folder}/{self.name}"):
                with self.subTest(path=path):
                    os.chown(path, 65534, 65534)
                    with self.assertRaises(PermissionError):
                        self.endpoint(self.service)
                    os.chown(path, 0, 0)
        self.endpoint(self.service).close()

    def test_ignores_a_relative_folder(self):
        with tempfile.TemporaryDirectory() as temporary:
            environment = {**os.environ, "XDG_RUNTIME_DIR": "relative", "TMPDIR": temporary}
            with subprocess.Popen([HOST, str(self.service)], stdin=subprocess.PIPE,
                                  stdout=subprocess.PIPE, text=True, env=environment) as host:
                self.assertEqual(host.stdout.readline().strip(), self.name)
                with unittest.mock.patch.dict(os.environ, environment):
                    stream = self.endpoint(self.service)
                self.assertEqual(self.documented_call(stream, "scale", 1)["result"], 10)
                stream.close()
                host.stdin.close()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
