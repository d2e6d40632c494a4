# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Runs the tool against an endpoint.

test_vxipc_tool.py TOOL HOST, where HOST publishes the test service.
"""
import json
import os
import select
import socket
import subprocess
import sys
import threading
import unittest

from own_folder import setUpModule  # called by unittest

TOOL, HOST = sys.argv[1:]


class Tool(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.service = str(os.getpid() % 2000000 * 1000)
        cls.host = subprocess.Popen(
            [HOST, cls.service], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        cls.name = cls.host.stdout.readline().strip()

    @classmethod
    def tearDownClass(cls):
        cls.host.stdin.close()
        cls.host.stdout.close()
        cls.host.wait()

    def run_tool(self, *arguments):
        done = subprocess.run([TOOL, *arguments], capture_output=True, text=True,
                              env=dict(os.environ, LC_ALL="C.UTF-8", LANGUAGE="en"))
        return done.returncode, done.stdout, done.stderr

    def check_output(self, arguments, output):
        self.assertEqual(self.run_tool(*arguments), (0, output, ""))

    def check_complaint(self, arguments, status, complaint):
        returned, output, errors = self.run_tool(*arguments)
        self.assertEqual((returned, output), (status, ""))
        self.assertTrue(errors.startswith("vxipc: "), errors)
        self.assertEqual(errors.count("\n"), 1, errors)
        self.assertIn(complaint, errors)

    def test_lists(self):
        row = f"{self.name}\t{self.service}\t{self.host.pid}\tipc_test_host\n"
        self.assertIn(row, self.run_tool("list")[1])
        listed = {each["name"]: each for each in json.loads(self.run_tool("list", "--json")[1])}
        self.assertEqual(listed[self.name],
                         {"name": self.name, "service": self.service, "process": self.host.pid,
                          "application": "ipc_test_host", "error": None})

    def test_describes(self):
        _, output, _ = self.run_tool("describe", self.service)
        self.assertIn("scale(value: int, [factor: int]) -> int\n", output)
        self.assertIn("signal told(text: QString, number: int)\n", output)
        document = json.loads(self.run_tool("--json", "describe", self.name)[1])
        self.assertEqual(document["info"]["title"], self.name)

    def test_calls(self):
        for arguments, output in [
                (["echo", "12"], "12\n"),
                (["echo", "Jägergrün"], "Jägergrün\n"),
                (["echo", "--", "--json"], "--json\n"),
                (["echo", "a\x1b[31m\n\u202e"], "a\\u001b[31m\\u000a\\u202e\n"),
                (["echo", "a\x1b\u202e", "--json"], "\"a\\u001b\\u202e\"\n"),
                (["hashEcho", '{"a\\u009b":"\\u2028"}'], "a\\u009b: \\u2028\n"),
                (["scale", "-3"], "-30\n"),
                (["scale", "-3", "2"], "-6\n"),
                (["invert", "true"], "false\n"),
                (["note", "a"], ""),
                (["note", "a", "--json"], "null\n"),
                (["echo", "a", "--json"], "\"a\"\n"),
                (["sorted", '["b","a"]'], "a\nb\n"),
                (["hashEcho", '{"b":1,"a":"x"}'], "a: x\nb: 1\n"),
                (["unsignedWideEcho", "18446744073709551615"], "18446744073709551615\n"),
                (["wideEcho", "5"], "5\n"),
                (["overloaded", "1"], "int\n"),
                (["overloaded", "x"], "text\n"),
                (["overloaded", "1", "2"], "int, wide\n"),
                (["overloaded", "1", "2x"], "int, text\n")]:
            with self.subTest(arguments):
                self.check_output(["call", self.service, *arguments], output)

    def start_watch(self, *arguments):
        watch = subprocess.Popen([TOOL, "watch", *arguments], stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE, text=True, bufsize=1)
        self.addCleanup(watch.wait)
        self.addCleanup(watch.kill)
        self.addCleanup(watch.stdout.close)
        self.addCleanup(watch.stderr.close)
        return watch

    def tell_until_printed(self, watch, service, text):
        """The first line that the watch prints of what is told."""
        while not select.select([watch.stdout], [], [], 0.05)[0]:
            self.assertIsNone(watch.poll())
            self.run_tool("call", service, "tell", text)
        return watch.stdout.readline()

    def test_watches(self):
        watch = self.start_watch(self.service, "told")
        line = self.tell_until_printed(watch, self.service, "a\x1b\u202e")
        self.assertEqual(
            line, '{"signal":"told","arguments":{"number":0,"text":"a\\u001b\\u202e"}}\n')
        # Ends when nobody reads any more.
        watch.stdout.close()
        self.assertEqual(watch.wait(), 0)
        self.assertEqual(watch.stderr.read(), "")

    def test_watches_all_signals(self):
        watch = self.start_watch(self.name)
        self.tell_until_printed(watch, self.service, "ready")
        self.run_tool("call", self.service, "setState", "a", "5")
        message = {"signal": "told"}
        while message["signal"] == "told":
            message = json.loads(watch.stdout.readline())
        self.assertEqual(message,
                         {"signal": "stateChanged", "arguments": {"name": "a", "state": 5}})

    def test_watches_for_a_while(self):
        self.check_output(["watch", self.service, "told", "--for", "0.1"], "")

    def test_watches_again(self):
        service = str(int(self.service) + 2)

        def start():
            host = subprocess.Popen([HOST, service], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                    text=True)
            self.addCleanup(host.wait)
            self.addCleanup(host.kill)
            self.addCleanup(host.stdin.close)
            self.addCleanup(host.stdout.close)
            host.stdout.readline()
            return host

        host = start()
        watch = self.start_watch(service, "told")
        self.tell_until_printed(watch, service, "first")
        host.kill()
        self.assertIn("the connection ended", watch.stderr.readline())
        start()
        self.assertIn("watching again", watch.stderr.readline())
        while "again" not in self.tell_until_printed(watch, service, "again"):
            pass

    def test_says_what_failed(self):
        for arguments, complaint in [
                (["nothing"], "there is no method nothing"),
                (["no\x1b[2Jthing\n"], "there is no method no\\u001b[2Jthing\\u000a\n"),
                (["deleteLater"], "there is no method deleteLater"),
                (["scale", "x"], "do not fit scale(value: int, [factor: int])"),
                (["scale"], "do not fit"),
                (["scale", "3000000000"], "argument 1 (value): expected a whole number"),
                (["block", "400", "--timeout", "50"], "did not answer in time")]:
            with self.subTest(arguments):
                self.check_complaint(["call", self.service, *arguments], 1, complaint)
        nobody = str(int(self.service) + 1)
        self.check_complaint(["call", nobody, "echo", "a"], 1, "no endpoint answers")
        self.check_complaint(["describe", nobody], 1, "no endpoint answers")
        self.check_complaint(["watch", nobody], 1, "no endpoint answers")
        self.check_complaint(["watch", nobody, "told"], 1, "no endpoint answers")
        self.check_complaint(["watch", self.service, "nothing"], 1, "there is no signal \"nothing\"")

    def test_trusts_no_folder_that_others_may_write_to(self):
        folder = os.environ["XDG_RUNTIME_DIR"]
        os.chmod(folder, 0o703)
        self.addCleanup(os.chmod, folder, 0o700)
        for arguments in (["list"], ["describe", self.service], ["call", self.service, "notes"]):
            with self.subTest(arguments):
                self.check_complaint(arguments, 1, "other users may write to it")

    def test_names_all_overloads_that_do_not_fit(self):
        self.check_complaint(["call", self.service, "overloaded"], 1,
                             " or overloaded(")

    def test_an_endpoint_may_have_no_signals(self):
        service = str(int(self.service) + 3)
        path = f"{os.environ['XDG_RUNTIME_DIR']}/vxipc-{service}"
        with socket.socket(socket.AF_UNIX) as listener:
            listener.bind(path)
            self.addCleanup(os.unlink, path)
            listener.listen()

            def answer():
                connection, _ = listener.accept()
                with connection, connection.makefile("rwb", buffering=0) as stream:
                    request = json.loads(stream.readline())
                    stream.write(json.dumps({"jsonrpc": "2.0", "id": request["id"],
                                             "result": {"methods": []}}).encode() + b"\n")
                    stream.readline()

            thread = threading.Thread(target=answer, daemon=True)
            thread.start()
            self.check_complaint(["watch", service], 1, f"vxipc-{service}: it has no signals")
            thread.join()

    def test_refuses_wrong_usage(self):
        commands = "expected list, describe, call or watch"
        service = "expected supplyd, m4, printqd, status, a number or a name printed by list"
        for arguments, complaint in [
                ([], commands), (["nothing"], f"unknown command \"nothing\"; {commands}"),
                (["list", "x"], "list takes no arguments"),
                (["describe"], "describe takes a SERVICE"),
                (["describe", "1", "2"], "describe takes a SERVICE"),
                (["call"], "call takes a SERVICE, a METHOD and its arguments"),
                (["call", "supplyd"], "call takes a SERVICE, a METHOD and its arguments"),
                (["call", "nosuch", "echo"], f"unknown service \"nosuch\"; {service}"),
                (["describe", "vxipc-"], f"unknown service \"vxipc-\"; {service}"),
                (["list", "--other"], "unknown option --other"),
                (["list", "--timeout"], "--timeout takes a number of milliseconds"),
                (["list", "--timeout", "x"], "--timeout takes a number of milliseconds"),
                (["list", "--timeout", "0"], "--timeout takes a number of milliseconds"),
                (["watch"], "watch takes a SERVICE and SIGNALs"),
                (["list", "--for", "1"], "list takes no --for"),
                (["watch", self.service, "--for"], "--for takes a number of seconds"),
                (["watch", self.service, "--for", "0"], "--for takes a number of seconds"),
                (["watch", self.service, "--for", "nan"], "--for takes a number of seconds"),
                (["help", "nothing"],
                 "unknown command \"nothing\"; expected one of list, describe, call, watch"),
                (["nothing", "-h"],
                 "unknown command \"nothing\"; expected one of list, describe, call, watch"),
                (["help", "list", "call"], "help takes at most one command")]:
            with self.subTest(arguments):
                self.check_complaint(arguments, 2, f"vxipc: {complaint} (see vxipc --help)\n")

    def test_helps(self):
        status, overview, _ = self.run_tool("--help")
        self.assertEqual(status, 0)
        for text in ("Usage: vxipc COMMAND", "  list", "  describe SERVICE",
                     "  call SERVICE METHOD [ARGUMENT]...", "  watch SERVICE [SIGNAL]...",
                     "  help [COMMAND]", "  --json", "  --for SECONDS", "  --timeout MS", "  -- ",
                     "  -h, --help", "  --version"):
            self.assertIn(text, overview)
        for arguments in (["-h"], ["help"], ["help", "--version"], ["--json", "--help"]):
            with self.subTest(arguments):
                self.check_output(arguments, overview)

    def test_helps_with_a_command(self):
        usage = {"list": "", "describe": "SERVICE", "call": "SERVICE METHOD [ARGUMENT]...",
                 "watch": "SERVICE [SIGNAL]..."}
        for verb, words in usage.items():
            status, text, _ = self.run_tool("help", verb)
            self.assertEqual(status, 0)
            self.assertEqual(text.splitlines()[0],
                             f"Usage: vxipc {verb} [OPTION]... {words}".rstrip())
            self.assertEqual("--for SECONDS" in text, verb == "watch")
            self.assertEqual("SERVICE is supplyd" in text, verb != "list")
            self.assertLessEqual(max(map(len, text.splitlines())), 80)
            for arguments in ([verb, "--help"], [verb, "-h"], ["-h", verb, "supplyd"]):
                with self.subTest(arguments):
                    self.check_output(arguments, text)

    def test_asks_for_help_only_before_the_arguments(self):
        self.check_output(["call", self.service, "echo", "--", "-h"], "-h\n")
        self.check_output(["call", self.service, "echo", "help"], "help\n")

    def test_says_its_version(self):
        status, output, errors = self.run_tool("--version")
        self.assertEqual((status, errors), (0, ""))
        self.assertRegex(output, r"^vxipc \d+\.\d+\.\d+\n$")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
