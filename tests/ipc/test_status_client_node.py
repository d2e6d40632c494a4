# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Follows the printers of a host with the Node.js client in examples/clients.

test_status_client_node.py HOST CLIENT

Skipped, with a message, where Node.js is not installed.
"""
import json
import os
import pathlib
import shutil
import stat
import subprocess
import sys
import unittest

from status_service import REFUSALS, Host, Impostor, setUpModule

HOST, CLIENT = sys.argv[1:]
PATIENCE = 120
NODE = shutil.which("node")


@unittest.skipUnless(NODE, "Node.js is not installed: install the package nodejs")
class NodeClient(unittest.TestCase):
    def start_host(self):
        host = Host(HOST)
        self.addCleanup(lambda: host.process.poll() is None and host.kill())
        self.assertEqual(host.name, "vxipc-3")
        return host

    def start_script(self, script):
        """Runs a module that has imported the client, and can print values as lines of JSON."""
        begin = (f"import * as vx from {json.dumps(pathlib.Path(CLIENT).resolve().as_uri())};\n"
                 "const print = value => console.log(JSON.stringify(value));\n")
        process = subprocess.Popen([NODE, "--input-type=module", "--eval", begin + script],
                                   stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(process.wait)
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.stderr.close)
        self.addCleanup(process.kill)
        return process

    def run_script(self, script):
        process = self.start_script(script)
        output, errors = process.communicate(timeout=PATIENCE)
        self.assertEqual((process.returncode, errors), (0, ""))
        return [json.loads(line) for line in output.splitlines()]

    def test_asks(self):
        self.start_host()
        readings, reading, info, supplies = self.run_script("""
            const status = new vx.StatusClient();
            print(await status.call('printers'));
            print(await status.call('printer', { name: 'Packing' }));
            print(await status.call('statusInfo', [2, 'de']));
            print(await status.call('supplies'));
            status.close();
        """)
        self.assertIn("F\u00e4r\u202e", [each["name"] for each in readings])
        self.assertEqual((reading["name"], reading["model"]), ("Packing", "BirchMax"))
        self.assertEqual(info["code"], 2)
        self.assertTrue(supplies["supplies"])

    def test_reports_errors(self):
        self.start_host()
        errors = self.run_script("""
            const status = new vx.StatusClient();
            const report = error => print([error.name, error.code ?? null, error.message]);
            await status.call('printer', ['Nowhere']).catch(report);
            await status.subscribe('printerChanged', 'nothing').catch(report);
            await new vx.StatusClient({ service: 9 }).call('printers').catch(report);
            print(status.isConnected);
            status.close();
            await status.call('printers');
            status.close();
        """)
        self.assertEqual(errors[0][:2], ["CallError", -32004])
        self.assertIn("Nowhere", errors[0][2])
        self.assertEqual(errors[1][:2], ["CallError", -32602])
        self.assertEqual(errors[2][0], "NotReachable")
        self.assertTrue(errors[3])

    def test_receives_changes(self):
        self.start_host()
        subscribed, got, remaining = self.run_script("""
            const status = new vx.StatusClient();
            const got = {};
            const all = new Promise(resolve => status.on('notification', (signal, args) => {
                got[signal] = args;
                if (Object.keys(got).length === 3)
                    resolve();
            }));
            status.on('printerGone', ({ name }) => { got.printerGone = { name }; });
            print(await status.subscribe('printerChanged', 'printerGone', 'printerAdded'));
            await all;
            print(got);
            print(await status.unsubscribe('printerGone', 'printerAdded'));
            await new Promise(resolve => status.once('printerChanged', resolve));
            status.close();
        """)
        self.assertEqual(subscribed, ["printerChanged", "printerAdded", "printerGone"])
        self.assertEqual(got["printerChanged"]["reading"]["name"], "Packing")
        self.assertEqual(got["printerAdded"]["reading"]["name"], "Visitor")
        self.assertEqual(got["printerGone"], {"name": "Visitor"})
        self.assertEqual(remaining, ["printerChanged"])

    def test_subscribes_again(self):
        host = self.start_host()
        script = self.start_script("""
            const status = new vx.StatusClient();
            let last = '';
            const note = what => { if (what !== last) print(last = what); };
            status.on('notification', signal => note(signal));
            status.on('resubscribed', () => note('resubscribed'));
            status.on('disconnected', () => note('disconnected'));
            await status.subscribe('printerChanged');
        """)
        self.assertEqual(script.stdout.readline(), '"printerChanged"\n')
        host.kill()
        self.assertEqual(script.stdout.readline(), '"disconnected"\n')
        self.start_host()
        self.assertEqual(script.stdout.readline(), '"resubscribed"\n')
        self.assertEqual(script.stdout.readline(), '"printerChanged"\n')

    def test_refuses_what_is_no_answer(self):
        for content, complaint in REFUSALS:
            with self.subTest(complaint):
                impostor = Impostor(7, content)
                self.addCleanup(impostor.end)
                [message] = self.run_script("""
                    const status = new vx.StatusClient({ service: 7 });
                    await status.call('printers').catch(error => print(error.message));
                    status.close();
                """)
                # This client does not tell the two apart.
                self.assertIn(complaint.replace("not JSON-RPC 2.0", "not JSON")
                              .replace("not JSON", "not JSON-RPC 2.0"), message)
                self.doCleanups()

    def test_gives_up_waiting(self):
        impostor = Impostor(7, b"")
        self.addCleanup(impostor.end)
        [message] = self.run_script("""
            const status = new vx.StatusClient({ service: 7, timeout: 50 });
            await status.call('printers').catch(error => print(error.message));
            status.close();
        """)
        self.assertEqual(message, "no answer to printers within 50 ms")

    def test_trusts_only_what_is_the_users_own(self):
        self.start_host()
        folder = os.environ["XDG_RUNTIME_DIR"]
        path = os.path.join(folder, "vxipc-3")
        script = "try { print(vx.address()); } catch (error) { print(error.message); }"
        self.assertEqual(self.run_script(script), [path])
        for place, mode in ((folder, 0o703), (folder, 0o730), (path, 0o602)):
            kept = stat.S_IMODE(os.stat(place).st_mode)
            os.chmod(place, mode)
            try:
                with self.subTest(place=place, mode=mode):
                    self.assertIn("not trusted", self.run_script(script)[0])
            finally:
                os.chmod(place, kept)
        os.symlink(path, os.path.join(folder, "vxipc-8"))
        self.addCleanup(os.unlink, os.path.join(folder, "vxipc-8"))
        self.assertIn("not trusted", self.run_script(script.replace("()", "(8)", 1))[0])

    def test_prints_printers_and_changes(self):
        self.start_host()
        program = subprocess.Popen([NODE, CLIENT], stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                   text=True)
        self.addCleanup(program.wait)
        self.addCleanup(program.stderr.close)
        self.addCleanup(program.kill)
        lines = set()
        for line in program.stdout:
            self.assertTrue(line.isascii(), line)
            lines.add(line.split(",")[0].strip())
            if {'"Packing"', '"F\\u00e4r\\u202e"', 'printerGone: {"name":"Visitor"}'} <= lines:
                break
        # Ends when nobody reads any more.
        program.stdout.close()
        self.assertEqual(program.wait(PATIENCE), 0)
        self.assertEqual(program.stderr.read(), "")

    def test_program_ends(self):
        def run(*arguments):
            done = subprocess.run([NODE, CLIENT, *arguments], capture_output=True, text=True)
            return done.returncode, done.stdout, done.stderr

        self.assertEqual(run("--nothing")[0], 2)
        status, output, errors = run()
        self.assertEqual((status, output), (1, ""))
        self.assertTrue(errors.startswith("vxstatus: no service answers at "), errors)
        self.start_host()
        status, output, errors = run("--for", "0.1")
        self.assertEqual((status, errors), (0, ""))
        self.assertIn('"Packing", status', output)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], warnings="ignore")
