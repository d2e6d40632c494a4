# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Follows the printers of a host with the Python client in examples/clients.

test_status_client.py HOST CLIENT
"""
import asyncio
import importlib.util
import os
import stat
import subprocess
import sys
import tempfile
import unittest

from status_service import REFUSALS, Host, Impostor, setUpModule

HOST, CLIENT = sys.argv[1:]
PATIENCE = 120


def load_client():
    spec = importlib.util.spec_from_file_location("vxstatus", CLIENT)
    module = importlib.util.module_from_spec(spec)
    sys.modules["vxstatus"] = module
    spec.loader.exec_module(module)
    return module


vxstatus = load_client()


class ClientTest(unittest.TestCase):
    def start_host(self):
        host = Host(HOST)
        self.addCleanup(lambda: host.process.poll() is None and host.kill())
        self.assertEqual(host.name, "vxipc-3")
        return host

    def make_client(self, **options):
        client = vxstatus.Client(timeout=PATIENCE, **options)
        self.addCleanup(client.close)
        return client

    def next_of(self, notifications, *signals):
        for notification in notifications:
            if notification.signal in signals:
                return notification
        self.fail(f"no {signals} within {PATIENCE} s")

    def check_all_arrive(self, got):
        self.assertEqual(set(got), {"printerChanged", "printerAdded", "printerGone"})
        self.assertEqual(got["printerChanged"]["reading"]["name"], "Packing")
        self.assertEqual(got["printerAdded"]["reading"]["name"], "Visitor")
        self.assertEqual(got["printerGone"], {"name": "Visitor"})


class Blocking(ClientTest):
    def test_asks(self):
        self.start_host()
        client = self.make_client()
        readings = {each["name"]: each for each in client.call("printers")}
        self.assertIn("Packing", readings)
        self.assertEqual(readings["Packing"]["model"], "BirchMax")
        self.assertEqual(client.call("printer", "Packing")["name"], "Packing")
        self.assertEqual(client.call("printer", name="F\u00e4r\u202e")["watching"], "networkPrinter")
        info = client.call("statusInfo", code=2, language="de")
        self.assertEqual(info["code"], 2)
        self.assertNotEqual(info, client.call("statusInfo", 2, "en"))
        self.assertTrue(client.call("supplies")["supplies"])

    def test_reports_errors(self):
        self.start_host()
        with self.make_client() as client:
            with self.assertRaises(vxstatus.CallError) as caught:
                client.call("printer", "Nowhere")
            self.assertEqual(caught.exception.code, -32004)
            self.assertIn("Nowhere", caught.exception.message)
            with self.assertRaises(vxstatus.CallError) as caught:
                client.subscribe("printerChanged", "nothing")
            self.assertEqual(caught.exception.code, -32602)
            with self.assertRaises(TypeError):
                client.call("printer", "a", name="b")
            # The connection is as good as before.
            self.assertTrue(client.call("printers"))

    def test_receives_changes(self):
        self.start_host()
        client = self.make_client()
        self.assertEqual(client.subscribe("printerChanged", "printerGone"),
                         ["printerChanged", "printerGone"])
        client.subscribe("printerAdded")
        got = {}
        for signal, arguments in client.notifications(PATIENCE):
            got[signal] = arguments
            # Calls in between lose nothing.
            client.call("printer", "Packing")
            if len(got) == 3:
                break
        self.check_all_arrive(got)
        client.unsubscribe("printerAdded", "printerGone")
        for _ in range(3):
            self.next_of(client.notifications(PATIENCE), "printerChanged")

    def test_ends_in_time(self):
        self.start_host()
        client = self.make_client()
        self.assertEqual(list(client.notifications(0.05)), [])

    def test_subscribes_again(self):
        host = self.start_host()
        client = self.make_client()
        client.subscribe("printerChanged")
        notifications = client.notifications()
        self.next_of(notifications, "printerChanged")
        host.kill()
        self.start_host()
        self.next_of(notifications, vxstatus.RESUBSCRIBED)
        self.next_of(notifications, "printerChanged")

    def test_a_call_connects_again(self):
        host = self.start_host()
        client = self.make_client()
        client.subscribe("printerChanged")
        host.kill()
        with self.assertRaises(ConnectionError):
            client.call("printers")
        with self.assertRaises(vxstatus.NotReachable):
            client.call("printers")
        self.start_host()
        self.assertTrue(client.call("printers"))
        self.next_of(client.notifications(PATIENCE), vxstatus.RESUBSCRIBED)

    def test_refuses_what_is_no_answer(self):
        for content, complaint in REFUSALS:
            with self.subTest(complaint):
                impostor = Impostor(7, content)
                self.addCleanup(impostor.end)
                client = self.make_client(service=7)
                with self.assertRaisesRegex((ConnectionError, vxstatus.CallError),
                                            complaint.replace("(", r"\(").replace(")", r"\)")):
                    client.call("printers")
                client.close()
                self.doCleanups()

    def test_gives_up_waiting(self):
        impostor = Impostor(7, b"")
        self.addCleanup(impostor.end)
        client = vxstatus.Client(7, timeout=0.05)
        self.addCleanup(client.close)
        with self.assertRaises(TimeoutError):
            client.call("printers")

    def test_trusts_only_what_is_the_users_own(self):
        self.start_host()
        folder = os.environ["XDG_RUNTIME_DIR"]
        path = os.path.join(folder, "vxipc-3")
        for place, mode in ((folder, 0o703), (folder, 0o730), (path, 0o602)):
            kept = stat.S_IMODE(os.stat(place).st_mode)
            os.chmod(place, mode)
            try:
                with self.subTest(place=place, mode=mode):
                    with self.assertRaisesRegex(vxstatus.NotReachable, "not trusted"):
                        vxstatus.address()
            finally:
                os.chmod(place, kept)
        self.assertEqual(vxstatus.address(), path)
        os.symlink(path, os.path.join(folder, "vxipc-8"))
        with self.assertRaisesRegex(vxstatus.NotReachable, "not trusted"):
            vxstatus.address(8)
        with self.assertRaisesRegex(vxstatus.NotReachable, "no service answers"):
            vxstatus.address(9)

    def test_looks_where_services_are_without_a_runtime_folder(self):
        kept = os.environ.pop("XDG_RUNTIME_DIR")
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.addCleanup(os.environ.__setitem__, "XDG_RUNTIME_DIR", kept)
        previous = os.environ.get("TMPDIR")
        os.environ["TMPDIR"] = temporary.name
        self.addCleanup(lambda: os.environ.pop("TMPDIR") if previous is None
                        else os.environ.__setitem__("TMPDIR", previous))
        self.start_host()
        self.assertTrue(self.make_client().call("printers"))


class Async(ClientTest):
    def run_async(self, work):
        async def limited():
            return await asyncio.wait_for(work(), PATIENCE)
        return asyncio.run(limited())

    def test_asks_and_receives_at_once(self):
        self.start_host()

        async def work():
            got = {}
            async with vxstatus.AsyncClient() as client:
                await client.subscribe("printerChanged", "printerGone", "printerAdded")
                answers = await asyncio.gather(*(client.call("printer", "Packing")
                                                 for _ in range(20)))
                self.assertEqual({each["name"] for each in answers}, {"Packing"})
                async for signal, arguments in client.notifications():
                    got[signal] = arguments
                    if len(got) == 3:
                        break
            return got

        self.check_all_arrive(self.run_async(work))

    def test_reports_errors(self):
        self.start_host()

        async def work():
            async with vxstatus.AsyncClient() as client:
                with self.assertRaises(vxstatus.CallError) as caught:
                    await client.call("printer", name="Nowhere")
                self.assertEqual(caught.exception.code, -32004)
                with self.assertRaises(vxstatus.CallError):
                    await client.subscribe("nothing")
                return await client.call("printers")

        self.assertTrue(self.run_async(work))

    def test_subscribes_again(self):
        hosts = [self.start_host()]

        async def work():
            order = []
            client = vxstatus.AsyncClient()
            await client.subscribe("printerChanged")
            async for signal, _ in client.notifications():
                if order[-1:] != [signal]:
                    order.append(signal)
                if order == ["printerChanged"] and len(hosts) == 1:
                    hosts[0].kill()
                    hosts.append(self.start_host())
                if len(order) == 3:
                    break
            await client.close()
            return order

        self.assertEqual(self.run_async(work),
                         ["printerChanged", vxstatus.RESUBSCRIBED, "printerChanged"])

    def test_ends_when_it_is_closed(self):
        self.start_host()

        async def work():
            client = vxstatus.AsyncClient()
            await client.connect()

            async def follow():
                return [each async for each in client.notifications()]

            following = asyncio.ensure_future(follow())
            await client.call("printers")
            await client.close()
            return await following

        self.assertEqual(self.run_async(work), [])

    def test_refuses_what_is_no_answer(self):
        for content, complaint in REFUSALS:
            with self.subTest(complaint):
                impostor = Impostor(7, content)
                self.addCleanup(impostor.end)

                async def work():
                    client = vxstatus.AsyncClient(7)
                    try:
                        await client.call("printers")
                    finally:
                        await client.close()

                with self.assertRaisesRegex((ConnectionError, vxstatus.CallError),
                                            complaint.replace("(", r"\(").replace(")", r"\)")):
                    self.run_async(work)
                self.doCleanups()


class Program(ClientTest):
    def run_program(self, *arguments):
        return subprocess.run([sys.executable, "-B", CLIENT, *arguments], capture_output=True,
                              text=True)

    def test_prints_printers_and_changes(self):
        self.start_host()
        program = subprocess.Popen([sys.executable, "-B", CLIENT], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True)
        self.addCleanup(program.wait)
        self.addCleanup(program.stderr.close)
        self.addCleanup(program.kill)
        lines = set()
        for line in program.stdout:
            self.assertTrue(line.isascii(), line)
            lines.add(line.split(",")[0].strip())
            if {'"Packing"', '"F\\u00e4r\\u202e"', 'printerGone: {"name": "Visitor"}'} <= lines:
                break
        # Ends when nobody reads any more.
        program.stdout.close()
        self.assertEqual(program.wait(PATIENCE), 0)
        self.assertEqual(program.stderr.read(), "")

    def test_ends_in_time(self):
        self.start_host()
        done = self.run_program("--for", "0.1")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertIn('"Packing", status', done.stdout)

    def test_says_that_there_is_no_service(self):
        done = self.run_program()
        self.assertEqual((done.returncode, done.stdout), (1, ""))
        self.assertTrue(done.stderr.startswith("vxstatus: no service answers at "), done.stderr)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], warnings="ignore")
