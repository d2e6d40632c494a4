# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""How the scripts install packages, with programs in place of the system's that only write down what they are
asked. Usage: test_need_packages.py SOURCE_FOLDER"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

COMMON = pathlib.Path(sys.argv.pop(1), "scripts/lib/common.sh")
POLICY = "/usr/sbin/policy-rc.d"  # the system's
# "broker" is installed; "store" and "plain" are not. What would be done as root is written down.
SYSTEM = """
. "$COMMON"
dpkg-query() {
    case "$*" in
    "-W "*broker) echo "install ok installed" ;;
    "-W "*) return 1 ;;
    "-L store plain") printf '%s\\n' /usr/bin/store /lib/systemd/system/store.service \\
        /usr/lib/systemd/system/store.socket /lib/systemd/system/store@.service /usr/share/doc/store.service ;;
    "-L "*) return 0 ;;
    esac
}
apt-get() { :; }
systemctl() { :; }
as_root() {
    printf '%s\\n' "$*" >>"$LOG"
    case "$*" in
    *"apt-get"*" install "*) return "$INSTALLS" ;;
    tee*) cat >/dev/null ;;
    esac
}
need_packages "$@"
"""


class NeedPackages(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.log = self.folder / "log"
        self.log.touch()
        # Whether this system has a policy of its own must not matter.
        self.policy = self.folder / "policy-rc.d"
        text = COMMON.read_text()
        self.assertIn(POLICY, text)
        self.common = self.folder / "scripts/lib/common.sh"
        self.common.parent.mkdir(parents=True)
        self.common.write_text(text.replace(POLICY, str(self.policy)))

    def run_with(self, *packages, installs=0):
        """The exit status and the output."""
        done = subprocess.run(
            ["bash", "-c", SYSTEM, "bash", *packages], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True, check=False,
            env={"PATH": "/usr/bin:/bin", "HOME": str(self.folder), "COMMON": str(self.common),
                 "LOG": str(self.log), "VX_CACHE": str(self.folder / "cache"), "INSTALLS": str(installs)})
        return done.returncode, done.stdout

    def steps(self):
        """The first words of each thing that was done as root."""
        return ["install" if " install " in line else " ".join(line.split()[:2])
                for line in self.log.read_text().splitlines()]

    def with_policy(self, *steps):
        return ["apt-get -qq", f"tee {self.policy}", "chmod 755", "install", "rm -f", *steps]

    def test_what_is_installed_is_left_alone(self):
        self.assertEqual(self.run_with("broker"), (0, ""))
        self.assertEqual(self.steps(), [])

    def test_services_of_new_packages_neither_start_now_nor_with_the_system(self):
        status, output = self.run_with("store", "broker", "plain")
        self.assertEqual(status, 0, output)
        self.assertEqual(self.steps(), self.with_policy("systemctl disable"))
        done = self.log.read_text()
        self.assertIn(" --no-install-recommends store plain\n", done)
        self.assertTrue(done.endswith(" store.service store.socket\n"), done)
        self.assertIn("switched off: store.service store.socket\n", output)

    def test_the_policy_of_an_administrator_stays(self):
        self.policy.touch()
        self.run_with("store", "plain")
        self.assertEqual(self.steps(), ["apt-get -qq", "install", "systemctl disable"])

    def test_packages_without_services_change_none(self):
        self.run_with("plain")
        self.assertEqual(self.steps(), self.with_policy())

    def test_a_failure_is_said_and_the_policy_is_removed(self):
        status, output = self.run_with("store", "plain", installs=100)
        self.assertEqual(status, 1)
        self.assertIn("apt-get could not install: store plain\n", output)
        self.assertEqual(self.steps(), self.with_policy())


if __name__ == "__main__":
    unittest.main()
