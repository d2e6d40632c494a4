# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""A real broker and real agents on virtual printers, for tests of what shows a site."""
import json
import os
import socket
import subprocess
import time

# In seconds; ends what hangs.
LIMIT = 120


def printer(name, status="1"):
    return {"name": name, "driver": "Stratamark AlderMax",
            "values": {"StatusCode": status, "SupplyIdentifier": "000000641000030000A7",
                       "Mileage": 15240, "Ribbon1Identifier": 2001, "Ribbon1Mileage": 96013,
                       "Ribbon2Identifier": 2004, "Ribbon2Mileage": 42006}}


class Broker:
    """A mosquitto on a free port, the same each time that it is started."""

    def __init__(self, program, folder, settings=()):
        self.program = program
        self.configuration = os.path.join(folder, "mosquitto.conf")
        self.settings = list(settings) or ["allow_anonymous true"]
        self.port = 0
        self.process = None

    def start(self):
        for _ in range(10):
            if self.port == 0:
                with socket.create_server(("127.0.0.1", 0)) as free:
                    self.port = free.getsockname()[1]
            with open(self.configuration, "w", encoding="utf-8") as file:
                # It would give up root's rights, and could not read the files of the test then.
                file.write("\n".join(["user root", f"listener {self.port} 127.0.0.1",
                                      *self.settings]) + "\n")
            self.process = subprocess.Popen((self.program, "-c", self.configuration),
                                            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            if self.accepts():
                return
            self.kill()
            self.port = 0
        raise AssertionError("the broker does not start")

    def accepts(self):
        deadline = time.monotonic() + LIMIT
        while self.process.poll() is None and time.monotonic() < deadline:
            try:
                socket.create_connection(("127.0.0.1", self.port), 1).close()
                return True
            except OSError:
                time.sleep(0.01)
        return False

    def kill(self):
        if self.process:
            self.process.kill()
            self.process.wait()

    def url(self, site=""):
        return f"mqtt://127.0.0.1:{self.port}/{site}"


class Agent:
    """An agent on a fleet of virtual printers."""

    def __init__(self, program, folder, broker, host, *printers, site="bremen", **fleet):
        folder = os.path.join(folder, host)
        os.mkdir(folder)
        self.command = (program, "run", "--config", os.path.join(folder, "agent.json"),
                        "--virtual", os.path.join(folder, "fleet.json"))
        with open(self.command[3], "w", encoding="utf-8") as file:
            json.dump({"site": site, "host": host, "dataFolder": folder,
                       "mqtt": {"url": f"mqtt://127.0.0.1:{broker.port}", "reconnectSeconds": 1}},
                      file)
        with open(self.command[5], "w", encoding="utf-8") as file:
            json.dump({"printers": printers, **fleet}, file)
        self.process = None
        self.start()

    def start(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)

    def kill(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
