# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Tests of the script that runs the tests. Usage: test_run_until_silent.py RUNNER"""
import os
import select
import signal
import subprocess
import sys
import tempfile
import time
import unittest

RUNNER = sys.argv.pop(1)
FAR = "3600"


def run(program, *, idle=FAR, work=FAR):
    """Runs a Python program under the runner."""
    return subprocess.run(
        [RUNNER, "--idle", idle, "--work", work, sys.executable, "-c", program],
        stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def wait_for_end(process_id):
    """If the process does not end, this waits until this test is ended as hanging."""
    try:
        process = os.pidfd_open(process_id)
    except ProcessLookupError:
        return
    select.select([process], [], [])
    os.close(process)


class RunUntilSilent(unittest.TestCase):
    def test_removes_the_temporary_files_of_a_test_and_of_what_it_started(self):
        program = ("import os, subprocess, tempfile\n"
                   "open(os.path.join(tempfile.mkdtemp(), 'file'), 'w').close()\n"
                   "print(tempfile.gettempdir(), flush=True)\n")
        for end, status in (("", 0), ("os.kill(os.getpid(), 9)\n", -signal.SIGKILL)):
            done = run(program + end)
            self.assertEqual(done.returncode, status)
            self.assertNotEqual(done.stdout.strip(), tempfile.gettempdir())
            self.assertFalse(os.path.exists(done.stdout.strip()), done.stdout)

    def test_passes_on_output_and_status(self):
        done = run("import sys; print('out', flush=True); print('err', file=sys.stderr); sys.exit(7)")
        self.assertEqual((done.stdout, done.returncode), ("out\nerr\n", 7))

    def test_exits_as_the_test_does(self):
        done = run("import os; print('before', flush=True); os.abort()")
        self.assertEqual((done.stdout, done.returncode), ("before\n", -signal.SIGABRT))
        self.assertEqual(run("import os; os.kill(os.getpid(), 9)").returncode, -signal.SIGKILL)

    def test_ends_a_test_that_waits_forever(self):
        done = run("import time; print('before', flush=True); time.sleep(3600)", idle="1")
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stdout, "^before\n.*printed nothing and was idle for 1 s and was ended")

    def test_ends_a_test_in_an_endless_loop(self):
        done = run("while True: pass", work="1")
        self.assertEqual(done.returncode, 1)
        self.assertIn("printed nothing in 1 s of processor time and was ended", done.stdout)

    def test_ends_a_test_that_ignores_the_request_to_end(self):
        done = run("import signal, time; signal.signal(signal.SIGTERM, signal.SIG_IGN)\n"
                   "time.sleep(3600)", idle="1")
        self.assertEqual(done.returncode, 1)

    def test_does_not_end_a_test_with_output(self):
        done = run("import time\nfor i in range(15): print(i, flush=True); time.sleep(0.2)", idle="2")
        self.assertEqual((done.returncode, len(done.stdout.split())), (0, 15))

    def test_does_not_end_a_test_that_uses_the_processor(self):
        # In a child process, as a compiler is a child process of a build.
        work = "import time\nwhile time.process_time() < 3: pass"
        done = run(f"import subprocess, sys; subprocess.run([sys.executable, '-c', {work!r}])\n"
                   "print('done')", idle="2")
        self.assertEqual((done.stdout, done.returncode), ("done\n", 0))

    def test_does_not_end_a_test_that_the_system_blocks(self):
        # A process that spawns a program is blocked until it runs, and this program first waits for a
        # writer of the pipe.
        with tempfile.TemporaryDirectory() as folder:
            pipe = os.path.join(folder, "pipe")
            os.mkfifo(pipe)
            program = ("import os\n"
                       f"opening = (os.POSIX_SPAWN_OPEN, 3, {pipe!r}, os.O_RDONLY, 0)\n"
                       "os.waitpid(os.posix_spawn('/bin/true', ['true'], {}, file_actions=[opening]), 0)\n"
                       "print('done')")
            with subprocess.Popen([RUNNER, "--idle", "1", sys.executable, "-c", program],
                                  stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, text=True) as runner:
                time.sleep(3)
                while runner.poll() is None:
                    try:
                        os.close(os.open(pipe, os.O_WRONLY | os.O_NONBLOCK))
                    except OSError:
                        time.sleep(0.1)  # the reader has not opened it yet
                self.assertEqual((runner.stdout.read(), runner.returncode), ("done\n", 0))

    def test_counts_only_the_work_since_the_last_output(self):
        # The runner is stopped for a while, as on a busy machine, and then sees output and work at once.
        done = run("import os, signal, time\n"
                   "def work():\n"
                   "    for i in range(8):\n"
                   "        end = time.process_time() + 0.2\n"
                   "        while time.process_time() < end: pass\n"
                   "        print(i, flush=True)\n"
                   "os.kill(os.getppid(), signal.SIGSTOP)\n"
                   "work()\n"
                   "os.kill(os.getppid(), signal.SIGCONT)\n"
                   "work()", work="1")
        self.assertEqual((done.returncode, len(done.stdout.split())), (0, 16))

    def test_does_not_wait_for_processes_left_running(self):
        sleeper = "import time; time.sleep(3600)"
        done = run("import subprocess, sys\n"
                   f"print(subprocess.Popen([sys.executable, '-c', {sleeper!r}]).pid)")
        self.assertEqual(done.returncode, 0)
        wait_for_end(int(done.stdout))

    def test_ends_the_test_when_it_is_ended_itself(self):
        for number in (signal.SIGTERM, signal.SIGKILL):
            with subprocess.Popen(
                    [RUNNER, sys.executable, "-c",
                     "import os, time; print(os.getpid(), flush=True); time.sleep(3600)"],
                    stdout=subprocess.PIPE, text=True) as runner:
                test = int(runner.stdout.readline())
                runner.send_signal(number)
                wait_for_end(test)

    def test_tests_are_interrupted_also_in_the_background(self):
        def be_in_the_background():
            for number in (signal.SIGINT, signal.SIGQUIT):
                signal.signal(number, signal.SIG_IGN)

        for number in (signal.SIGINT, signal.SIGQUIT):
            done = subprocess.run(
                [RUNNER, "--idle", FAR, "--work", FAR, "sh", "-c", f"kill -{int(number)} $$; echo alive"],
                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                preexec_fn=be_in_the_background)
            self.assertEqual(done.stdout, "")
            self.assertNotEqual(done.returncode, 0)

    def test_reports_a_program_that_cannot_be_started(self):
        done = subprocess.run([RUNNER, "no/such/program"], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True)
        self.assertEqual(done.returncode, 1)
        self.assertIn("cannot start no/such/program: No such file or directory", done.stdout)


if __name__ == "__main__":
    unittest.main()
