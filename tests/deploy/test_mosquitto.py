# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""deploy/mosquitto with the real mosquitto: what is allowed works, and what must be refused is refused.

test_mosquitto.py
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from shipped import DEPLOY, PASSWORDS, with_changes  # first: it adds the path of brokers

from brokers import Server, find_program, free_ports
from certificates import SERVER_HOSTS, Authority
from mqtt_clients import Client, Refused

STATE_1 = "vxprint/v1/plant-1/pc-1/state"
STATE_2 = "vxprint/v1/plant-2/pc-1/state"


class Mosquitto:
    """The broker of deploy/mosquitto."""

    def __init__(self, folder, authority):
        certificate, key = authority.issue("server", "broker", SERVER_HOSTS)
        self.passwords = folder / "passwords"
        for user, password in PASSWORDS.items():
            subprocess.run([find_program("mosquitto_passwd"), *([] if self.passwords.exists() else ["-c"]),
                            "-b", str(self.passwords), user, password], check=True, stdout=subprocess.DEVNULL)
        shutil.copy(DEPLOY / "mosquitto/access.acl", folder / "access.acl")
        self.port, self.certificate_port = free_ports(2)
        text = with_changes((DEPLOY / "mosquitto/mosquitto.conf").read_text(), {
            "persistence_location /var/lib/mosquitto/": f"persistence_location {folder}/",
            "/etc/mosquitto/passwords": self.passwords,
            "/etc/mosquitto/access.acl": folder / "access.acl",
            "/etc/mosquitto/tls/ca.crt": authority.file,
            "/etc/mosquitto/tls/server.crt": certificate,
            "/etc/mosquitto/tls/server.key": key,
            "listener 8883": f"listener {self.port} 127.0.0.1",
            "listener 8884": f"listener {self.certificate_port} 127.0.0.1"})
        # mosquitto gives up the rights of root, and then cannot read what belongs to root.
        configuration = folder / "mosquitto.conf"
        configuration.write_text(f"{text}\nuser {pathlib.Path(folder).owner()}\n")
        self.server = Server([find_program("mosquitto"), "-c", str(configuration)], [self.port, self.certificate_port],
                             str(folder / "log"))
        self.close = self.server.close


class MosquittoTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-mosquitto-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.authority = Authority(cls.folder / "ca")
        cls.foreign = Authority(cls.folder / "foreign")
        cls.broker = Mosquitto(cls.folder, cls.authority)
        cls.port, cls.certificate_port = cls.broker.port, cls.broker.certificate_port
        cls.addClassCleanup(cls.broker.close)

    def tearDown(self):
        print(self.id(), flush=True)

    def client(self, user, **options):
        client = Client(options.pop("port", self.port), self.authority.file, user, PASSWORDS[user], **options)
        self.addCleanup(client.close)
        return client

    def test_what_an_agent_publishes_is_read_by_the_page(self):
        page = self.client("page")
        self.assertTrue(page.subscribe("vxprint/v1/+/+/state"))
        self.client("plant-1-agents").publish(STATE_1, "online", retain=True)
        self.assertEqual(page.next(), (STATE_1, "online"))
        late = self.client("plant-1-page")
        self.assertTrue(late.subscribe("vxprint/v1/plant-1/+/state"))
        self.assertEqual(late.next(), (STATE_1, "online"))

    def test_an_agent_publishes_below_its_own_site_only(self):
        page = self.client("page")
        self.assertTrue(page.subscribe("#"))
        agent = self.client("plant-2-agents")
        for topic in (STATE_1, "vxprint/v1/page/pc/state", "vxprint/v1/plant-20/pc/state", "other"):
            agent.publish(topic, "forged")
        agent.publish(STATE_2, "own")
        while (message := page.next())[1] != "own":
            self.assertNotEqual(message[1], "forged", message)

    def test_an_agent_reads_nothing_of_another_site(self):
        self.client("plant-1-agents").publish(STATE_1, "online", retain=True)
        agent = self.client("plant-2-agents")
        agent.subscribe("#")
        agent.subscribe(STATE_1)
        agent.publish(STATE_2, "own", retain=True)
        self.assertEqual(agent.next(), (STATE_2, "own"))

    def test_a_page_publishes_nothing(self):
        listener = self.client("page")
        self.assertTrue(listener.subscribe("#"))
        for user in ("page", "plant-1-page"):
            client = self.client(user)
            for topic in (STATE_1, "vxprint/v1/page/pc/state", f"vxprint/v1/{user}/x", "x"):
                client.publish(topic, "forged")
                client.publish(topic, "")
        self.client("plant-1-agents").publish("vxprint/v1/plant-1/end/state", "end")
        while (message := listener.next())[1] != "end":
            self.assertNotEqual(message[1], "forged", message)

    def test_the_page_of_one_site_reads_that_only(self):
        page = self.client("plant-1-page")
        self.assertTrue(page.subscribe("vxprint/v1/+/+/state"))
        self.client("plant-2-agents").publish(STATE_2, "online")
        self.client("plant-1-agents").publish("vxprint/v1/plant-1/end/state", "end")
        while (message := page.next())[1] != "end":
            self.assertTrue(message[0].startswith("vxprint/v1/plant-1/"), message)

    def test_nobody_comes_in_without_a_name_or_with_a_wrong_password(self):
        for user, password in ((None, None), ("page", "wrong"), ("page", ""), ("nobody", "secret-page")):
            with self.subTest(user=user, password=password), self.assertRaises(Refused):
                Client(self.port, self.authority.file, user, password)

    def test_nobody_comes_in_without_encryption(self):
        with self.assertRaises(Refused):
            Client(self.port, None, "page", PASSWORDS["page"])

    def test_a_client_trusts_no_other_authority(self):
        with self.assertRaisesRegex(Refused, "certificate verify failed"):
            Client(self.port, self.foreign.file, "page", PASSWORDS["page"])

    def test_a_certificate_is_a_name(self):
        certificate = self.authority.issue("agent", "plant-1-agents")
        page = self.client("page")
        self.assertTrue(page.subscribe("#"))
        agent = Client(self.certificate_port, self.authority.file, certificate=certificate)
        self.addCleanup(agent.close)
        agent.publish(STATE_2, "forged")
        agent.publish("vxprint/v1/plant-1/end/state", "own")
        while (message := page.next())[1] != "own":
            self.assertNotEqual(message[1], "forged", message)

    def test_a_certificate_of_another_authority_or_none_is_refused(self):
        foreign = self.foreign.issue("agent", "plant-1-agents")
        for certificate in (foreign, None):
            with self.subTest(certificate=certificate), self.assertRaises(Refused):
                Client(self.certificate_port, self.authority.file, "page", PASSWORDS["page"], certificate=certificate)

    def test_a_reader_is_sent_all_of_ten_thousand_retained_readings(self):
        agent = self.client("plant-1-agents")
        payload = "x" * 2000
        for number in range(9999):
            agent.send(f"vxprint/v1/plant-1/many/printer/p{number}", payload)
        agent.publish("vxprint/v1/plant-1/many/printer/p9999", payload, retain=True)
        for qos in (0, 1):
            with self.subTest(qos=qos):
                # mosquitto's own client keeps up with the broker.
                found = subprocess.run(
                    [find_program("mosquitto_sub"), "-h", "127.0.0.1", "-p", str(self.port), "--cafile",
                     self.authority.file, "-u", "page", "-P", PASSWORDS["page"], "-q", str(qos), "-F", "%t",
                     "-t", "vxprint/v1/plant-1/many/printer/+", "-C", "10000", "-W", "120"],
                    stdout=subprocess.PIPE, text=True)
                self.assertEqual(len(set(found.stdout.split())), 10000)


if __name__ == "__main__":
    if not find_program("mosquitto"):
        print("not installed: mosquitto; scripts/test installs what the tests need")
        sys.exit(77)
    unittest.main()
