#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What a Prometheus takes that reads a fleet of agents with the configuration and the rules of deploy/prometheus.

A real agent gives the text of ten virtual printers. A process of this script serves it for a thousand agents, each
under a path of its own and with values that change at each scrape. Measured are the series and samples, memory,
processor time, how long scrapes and the rules take, and how large the samples are on the disk, in a block that the
Prometheus writes at the end. Rules that look back for days have only the minutes of this run to read.

Usage: bench_prometheus.py VXPRINTAGENT [--agents NUMBER] [--printers NUMBER] [--seconds SECONDS]
"""
import argparse
import contextlib
import http.server
import json
import multiprocessing
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time
import urllib.parse
import urllib.request

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests/deploy"))

from shipped import DEPLOY, with_changes  # first: it adds the path of brokers
from brokers import Server, find_program, free_ports, until

# The series whose values change while printers print.
CHANGING = re.compile(r"^(vx_(?:supply_remaining|supply_consumed|printer_last_report)[^{]*\{[^}]*\}) (\S+)$", re.MULTILINE)
WARM_UP = 60


def fetch(address, **headers):
    with urllib.request.urlopen(urllib.request.Request(address, headers=headers), timeout=60) as answer:
        return answer.read().decode()


def text_of_an_agent(program, folder, printers):
    """What a real agent answers, once all its printers have told everything."""
    (port,) = free_ports(1)
    (folder / "agent.json").write_text(json.dumps(
        {"site": "plant-1", "dataFolder": "data", "metrics": {"listen": f"127.0.0.1:{port}"}}))
    values = {"StatusCode": "1", "SupplyIdentifier": "000000641000030000A7", "Mileage": 30480,
              "Ribbon1Identifier": 2001, "Ribbon1Mileage": 30480, "Ribbon2Identifier": 2001, "Ribbon2Mileage": 30480}
    (folder / "fleet.json").write_text(json.dumps({"printers": [
        {"name": f"Printer {number}", "driver": "Stratamark AlderMax", "values": values} for number in range(printers)]}))
    agent = Server([program, "run", "--config", str(folder / "agent.json"), "--virtual", str(folder / "fleet.json")],
                   [port], str(folder / "agent.log"))
    try:
        def text():
            found = fetch(f"http://127.0.0.1:{port}/metrics", Accept="application/openmetrics-text")
            return found if found.count("vx_supply_remaining_ratio{") == 3 * printers else None
        return until(text, "the agent's metrics")
    finally:
        agent.close()


def serve(text, port):
    """Answers for every agent, until it is ended."""
    parts = []
    end = 0
    for found in CHANGING.finditer(text):
        parts.append((text[end:found.end(1)], float(found.group(2))))
        end = found.end()
    rest = text[end:]

    class Handler(http.server.BaseHTTPRequestHandler):
        protocol_version = "HTTP/1.1"

        def do_GET(self):
            agent = int(self.path.rsplit("/", 1)[1])
            factor = 1 + (time.time() + agent) % 1000 / 1e4
            body = ("".join(f"{part} {value * factor:.6g}" for part, value in parts) + rest).encode()
            self.send_response(200)
            self.send_header("Content-Type", "application/openmetrics-text; version=1.0.0; charset=utf-8")
            self.send_header("Content-Length", str(len(body)))
            self.end_headers()
            self.wfile.write(body)

        def log_message(self, *_):
            pass

    class Listener(http.server.ThreadingHTTPServer):
        request_queue_size = 1024
        daemon_threads = True

        def handle_error(self, *_):
            """A Prometheus that ends does not take leave."""

    Listener(("127.0.0.1", port), Handler).serve_forever()


def cpu_seconds(process):
    fields = pathlib.Path(f"/proc/{process}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def resident_mib(process):
    status = pathlib.Path(f"/proc/{process}/status").read_text()
    return int(re.search(r"VmRSS:\s+(\d+)", status).group(1)) / 1024


class Prometheus:
    def __init__(self, folder, agents, port_of_agents):
        self.folder = folder
        (self.port,) = free_ports(1)
        shutil.copy(DEPLOY / "prometheus/vxprint.rules.yml", folder)
        (folder / "prometheus.yml").write_text(with_changes(
            (DEPLOY / "prometheus/prometheus.yml").read_text(), {"'127.0.0.1:9093'": ""}))
        (folder / "agents").mkdir()
        targets = [{"targets": [f"127.0.0.1:{port_of_agents}"],
                    "labels": {"__metrics_path__": f"/agent/{number}", "instance": f"pc-{number}:9464", "site": "plant-1"}}
                   for number in range(agents)]
        (folder / "agents/plant-1.yml").write_text(json.dumps(targets))  # which is YAML too
        self._server = Server(
            [find_program("prometheus"), f"--config.file={folder}/prometheus.yml", f"--storage.tsdb.path={folder}/data",
             f"--web.listen-address=127.0.0.1:{self.port}", "--web.enable-admin-api", "--log.level=warn"],
            [self.port], str(folder / "log"))
        self.process = self._server.process
        until(self._is_ready, "Prometheus is ready")
        self.close = self._server.close

    def _is_ready(self):
        with contextlib.suppress(OSError):
            return bool(fetch(f"http://127.0.0.1:{self.port}/-/ready"))
        return False

    def api(self, path, data=None):
        request = urllib.request.Request(f"http://127.0.0.1:{self.port}/api/v1/{path}", data=data,
                                         method="GET" if data is None else "POST")
        with urllib.request.urlopen(request, timeout=120) as answer:
            return json.load(answer)["data"]

    def value(self, query):
        result = self.api(f"query?query={urllib.parse.quote(query)}")["result"]
        return float(result[0]["value"][1]) if result else 0.0

    def block(self):
        """The samples of the head as a block, its size in bytes, and of that what grows with the samples."""
        name = self.api("admin/tsdb/snapshot", b"")["name"]
        folder = self.folder / "data/snapshots" / name
        samples = sum(json.loads(meta.read_text())["stats"]["numSamples"] for meta in folder.glob("*/meta.json"))
        sizes = {file: file.stat().st_size for file in folder.rglob("*") if file.is_file()}
        return samples, sum(sizes.values()), sum(size for file, size in sizes.items() if file.parent.name == "chunks")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--agents", type=int, default=1000)
    parser.add_argument("--printers", type=int, default=10)
    parser.add_argument("--seconds", type=float, default=120)
    arguments = parser.parse_args()
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory(prefix="vx-bench-prometheus-")))
        text = text_of_an_agent(arguments.program, folder, arguments.printers)
        print(f"an agent's text: {len(text)} bytes, {sum(not line.startswith('#') for line in text.splitlines())} series")
        (port,) = free_ports(1)
        server = multiprocessing.Process(target=serve, args=(text, port), daemon=True)
        server.start()
        stack.callback(server.join)
        stack.callback(server.terminate)
        prometheus = stack.enter_context(contextlib.closing(Prometheus(folder, arguments.agents, port)))
        until(lambda: prometheus.value('count(up{job="vxprintagent"} == 1)') == arguments.agents, "all agents are read")
        time.sleep(WARM_UP)
        began, before = time.monotonic(), cpu_seconds(prometheus.process)
        time.sleep(arguments.seconds)
        passed, used = time.monotonic() - began, cpu_seconds(prometheus.process) - before
        head = prometheus.api("status/tsdb")["headStats"]
        per_scrape = prometheus.value('sum(scrape_samples_scraped{job="vxprintagent"})')
        print(f"{head['numSeries']} series, {per_scrape / 15:.0f} samples a second; agents that answer: "
              f"{prometheus.value('sum(up)'):.0f}")
        print(f"processor time {used / passed * 100:.1f} % of a core, {resident_mib(prometheus.process):.0f} MiB")
        print(f"a scrape takes {prometheus.value('quantile(0.5, scrape_duration_seconds)') * 1000:.1f} ms, 99 % within "
              f"{prometheus.value('quantile(0.99, scrape_duration_seconds)') * 1000:.1f} ms")
        for group in prometheus.api("rules")["groups"]:
            print(f"rules {group['name']}: {len(group['rules'])} rules in {group['evaluationTime'] * 1000:.0f} ms")
        samples, size, chunks = prometheus.block()
        print(f"a block of {samples} samples has {size / 2 ** 20:.1f} MiB, {chunks / 2 ** 20:.1f} of it the samples, "
              f"{chunks / samples:.2f} bytes each, {samples / head['numSeries']:.0f} to a series")
        wal = sum(file.stat().st_size for file in (folder / "data/wal").rglob("*") if file.is_file())
        print(f"write-ahead log {wal / 2 ** 20:.1f} MiB; load {os.getloadavg()[0]:.1f}")


if __name__ == "__main__":
    main()
