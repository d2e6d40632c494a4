#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Has programs of others read the agent's metrics: promtool, and a strict parser of OpenMetrics.

test_metrics.py VXPRINTAGENT PRINT_METRICS
"""
import contextlib
import pathlib
import resource
import socket
import subprocess
import sys
import tempfile
import unittest

from prometheus_client.openmetrics.parser import text_string_to_metric_families as parse_open
from prometheus_client.parser import text_string_to_metric_families as parse_plain

from agent_process import Agent, wait_for

VXPRINTAGENT, PRINT_METRICS = sys.argv[1:]
ALWAYS = {"vx_printer_info", "vx_printer_status_code", "vx_printer_online", "vx_printer_error",
          "vx_printer_last_report_timestamp_seconds", "vx_supply_remaining_ratio",
          "vx_supply_remaining_meters", "vx_supply_remaining_labels", "vx_supply_consumed_meters_total"}
EVERYTHING = ALWAYS | {"vx_supply_estimated_seconds_remaining"}


def printed(*arguments):
    return subprocess.run([PRINT_METRICS, *arguments], check=True,
                          stdout=subprocess.PIPE).stdout.decode("utf-8")


def samples_of(families):
    return [(sample.name, tuple(sorted(sample.labels.items())), sample.value)
            for family in families for sample in family.samples]


class Metrics(unittest.TestCase):
    def assert_promtool_accepts(self, text):
        checked = subprocess.run(["promtool", "check", "metrics"], input=text.encode(),
                                 stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.assertEqual((checked.returncode, checked.stdout), (0, b""))

    def test_promtool_accepts_hostile_names(self):
        text = printed()
        self.assert_promtool_accepts(text)
        self.assertLessEqual(EVERYTHING, {name for name, _, _ in samples_of(parse_plain(text))})

    def test_openmetrics_accepts_hostile_names(self):
        samples = samples_of(parse_open(printed("--open")))
        self.assertLessEqual(EVERYTHING, {name for name, _, _ in samples})

    def test_both_formats_say_the_same(self):
        open_samples = samples_of(parse_open(printed("--open")))
        plain = samples_of(parse_plain(printed()))
        steady = [each for each in plain if "timestamp" not in each[0]]
        self.assertEqual(steady, [each for each in open_samples if "timestamp" not in each[0]])
        self.assertEqual(len(plain), len(open_samples))

    def test_no_series_is_forged_or_told_twice(self):
        samples = samples_of(parse_plain(printed()))
        series = [(name, labels) for name, labels, _ in samples]
        self.assertEqual(len(series), len(set(series)))
        printers = [dict(labels)["printer"] for name, labels in series if name == "vx_printer_online"]
        self.assertEqual(len(printers), 12)
        self.assertNotIn("forged", printers)

    def test_the_agent_serves_what_promtool_accepts(self):
        with tempfile.TemporaryDirectory() as folder:
            textfile = pathlib.Path(folder) / "vxprint.prom"
            agent = Agent(folder, VXPRINTAGENT, textfile=str(textfile))
            try:
                def complete():
                    text = agent.get("/metrics")
                    names = {name for name, _, _ in samples_of(parse_plain(text))}
                    return text if ALWAYS <= names else None
                self.assert_promtool_accepts(wait_for(complete, "a series of every metric"))
                opened = agent.get("/metrics", {"Accept": "application/openmetrics-text"})
                self.assertLessEqual(ALWAYS, {name for name, _, _ in samples_of(parse_open(opened))})
                self.assert_promtool_accepts(textfile.read_text("utf-8"))
                self.assertIn("vx_printer_online", textfile.read_text("utf-8"))
            finally:
                agent.stop()
            self.assertEqual(agent.process.returncode, 0)
            self.assertFalse(textfile.exists())

    def test_an_address_in_use_is_one_clear_line(self):
        with tempfile.TemporaryDirectory() as folder:
            agent = Agent(folder, VXPRINTAGENT)
            try:
                config = pathlib.Path(folder) / "second.json"
                config.write_text('{"site": "plant-1",\n "metrics":\n  {"listen": "127.0.0.1:%d"}}' % agent.port)
                second = subprocess.run([VXPRINTAGENT, "run", "--config", str(config)], stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, encoding="utf-8")
            finally:
                agent.stop()
        last = second.stderr.splitlines()[-1]
        self.assertEqual(second.returncode, 1)
        self.assertIn(f"{config}:3: metrics.listen: cannot serve metrics at 127.0.0.1:{agent.port}: ", last)
        self.assertIn("enter an address of this computer and a port that is free", last)

    def test_connections_leave_descriptors_for_files(self):
        allowed, connections, of_its_own = 300, 400, 60

        def limit():
            resource.setrlimit(resource.RLIMIT_NOFILE, (allowed, allowed))
        with tempfile.TemporaryDirectory() as folder, contextlib.ExitStack() as sockets:
            agent = Agent(folder, VXPRINTAGENT, prepare=limit)
            sockets.callback(agent.kill)
            for _ in range(connections):
                sockets.enter_context(socket.create_connection(("127.0.0.1", agent.port)))
            self.assertIn("vx_printer_online", agent.get("/metrics"))
            descriptors = len(list(pathlib.Path(f"/proc/{agent.process.pid}/fd").iterdir()))
            # 256 are kept for everything else, most of which it does not need here.
            self.assertLess(descriptors, allowed - 256 + of_its_own)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=2)
