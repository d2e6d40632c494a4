# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Hosts of the status service, and services that misbehave, for tests of clients."""
import json
import os
import socket
import subprocess
import sys
import tempfile
import threading

sys.path.append(os.path.join(os.path.dirname(__file__), "..", "platform"))
from own_folder import setUpModule  # called by unittest, in the module that imports it from here


def fleet():
    """Printers of which one changes all the time and another comes and goes, for ten minutes."""
    timeline = []
    for tenth in range(1, 6000):
        event = {"at": tenth / 10, "printer": "Packing",
                 "values": {"StatusCode": str(tenth % 4 + 1)}}
        timeline.append(event)
        if tenth % 10 == 0:
            timeline.append({"at": tenth / 10, "add": visitor()} if tenth % 20 == 0 else
                            {"at": tenth / 10, "printer": "Visitor", "remove": True})
    return {
        "printers": [
            {"name": "Packing", "driver": "Stratamark BirchMax", "port": "USB001",
             "values": {"StatusCode": "1", "SupplyIdentifier": "000001F41000420000A7",
                        "Mileage": 6350}},
            {"name": "F\u00e4r\u202e", "driver": "Stratamark CedarMax", "attributes": ["network"]},
            visitor(),
        ],
        "defaultPrinter": "Packing",
        "timeline": timeline,
    }


def visitor():
    return {"name": "Visitor", "driver": "Stratamark BirchMax", "port": "USB002"}


class Host:
    """A process that publishes the service in the folder of the test."""

    def __init__(self, program):
        with tempfile.NamedTemporaryFile("w", suffix=".json", delete=False) as file:
            json.dump(fleet(), file)
        try:
            self.process = subprocess.Popen(
                [program], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                stderr=subprocess.DEVNULL, text=True,  # the log of the library
                env={**os.environ, "VX_VIRTUAL_FLEET": file.name, "LC_ALL": "C.UTF-8"})
            self.name = self.process.stdout.readline().strip()
        finally:
            os.unlink(file.name)

    def end(self):
        """Ends the process as a user would."""
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()


class Impostor:
    """Sends the same bytes to every client, whatever it asks."""

    def __init__(self, service, content):
        self.path = os.path.join(os.environ["XDG_RUNTIME_DIR"], f"vxipc-{service}")
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.bind(self.path)
        os.chmod(self.path, 0o600)
        self.socket.listen()
        self.content = content
        self.is_ending = False
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def serve(self):
        while True:
            try:
                client, _ = self.socket.accept()
                with client:
                    client.recv(1 << 16)
                    client.sendall(self.content)
                    while client.recv(1 << 16):
                        pass
            except OSError:
                if self.is_ending:
                    return

    def end(self):
        self.is_ending = True
        self.socket.shutdown(socket.SHUT_RDWR)
        # The next socket may have the number of this one, and a thread that goes on would accept its clients.
        self.thread.join()
        self.socket.close()
        os.unlink(self.path)


def check_program(test, command, gone, patience):
    """Checks that a client's program prints the printers and what changes, until nobody reads it.
    `gone` is its line about a printer that is gone."""
    program = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    test.addCleanup(program.wait)
    test.addCleanup(program.stderr.close)
    test.addCleanup(program.kill)
    lines = set()
    for line in program.stdout:
        test.assertTrue(line.isascii(), line)
        lines.add(line.split(",")[0].strip())
        if {'"Packing"', '"F\\u00e4r\\u202e"', gone} <= lines:
            break
    program.stdout.close()
    test.assertEqual(program.wait(patience), 0)
    test.assertEqual(program.stderr.read(), "")


REFUSALS = [
    (b"hello\n", "not JSON"),
    (b"[]\n", "not JSON-RPC 2.0"),
    (b"{}\n", "not JSON-RPC 2.0"),
    (b"\xff\xfe\n", "not JSON"),
    (b"x" * (9 << 20), "without an end"),
    (b'{"jsonrpc":"2.0","id":null,"error":{"code":-32001,"message":"Too many clients"}}\n',
     "Too many clients (-32001)"),
]
