# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What the tests of the agent's metrics share: an agent on virtual printers, and waiting."""
import json
import pathlib
import re
import subprocess
import time
import urllib.request

# In seconds; ends what hangs.
LIMIT = 120


def wait_for(look, what):
    """Returns what `look` does, once that is something."""
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        result = look()
        if result:
            return result
        time.sleep(0.05)
    raise AssertionError(f"{what} did not happen within {LIMIT} s")


class Process:
    """A program that says on its output, which is kept in a file, at which port it listens."""

    def __init__(self, folder, name, command, address, prepare=None):
        self.log = pathlib.Path(folder) / f"{name}.log"
        with self.log.open("wb") as output:
            self.process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=output,
                                            stderr=subprocess.STDOUT, preexec_fn=prepare)

        def port():
            if self.process.poll() is not None:
                raise AssertionError(f"{name} has ended:\n{self.log.read_text()}")
            found = re.search(address, self.log.read_text())
            return int(found.group(1)) if found else None
        try:
            self.port = wait_for(port, f"the start of {name}")
        except BaseException:
            self.kill()
            raise

    def get(self, path, headers=None):
        request = urllib.request.Request(f"http://127.0.0.1:{self.port}{path}", headers=headers or {})
        with urllib.request.urlopen(request, timeout=LIMIT) as answer:
            return answer.read().decode("utf-8")

    def stop(self):
        self.process.terminate()
        try:
            self.process.wait(LIMIT)
        finally:
            self.kill()

    def kill(self):
        self.process.kill()
        self.process.wait()


class Agent(Process):
    """Serves the metrics of the built-in fleet."""

    def __init__(self, folder, program, prepare=None, **metrics):
        config = pathlib.Path(folder) / "agent.json"
        config.write_text(json.dumps({"site": "plant-1", "metrics": {"listen": "127.0.0.1:0", **metrics}}))
        super().__init__(folder, "agent", [program, "run", "--config", str(config)],
                         r"http://127\.0\.0\.1:(\d+)/metrics", prepare)
