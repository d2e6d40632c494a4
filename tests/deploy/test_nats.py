# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""deploy/nats with three real servers: they keep one state, and what must be refused is refused.

test_nats.py
"""
import base64
import crypt
import os
import pathlib
import queue
import shutil
import socket
import ssl
import sys
import tempfile
import unittest

from shipped import DEPLOY, PASSWORDS, with_changes  # first: it adds the path of brokers

from brokers import Server, find_program, free_ports, until
from certificates import SERVER_HOSTS, Authority
from mqtt_clients import Client, Refused, Silent

# In seconds; ends what hangs. The servers choose anew who keeps what when one is away, or too slow.
LIMIT = 900
ORIGIN = "https://printers.example"


class NatsCluster:
    """The three servers of deploy/nats on one machine."""

    def __init__(self, folder, authority, origin=ORIGIN, more_users="", more_mqtt="", password_cost=4):
        self.authority = authority
        certificate, key = authority.issue("server", "broker", SERVER_HOSTS)
        self.certificate = certificate
        ports = [free_ports(5) for _ in range(3)]
        self.mqtt = [each[0] for each in ports]
        self.websocket = [each[1] for each in ports]
        self.routes = [each[2] for each in ports]
        self.servers = []
        for number in range(3):
            home = folder / f"broker-{number + 1}"
            home.mkdir()
            _, _, _, client, monitor = ports[number]
            changes = {
                '"127.0.0.1:4222"': f'"127.0.0.1:{client}"', '"127.0.0.1:8222"': f'"127.0.0.1:{monitor}"',
                '"0.0.0.0:8883"': f'"127.0.0.1:{self.mqtt[number]}"',
                '"0.0.0.0:8443"': f'"127.0.0.1:{self.websocket[number]}"',
                '"0.0.0.0:6222"': f'"127.0.0.1:{self.routes[number]}"',
                "stream_replicas: 3": f"stream_replicas: 3\n{more_mqtt}",
                "/etc/nats/tls/server.crt": certificate, "/etc/nats/tls/server.key": key,
                "/etc/nats/tls/ca.crt": authority.file, ORIGIN: origin, '"/var/lib/nats"': f'"{home}/store"'}
            for other in range(3):
                changes[f"broker-{other + 1}.example:6222"] = f"127.0.0.1:{self.routes[other]}"
            (home / "common.conf").write_text(with_changes((DEPLOY / "nats/common.conf").read_text(), changes))
            shutil.copy(DEPLOY / "nats" / f"broker-{number + 1}.conf", home)
            users = (DEPLOY / "nats/users.conf").read_text()
            (home / "users.conf").write_text(with_changes(users, {"users: [": f"users: [\n{more_users}"}))
            example = (DEPLOY / "nats/passwords.conf.example").read_text()
            hashes = {}
            for user, password in PASSWORDS.items():
                variable = f'{user.upper().replace("-", "_")}: '
                hashes[f'\n{variable}"$2b$11$replace.this.by.the.output.of.mkpasswd"'] = \
                    f'\n{variable}"{crypt.crypt(password, crypt.mksalt(crypt.METHOD_BLOWFISH, rounds=2 ** password_cost))}"'
            (home / "passwords.conf").write_text(with_changes(example, hashes))
            self.servers.append((home, monitor))
        # None of them is ready before it sees another.
        self.servers = [self._start(number, *server) for number, server in enumerate(self.servers)]
        self.wait_until_ready()

    def _start(self, number, home, _monitor):
        return Server([find_program("nats-server"), "-c", str(home / f"broker-{number + 1}.conf")],
                      [self.mqtt[number], self.websocket[number]], str(home / "log"))

    def wait_until_ready(self):
        """A cluster that is just starting has nobody yet who keeps sessions, and refuses clients."""
        def is_ready(number):
            try:
                Client(self.mqtt[number], self.authority.file, "page", PASSWORDS["page"]).close()
                return True
            except (Refused, Silent):
                return False
        for number in range(3):
            until(lambda number=number: is_ready(number),
                  f"server {number + 1} takes clients", LIMIT)

    def close(self):
        for server in self.servers:
            server.close()


class NatsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-nats-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.authority = Authority(cls.folder / "ca")
        cls.foreign = Authority(cls.folder / "foreign")
        cls.cluster = NatsCluster(cls.folder, cls.authority)
        cls.addClassCleanup(cls.cluster.close)

    def tearDown(self):
        print(self.id(), flush=True)

    def client(self, user, server=0):
        client = Client(self.cluster.mqtt[server], self.authority.file, user, PASSWORDS[user])
        self.addCleanup(client.close)
        return client

    def end(self, number=[0]):
        """A topic of plant-1 by which a reader knows that nothing comes before any more."""
        number[0] += 1
        topic = f"vxprint/v1/plant-1/end-{number[0]}/state"
        self.client("plant-1-agents").publish(topic, "end")
        return topic

    def until_end(self, reader):
        """What the reader was sent until now."""
        end = self.end()
        messages = []
        while (message := reader.next())[0] != end:
            messages.append(message)
        return messages

    def test_what_is_published_at_one_server_is_retained_at_another(self):
        topic = "vxprint/v1/plant-1/pc-1/printer/Shipping%201"
        reader = self.client("page", 1)
        self.assertTrue(reader.subscribe("vxprint/v1/+/+/printer/+"))
        self.client("plant-1-agents", 0).publish(topic, "reading", retain=True)
        self.assertEqual(reader.next(), (topic, "reading"))
        late = self.client("plant-1-page", 2)
        self.assertTrue(late.subscribe("vxprint/v1/plant-1/+/printer/+"))
        self.assertEqual(late.next(), (topic, "reading"))

    def test_an_acknowledged_state_survives_any_one_server(self):
        for killed in range(3):
            with self.subTest(killed=killed + 1):
                print(f"server {killed + 1}", flush=True)
                topic = f"vxprint/v1/plant-1/pc-{killed}/state"
                others = [number for number in range(3) if number != killed]
                self.assertTrue(self.client("plant-1-agents", killed).publish(topic, "before", retain=True))
                for number in range(3):
                    until(lambda number=number: self.reads(number, topic) == "before",
                          f"the first state at server {number + 1}", LIMIT)
                self.cluster.servers[killed].kill()
                for number in others:
                    until(lambda number=number: self.reads(number, topic) == "before",
                          f"the state at server {number + 1}", LIMIT)
                # Until the others have agreed who keeps what, a server ends the connection without an answer.
                until(lambda: self.publishes(others[0], topic, "after"), "publishing with one server away", LIMIT)
                self.cluster.servers[killed].start()
                self.cluster.wait_until_ready()
                # While one server was away, another may have acknowledged what it did not keep, and may hand out
                # what it had before (seen with nats-server 2.9.10). Agents publish again, and so does this.
                until(lambda: self.publishes(others[0], topic, "after")
                      and all(self.reads(number, topic) == "after" for number in range(3)),
                      "the new state at all servers", LIMIT)

    def reads(self, server, topic):
        """What the server has retained; None if it says nothing."""
        try:
            reader = Client(self.cluster.mqtt[server], self.authority.file, "page", PASSWORDS["page"])
        except (Refused, Silent):
            return None
        try:
            return reader.next(5)[1] if reader.subscribe(topic) else None
        except queue.Empty:
            return None
        finally:
            reader.close()

    def publishes(self, server, topic, payload):
        try:
            agent = Client(self.cluster.mqtt[server], self.authority.file, "plant-1-agents",
                           PASSWORDS["plant-1-agents"])
        except (Refused, Silent):
            return False
        try:
            return agent.publish(topic, payload, retain=True)
        finally:
            agent.close()

    def test_an_agent_publishes_below_its_own_site_only(self):
        reader = self.client("page")
        self.assertTrue(reader.subscribe("vxprint/v1/#"))
        for topic in ("vxprint/v1/plant-1/pc-1/state", "vxprint/v1/plant-20/pc/state", "vxprint/v1/*/pc/state",
                      "vxprint/v1/page/pc/state", "$MQTT/x", "other"):
            self.client("plant-2-agents").publish(topic, "forged", retain=True)
        own = "vxprint/v1/plant-2/pc-1/state"
        self.client("plant-2-agents").publish(own, "own")
        messages = self.until_end(reader)
        self.assertIn((own, "own"), messages)
        self.assertNotIn("forged", [payload for _, payload in messages])
        late = self.client("page")
        self.assertTrue(late.subscribe("vxprint/v1/#"))
        self.assertNotIn("forged", [payload for _, payload in self.until_end(late)])

    def test_an_agent_reads_nothing_of_another_site(self):
        self.client("plant-1-agents").publish("vxprint/v1/plant-1/pc-9/state", "online", retain=True)
        agent = self.client("plant-2-agents")
        for topic in ("#", "vxprint/v1/#", "vxprint/v1/+/+/state", "vxprint/v1/plant-1/pc-9/state"):
            self.assertFalse(self.client("plant-2-agents").subscribe(topic), topic)
        self.assertTrue(agent.subscribe("vxprint/v1/plant-2/+/state"))

    def test_a_page_publishes_nothing(self):
        reader = self.client("page")
        self.assertTrue(reader.subscribe("vxprint/v1/#"))
        for user in ("page", "plant-1-page"):
            for topic in ("vxprint/v1/plant-1/pc-1/state", f"vxprint/v1/{user}/x", "x"):
                self.client(user).publish(topic, "forged", retain=True)
        self.assertNotIn("forged", [payload for _, payload in self.until_end(reader)])

    def test_the_page_of_one_site_reads_that_only(self):
        page = self.client("plant-1-page")
        self.assertFalse(page.subscribe("vxprint/v1/+/+/state"))
        self.assertFalse(self.client("plant-1-page").subscribe("vxprint/v1/plant-2/+/state"))
        self.assertTrue(self.client("plant-1-page").subscribe("vxprint/v1/plant-1/+/state"))

    def test_nobody_comes_in_without_a_name_or_with_a_wrong_password(self):
        for user, password in ((None, None), ("page", "wrong"), ("page", ""), ("nobody", "secret-page")):
            with self.subTest(user=user, password=password), self.assertRaises(Refused):
                Client(self.cluster.mqtt[0], self.authority.file, user, password)

    def test_nobody_comes_in_without_encryption(self):
        with self.assertRaises(Refused):
            Client(self.cluster.mqtt[0], None, "page", PASSWORDS["page"])

    def test_a_server_without_a_certificate_of_the_authority_does_not_join(self):
        foreign = self.foreign.issue("server", "broker", SERVER_HOSTS)
        for certificate in (None, foreign):
            with self.subTest(certificate=certificate):
                context = ssl.create_default_context(cafile=self.authority.file)
                if certificate:
                    context.load_cert_chain(*certificate)
                with socket.create_connection(("127.0.0.1", self.cluster.routes[0])) as plain:
                    plain.settimeout(60)
                    plain.recv(65536)  # INFO, which comes before TLS
                    with self.assertRaises((ssl.SSLError, ConnectionError)):
                        with context.wrap_socket(plain, server_hostname="127.0.0.1") as route:
                            # With TLS 1.3 the client learns of it with the first answer.
                            if not route.recv(100):
                                raise ConnectionResetError

    def test_a_page_of_another_origin_is_refused(self):
        for origin, answer in ((ORIGIN, b" 101 "), ("https://evil.example", b" 403 "), (f"{ORIGIN}.evil.example", b" 403 ")):
            with self.subTest(origin):
                context = ssl.create_default_context(cafile=self.authority.file)
                with socket.create_connection(("127.0.0.1", self.cluster.websocket[0])) as plain, \
                        context.wrap_socket(plain, server_hostname="localhost") as client:
                    client.sendall(f"GET /mqtt HTTP/1.1\r\nHost: localhost\r\nOrigin: {origin}\r\nUpgrade: websocket\r\n"
                                   "Connection: Upgrade\r\nSec-WebSocket-Version: 13\r\nSec-WebSocket-Protocol: mqtt\r\n"
                                   f"Sec-WebSocket-Key: {base64.b64encode(os.urandom(16)).decode()}\r\n\r\n".encode())
                    self.assertIn(answer, client.recv(4096).split(b"\r\n")[0] + b" ")

    def test_the_values_of_the_example_match_no_password(self):
        example = (DEPLOY / "nats/passwords.conf.example").read_text()
        for line in example.splitlines():
            if '"' in line:
                value = line.split('"')[1]
                for password in ("", "password", *PASSWORDS.values()):
                    self.assertNotEqual(crypt.crypt(password, value), value)


if __name__ == "__main__":
    if not find_program("nats-server"):
        print("not installed: nats-server; scripts/test installs what the tests need")
        sys.exit(77)
    unittest.main()
