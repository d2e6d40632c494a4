# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The packaged agent as a service of Wine's service manager, with a real broker outside of Wine.

Usage: test_agent_service.py ZIP ADD_PRINTER TRUST_AUTHORITY

In a new Wine prefix, with nothing but the package's DLLs and Wine's own.
"""
import json
import os
import pathlib
import random
import re
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.append(str(pathlib.Path(__file__).resolve().parents[2] / "support"))
from ports import free_ports  # noqa: E402 (the folder is added above)

ZIP, ADD_PRINTER, TRUST_AUTHORITY = sys.argv[1:]
# In seconds; ends what hangs.
LIMIT = 120
HOST = "PC 1"
ROOT = f"vxprint/v1/bremen/{HOST}/"
PASSWORD = "correct horse"
PRINTERS = [("Shipping Desk", "Stratamark AlderMax", "USB001"),
            ("Lager/Süd", "Stratamark CedarMax", "USB002")]
TIMES = ("lastReport", "goneSince")
TOPICS = {"Shipping Desk": ROOT + "printer/Shipping Desk", "Lager/Süd": ROOT + "printer/Lager%2FSüd"}


def windows_path(path):
    return "Z:" + str(path).replace("/", "\\")


def program(name):
    """Some systems keep programs for administrators off other users' PATH."""
    found = shutil.which(name, path=os.environ["PATH"] + ":/usr/sbin")
    assert found, f"{name} is not installed; scripts/test-windows installs it"
    return found


def until(condition, describe):
    deadline = time.monotonic() + LIMIT
    while not condition():
        if time.monotonic() > deadline:
            raise AssertionError(describe())
        time.sleep(0.05)


def without_times(reading):
    """What two programs see alike, whenever each has begun to look."""
    return {key: value for key, value in reading.items() if key not in TIMES}


class Authority:
    """Signs certificates."""

    def __init__(self, folder, name):
        self.folder, self.name = folder, name
        self.file = folder / f"{name}.pem"
        self.openssl("req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                     "-days", "2", "-subj", f"/CN={name}", "-keyout", folder / f"{name}.key",
                     "-out", self.file)

    def certificate_for(self, host):
        request, key, cert = (self.folder / f"{host}.{end}" for end in ("csr", "key", "crt"))
        names = self.folder / f"{host}.names"
        names.write_text(f"subjectAltName=DNS:{host}\n", encoding="ascii")
        self.openssl("req", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes",
                     "-subj", f"/CN={host}", "-keyout", key, "-out", request)
        self.openssl("x509", "-req", "-in", request, "-CA", self.file, "-CAkey",
                     self.folder / f"{self.name}.key", "-CAcreateserial", "-days", "1", "-extfile",
                     names, "-out", cert)
        return cert, key

    @staticmethod
    def openssl(*arguments):
        subprocess.run((program("openssl"), *arguments), check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)


class Broker:
    """mosquitto over TLS, for one user with a password."""

    def __init__(self, folder, authority):
        self.folder, self.authority, self.process = folder, authority, None
        self.port = free_ports(1)[0]
        cert, key = authority.certificate_for("localhost")
        users = folder / "users"
        subprocess.run((program("mosquitto_passwd"), "-b", "-c", users, "agent", PASSWORD), check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        users.chmod(0o600)
        self.configuration = folder / "mosquitto.conf"
        user = subprocess.run(("id", "-un"), check=True, capture_output=True, text=True).stdout.strip()
        self.configuration.write_text(
            f"user {user}\nlistener {self.port} 127.0.0.1\ncertfile {cert}\nkeyfile {key}\n"
            f"allow_anonymous false\npassword_file {users}\npersistence false\n"
            f"log_dest file {folder}/mosquitto.log\n", encoding="utf-8")
        self.log = folder / "mosquitto.log"

    def start(self):
        self.process = subprocess.Popen((program("mosquitto"), "-c", self.configuration),
                                        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                                        stderr=subprocess.DEVNULL)
        until(self.accepts, lambda: f"mosquitto does not listen: {self.log.read_text()}")

    def accepts(self):
        with socket.socket() as probe:
            return probe.connect_ex(("127.0.0.1", self.port)) == 0

    def stop(self):
        if self.process:
            self.process.kill()
            self.process.wait()
            self.process = None


class Reader:
    """What a reader of the whole site receives, from its start on."""

    def __init__(self, folder, broker):
        self.output = tempfile.NamedTemporaryFile(dir=folder, prefix="reader-")
        self.process = subprocess.Popen(
            (program("mosquitto_sub"), "-h", "localhost", "-p", str(broker.port), "--cafile",
             broker.authority.file, "-u", "agent", "-P", PASSWORD, "-q", "1", "-t", "vxprint/v1/#",
             "-F", "%j"),
            stdin=subprocess.DEVNULL, stdout=self.output, stderr=subprocess.STDOUT)

    def close(self):
        self.process.kill()
        self.process.wait()
        self.output.close()

    def payloads(self, topic):
        lines = pathlib.Path(self.output.name).read_text(encoding="utf-8").split("\n")[:-1]
        messages = [json.loads(line) for line in lines if line.startswith("{")]
        return [message["payload"] for message in messages if message["topic"] == topic]

    def latest(self, topic):
        return (self.payloads(topic) or [None])[-1]

    def shown(self):
        return pathlib.Path(self.output.name).read_text(encoding="utf-8")


class AgentAsAService(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        scratch = tempfile.TemporaryDirectory(prefix="vxagent-")
        cls.addClassCleanup(scratch.cleanup)
        cls.scratch = pathlib.Path(scratch.name)
        shutil.unpack_archive(ZIP, cls.scratch / "unpacked")
        (cls.package,) = (cls.scratch / "unpacked").iterdir()
        # As an administrator would have them, whatever the umask is.
        for folder in (cls.scratch, cls.scratch / "unpacked", cls.package, cls.package / "bin"):
            folder.chmod(0o755)
        cls.agent = cls.package / "bin" / "vxprintagent.exe"
        cls.agent.chmod(0o755)

        prefix = cls.scratch / "prefix"
        prefix.mkdir()
        # Wine does not keep the event log but prints it, on the standard error of whatever has
        # started its service manager.
        cls.event_log = cls.scratch / "event.log"
        cls.environment = {**os.environ, "WINEPREFIX": str(prefix), "WINEPATH": "",
                           "WINEDEBUG": "-all,+eventlog", "WINEDLLOVERRIDES": "mscoree,mshtml=",
                           "LC_ALL": "C.UTF-8"}
        cls.addClassCleanup(cls.end_wine)
        cls.run_quietly("wine", "wineboot", "-i")
        cls.run_quietly("wineserver", "-w")
        cls.start_wine()
        for printer in PRINTERS:
            cls.wine(ADD_PRINTER, *printer)
        cls.authority = Authority(cls.scratch, "authority")

    @classmethod
    def start_wine(cls):
        cls.run_quietly("wineserver", "-p")
        with open(cls.event_log, "ab") as log:
            subprocess.run(("wine", "cmd", "/c", "exit"), env=cls.environment, check=True,
                           stdin=subprocess.DEVNULL, stdout=log, stderr=log, timeout=LIMIT)
        # Wine starts no service for others while it starts its own.
        until(lambda: re.search("success|already", cls.wine("net", "start", "Spooler", expected=None)),
              lambda: "Wine does not start its print spooler: "
                      + cls.wine("net", "start", "Spooler", expected=None))

    @classmethod
    def restart_wine(cls):
        cls.end_wine()
        cls.start_wine()

    @classmethod
    def run_quietly(cls, *command):
        subprocess.run(command, env=cls.environment, check=False, timeout=LIMIT,
                       stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    @classmethod
    def end_wine(cls):
        cls.run_quietly("wineserver", "-k")
        cls.run_quietly("wineserver", "-w")

    @classmethod
    def wine(cls, *command, expected=0):
        """Runs a Windows program and returns what it printed. The output is a file, because a service
        that is started on the way keeps a pipe open."""
        with tempfile.TemporaryFile(dir=cls.scratch) as output:
            status = subprocess.run(("wine", *map(str, command)), env=cls.environment, check=False,
                                    stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                                    timeout=LIMIT).returncode
            output.seek(0)
            text = output.read().decode("utf-8", "replace").replace("\r\n", "\n")
        if expected is not None and status != expected:
            raise AssertionError(f"{command}: exit status {status}\n{text}")
        return text

    def setUp(self):
        folder = tempfile.TemporaryDirectory(dir=self.scratch)
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.folder.chmod(0o755)
        self.broker = Broker(self.folder, self.authority)
        self.addCleanup(self.broker.stop)
        self.config = self.folder / "agent.json"
        self.password = self.write("password.txt", PASSWORD + "\n", 0o600)
        self.write_config()
        self.addCleanup(self.uninstall)

    def write(self, name, text, mode=0o644):
        file = self.folder / name
        file.write_text(text, encoding="utf-8")
        file.chmod(mode)
        return file

    def write_config(self, **mqtt):
        keys = {"url": f"mqtts://localhost:{self.broker.port}", "username": "agent",
                "passwordFile": "password.txt", "caFile": windows_path(self.authority.file), **mqtt}
        self.write("agent.json", json.dumps({
            "site": "bremen", "host": HOST, "dataFolder": windows_path(self.folder / "data"),
            "mqtt": {key: value for key, value in keys.items() if value}}, indent=1))

    def uninstall(self):
        if "vxprintagent" in self.wine("sc", "query", "vxprintagent", expected=None):
            self.wine(self.agent, "uninstall")

    def install(self):
        return self.wine(self.agent, "install", "--config", windows_path(self.config))

    def read_site(self):
        reader = Reader(self.folder, self.broker)
        self.addCleanup(reader.close)
        return reader

    def state_is(self, reader, state):
        until(lambda: reader.latest(ROOT + "state") == state,
              lambda: f"the state is not {state}: {reader.shown()}\n{self.events()}\n"
                      + self.broker.log.read_text(encoding="utf-8", errors="replace"))

    def events(self):
        return self.event_log.read_text(encoding="utf-8", errors="replace")

    def event_after(self, place, pattern):
        """Waits for an entry of the event log that is made after there were `place` characters."""
        until(lambda: re.search(pattern, self.events()[place:]),
              lambda: f"{pattern!r} is not in the event log: {self.events()[place:]}")

    def service(self):
        text = self.wine("sc", "query", "vxprintagent")
        found = re.search(r"STATE *: (\d+).*WIN32_EXIT_CODE *: (\d+).*SERVICE_EXIT_CODE *: (\d+)",
                          text, re.DOTALL)
        self.assertTrue(found, text)
        return tuple(map(int, found.groups()))

    def is_in_state(self, state):
        return self.service()[0] == state

    def start(self):
        self.wine("net", "start", "vxprintagent")
        until(lambda: self.is_in_state(4), lambda: f"the service does not run: {self.events()}")

    def until_stopped(self):
        until(lambda: self.is_in_state(1), lambda: f"the service runs: {self.events()}")

    def process(self):
        """The number that the system outside of Wine knows the service by."""
        for folder in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                command = (folder / "cmdline").read_bytes()
                environment = (folder / "environ").read_bytes().split(b"\0")
            except OSError:
                continue
            if (b"vxprintagent.exe" in command and b"service" in command.split(b"\0")
                    and f"WINEPREFIX={self.environment['WINEPREFIX']}".encode() in environment):
                return int(folder.name)
        raise AssertionError("the service has no process")

    def test_publishes_over_tls_from_its_start_to_its_stop(self):
        self.broker.start()
        reader = self.read_site()
        self.install()
        self.start()
        self.state_is(reader, "online")
        for name, driver, _ in PRINTERS:
            until(lambda name=name: reader.latest(TOPICS[name]),
                  lambda name=name: f"{name} is not published: {reader.shown()}")
            reading = json.loads(reader.latest(TOPICS[name]))
            self.assertEqual((reading["name"], reading["driver"]), (name, driver))

        self.wine("net", "stop", "vxprintagent")

        self.state_is(reader, "offline")
        self.until_stopped()
        self.assertEqual(self.service(), (1, 0, 0))

    def test_event_log_says_what_the_service_sees(self):
        self.broker.start()
        place = len(self.events())
        self.install()
        self.start()
        self.event_after(place, r'the service has started as ')
        self.event_after(place, r'printer \\"Shipping Desk\\" \(Stratamark AlderMax\)')
        self.event_after(place, r'publishing to mqtts://localhost')
        self.wine("net", "stop", "vxprintagent")
        self.event_after(place, r'the service has stopped')
        self.assertNotIn(PASSWORD, self.events())

    def test_broker_hears_of_a_service_that_is_killed(self):
        self.broker.start()
        reader = self.read_site()
        self.install()
        self.start()
        self.state_is(reader, "online")

        # Wine's service manager does not notice, and would wait for the end of the service for ever.
        self.addCleanup(self.restart_wine)
        os.kill(self.process(), signal.SIGKILL)

        self.state_is(reader, "offline")

    def test_broker_that_comes_back_gets_everything_again(self):
        self.broker.start()
        place = len(self.events())
        self.install()
        self.start()
        reader = self.read_site()
        self.state_is(reader, "online")

        self.broker.stop()
        self.event_after(place, r"warn:eventlog.*localhost")
        self.broker.start()

        again = self.read_site()
        self.state_is(again, "online")
        for name in TOPICS:
            until(lambda name=name: again.latest(TOPICS[name]),
                  lambda name=name: f"{name} is not published again: {again.shown()}")

    def test_broker_killed_fifty_times_ends_with_every_reading(self):
        self.broker.start()
        self.write_config(reconnectSeconds=1)
        self.install()
        self.start()
        chance = random.Random(4711)
        for kill in range(50):
            time.sleep(chance.random() / 5)
            self.broker.stop()
            if kill % 5 == 0:
                self.wine(ADD_PRINTER, f"Printer {kill}", "Stratamark AlderMax", f"USB1{kill:02}")
            time.sleep(chance.random() / 5)
            self.broker.start()

        snapshot = self.wine(self.package / "bin" / "vxprintmon.exe", "watch", "--json", "--for", "2")
        lines = [line for line in snapshot.splitlines() if '"event":"snapshot"' in line]
        readings = {reading["name"]: reading for reading in json.loads(lines[0])["printers"]}
        self.assertEqual(len(readings), len(PRINTERS) + 10)
        reader = self.read_site()
        self.state_is(reader, "online")
        for name, reading in readings.items():
            topic = TOPICS.get(name, f"{ROOT}printer/{name}")
            until(lambda topic=topic, reading=reading:
                  without_times(json.loads(reader.latest(topic) or "{}")) == without_times(reading),
                  lambda topic=topic, reading=reading:
                  f"{topic} is {reader.latest(topic)}, and not {reading}")

    def test_foreign_authority_is_not_trusted(self):
        self.broker.start()
        foreign = Authority(self.folder, "foreign")
        self.write_config(caFile=windows_path(foreign.file))
        reader = self.read_site()
        place = len(self.events())
        self.install()
        self.start()
        self.event_after(place, r"warn:eventlog.*certificate")
        self.assertTrue(self.is_in_state(4))
        self.assertIsNone(reader.latest(ROOT + "state"))

    def test_authority_that_windows_trusts_is_trusted(self):
        self.broker.start()
        self.write_config(caFile=None)
        reader = self.read_site()
        place = len(self.events())
        self.install()
        self.start()
        self.event_after(place, r"warn:eventlog.*certificate")
        self.assertIsNone(reader.latest(ROOT + "state"))

        self.wine(TRUST_AUTHORITY, windows_path(self.authority.file))

        self.state_is(reader, "online")

    def test_wrong_configuration_is_in_the_event_log(self):
        self.install()
        place = len(self.events())
        self.write("agent.json", '{\n"site": "bremen",\n"mqt": {}}')
        self.wine("net", "start", "vxprintagent", expected=None)
        self.event_after(place, r"err:eventlog.*agent\.json:3: mqt: unknown key")
        self.until_stopped()
        specific_error = 1066
        self.assertEqual(self.service(), (1, specific_error, 1))

    def test_secret_that_others_may_read_is_refused(self):
        self.install()
        place = len(self.events())
        self.password.chmod(0o644)
        self.wine("net", "start", "vxprintagent", expected=None)
        self.event_after(place, r"err:eventlog.*agent\.json:\d+: mqtt\.passwordFile: others may use")
        self.until_stopped()
        self.assertNotIn(PASSWORD, self.events())

    def test_uninstall_stops_the_service(self):
        self.broker.start()
        reader = self.read_site()
        self.install()
        self.start()
        self.state_is(reader, "online")

        self.wine(self.agent, "uninstall")

        self.state_is(reader, "offline")
        self.wine("sc", "query", "vxprintagent", expected=None)
        missing = self.wine(self.agent, "uninstall", expected=1)
        self.assertIn("not installed", missing)

    def test_service_that_has_just_been_started_can_be_removed(self):
        self.install()
        self.wine("net", "start", "vxprintagent")
        self.wine(self.agent, "uninstall")


if __name__ == "__main__":
    assert "WINEPREFIX" in os.environ, "WINEPREFIX is not set; scripts/test-windows sets it"
    unittest.main(argv=sys.argv[:1])
