# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What the installed package has for a site: the page, the configurations and the guides.

test_installed_site.py SOURCE_FOLDER PREFIX

Only what is below PREFIX is used; the sources tell what has to be there.
"""
import contextlib
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCES, PREFIX = map(pathlib.Path, sys.argv[1:3])
SITE = PREFIX / "share/VxPrinterStatus"
AGENT = PREFIX / "bin/vxprintagent"
sys.path += [str(SOURCES / "tests/web"), str(SOURCES / "tests/support")]
from site_files import differences, files_below  # noqa: E402


class InstalledSiteTest(unittest.TestCase):
    maxDiff = None

    def test_everything_is_there_and_nothing_else(self):
        self.assertTrue(files_below(SITE))
        self.assertEqual(differences(SOURCES, SITE), [])

    def test_the_licences_of_the_bundle_are_beside_it(self):
        licences = (SITE / "web/vendor/LICENSES.txt").read_text()
        for package in json.loads((SOURCES / "web/package-lock.json").read_text())["packages"][""]["dependencies"]:
            self.assertIn(package, licences)

    def test_everybody_may_read_them_and_nobody_else_may_change_them(self):
        for path in filter(pathlib.Path.is_file, SITE.rglob("*")):
            mode = path.stat().st_mode & 0o777
            self.assertEqual(mode & 0o022, 0, path)
            self.assertEqual(mode & 0o444, 0o444, path)

    def test_links_of_the_guides_for_a_site_lead_somewhere(self):
        for guide in ("fleet.md", "agent-on-windows.md"):
            links = re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", (SITE / "docs" / guide).read_text())
            self.assertTrue(links)
            for link in links:
                if not link.startswith("http"):
                    self.assertTrue((SITE / "docs" / link).exists(), f"{guide}: {link}")

    def test_systemd_finds_the_unit_and_the_user(self):
        unit = (PREFIX / "lib/systemd/system/vxprintagent.service").read_bytes()
        self.assertEqual(unit, (SOURCES / "deploy/systemd/vxprintagent.service").read_bytes())
        self.assertIn(b"\nExecStart=vxprintagent run ", unit)
        self.assertEqual((PREFIX / "lib/sysusers.d/vxprintagent.conf").read_bytes(),
                         (SOURCES / "deploy/systemd/vxprintagent.sysusers.conf").read_bytes())

    def test_the_installed_agent_takes_the_installed_examples(self):
        examples = sorted((SITE / "deploy").rglob("agent.json"))
        self.assertEqual([path.parent.name for path in examples], ["mosquitto", "nats"])
        for example in examples:
            with self.subTest(example.parent.name), tempfile.TemporaryDirectory() as folder:
                configuration = pathlib.Path(folder, "agent.json")
                shutil.copy(example, configuration)
                with open(os.open(f"{folder}/mqtt-password", os.O_CREAT | os.O_WRONLY, 0o600), "w") as file:
                    file.write("secret\n")
                subprocess.run(["openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
                                "-nodes", "-subj", "/CN=plant", "-days", "1", "-keyout", os.devnull,
                                "-out", f"{folder}/plant-ca.pem"], check=True, stderr=subprocess.DEVNULL)
                done = subprocess.run([AGENT, "check", "--config", configuration], stdout=subprocess.PIPE,
                                      stderr=subprocess.STDOUT, encoding="utf-8", check=False)
                self.assertEqual((done.stdout, done.returncode), (f"{configuration} is a valid configuration\n", 0))

    def test_a_browser_shows_a_site_with_the_installed_page(self):
        try:
            from brokers import Nats, Publisher, find_program
        except ImportError:
            self.skipTest("python3-paho-mqtt is not installed")
        from chromium import Chromium, find_chromium
        from page_server import PageServer
        from site_data import payload, reading, topic
        if not find_chromium() or not find_program("nats-server"):
            self.skipTest("chromium or nats-server is not installed")
        with contextlib.ExitStack() as stack:
            def opened(thing):
                return stack.enter_context(contextlib.closing(thing))
            broker = opened(Nats())
            server = opened(PageServer({"broker": broker.address}, folder=SITE / "web"))
            publisher = opened(Publisher(broker.mqtt))
            publisher.put(topic("plant-1", "pc-1", "state"), "online")
            publisher.put(topic("plant-1", "pc-1", "printer", "Shipping"), payload(reading("Shipping", 4)))
            page = opened(opened(Chromium()).open(server.address, language="de"))
            page.until("document.querySelector('.tile .name').textContent === 'Shipping'")
            self.assertEqual(page.value("document.querySelector('.tile').dataset.class"), "error")
            self.assertEqual(page.value("document.documentElement.lang"), "de")
            self.assertEqual(page.take_faults(), [])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
