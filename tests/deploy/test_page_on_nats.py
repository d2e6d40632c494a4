# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The page in a real Chromium, over TLS and with a password, on the three servers of deploy/nats.

test_page_on_nats.py
"""
import base64
import hashlib
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

from shipped import PASSWORDS  # first: it adds the path of brokers
from test_nats import NatsCluster

from brokers import find_program
from certificates import Authority
from chromium import Chromium, find_chromium
from mqtt_clients import Client
from page_server import PageServer
from site_data import payload, reading, topic

SHOWN = "[...document.querySelectorAll('.tile')].map(tile => [tile.querySelector('.name').textContent, tile.dataset.class])"


def key_hash(certificate):
    """The hash by which Chromium is told to trust a key."""
    key = subprocess.run(["openssl", "x509", "-in", certificate, "-noout", "-pubkey"], check=True, stdout=subprocess.PIPE)
    der = subprocess.run(["openssl", "pkey", "-pubin", "-outform", "der"], check=True, input=key.stdout,
                         stdout=subprocess.PIPE)
    return base64.b64encode(hashlib.sha256(der.stdout).digest()).decode()


class PageOnNatsTest(unittest.TestCase):
    def test_a_reader_signs_in_and_sees_the_site_through_any_server(self):
        folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-page-on-nats-"))
        self.addCleanup(shutil.rmtree, folder)
        configuration = {"broker": "", "sites": ["plant-1"], "user": "plant-1-page"}
        server = PageServer(configuration)
        self.addCleanup(server.close)
        cluster = NatsCluster(folder, Authority(folder / "ca"), server.address.rstrip("/"))
        self.addCleanup(cluster.close)
        browser = Chromium(f"--ignore-certificate-errors-spki-list={key_hash(cluster.certificate)}")
        self.addCleanup(browser.close)
        agent = Client(cluster.mqtt[0], cluster.authority.file, "plant-1-agents", PASSWORDS["plant-1-agents"])
        self.addCleanup(agent.close)
        agent.publish(topic("plant-1", "pc-1", "state"), "online", retain=True)
        agent.publish(topic("plant-1", "pc-1", "printer", "Shipping 1.2"), payload(reading("Shipping 1.2")), retain=True)
        for number in range(3):
            with self.subTest(server=number + 1):
                server.configure({**configuration, "broker": f"wss://127.0.0.1:{cluster.websocket[number]}/mqtt"})
                page = browser.open(server.address)
                self.addCleanup(page.close)
                page.until("document.querySelector('#sign-in').open")
                page.value(f"document.querySelector('#sign-in-password').value = '{PASSWORDS['plant-1-page']}';"
                           "document.querySelector('#sign-in .primary').click()")
                page.until(f"JSON.stringify({SHOWN}) === '[[\"Shipping 1.2\",\"ok\"]]'")
                print(f"server {number + 1}", flush=True)
        agent.publish(topic("plant-1", "pc-1", "printer", "Shipping 1.2"), payload(reading("Shipping 1.2", 4)), retain=True)
        page.until(f"JSON.stringify({SHOWN}) === '[[\"Shipping 1.2\",\"error\"]]'")
        # The page says that it may not read another site, and does not ask again.
        server.configure({**configuration, "sites": ["plant-2"], "broker": f"wss://127.0.0.1:{cluster.websocket[0]}/mqtt"})
        page.send("Page.reload")
        page.until("document.documentElement.dataset.state === 'refused'")
        self.assertIn("does not allow this user", page.value("document.querySelector('#connection-text').textContent"))


if __name__ == "__main__":
    if not find_chromium() or not find_program("nats-server"):
        print("not installed: chromium or nats-server; scripts/test installs what the tests need")
        sys.exit(77)
    unittest.main()
