#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What a fleet of agents asks of a broker, beside the least by hand that sends the same messages.

A thousand agents with ten printers each come at one moment, as after a power cut: each connects, says that it is
online and publishes ten retained readings. Then printers change, one change for each every thirty seconds, and
every tenth change has an event. Everything is sent with QoS 1, over TLS, with the name and the rights of a site,
to the brokers of deploy/ on this computer: one mosquitto, or three NATS servers among which the agents are shared
out. A reader that subscribes as the page does notes when each reading arrives, and a second one that comes after
the start how long it takes until it has all of them. Each way has brokers of its own that begin empty.

The agents, their readers and the brokers share the processors of this computer, so times are longer than where
each has its own.

Usage: bench_fleet.py PROGRAM [--brokers mosquitto nats] [--agents NUMBER] [--printers NUMBER]
                      [--interval SECONDS] [--seconds SECONDS] [--rounds NUMBER] [--password-cost NUMBER]

PROGRAM is the built bench_fleet.
"""
import argparse
import json
import os
import pathlib
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests/deploy"))

from shipped import PASSWORDS  # first: it adds the path of brokers
from certificates import Authority
from test_mosquitto import Mosquitto
from test_nats import NatsCluster

USER = "plant-1-agents"


class OneMosquitto:
    options = ()

    def __init__(self, folder, authority, _password_cost):
        self._broker = Mosquitto(folder, authority)
        self.ports = [self._broker.port]
        self.processes = [self._broker.server.process]
        self.close = self._broker.close

    def stored(self):
        """mosquitto writes its state when it ends, and every half hour."""
        return 0


class ThreeNats:
    options = ("--nats-topics",)

    def __init__(self, folder, authority, password_cost):
        self._folder = folder
        self._cluster = NatsCluster(folder, authority, password_cost=password_cost)
        self.ports = self._cluster.mqtt
        self.processes = [server.process for server in self._cluster.servers]
        self.close = self._cluster.close

    def stored(self):
        """What the streams take on the disk, in MiB, on all servers together."""
        return sum(file.stat().st_blocks * 512 for file in self._folder.rglob("store/**/*") if file.is_file()) / 2 ** 20


BROKERS = {"mosquitto": OneMosquitto, "nats": ThreeNats}


def measure(arguments, name, by_hand):
    folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-bench-fleet-"))
    try:
        authority = Authority(folder / "ca")
        (folder / "password").touch(mode=0o600)
        (folder / "password").write_text(PASSWORDS[USER])
        broker = BROKERS[name](folder, authority, arguments.password_cost)
        try:
            run = subprocess.run(
                [arguments.program, *(f"--broker=mqtts://127.0.0.1:{port}" for port in broker.ports),
                 *(f"--process={process}" for process in broker.processes), *broker.options,
                 *(["--by-hand"] if by_hand else []), "--ca", authority.file, "--user", USER,
                 "--password-file", str(folder / "password"), "--agents", str(arguments.agents),
                 "--printers", str(arguments.printers), "--interval", str(arguments.interval),
                 "--seconds", str(arguments.seconds)], stdout=subprocess.PIPE, text=True, check=False)
            if run.returncode != 0:
                sys.exit(f"{name}, {'by hand' if by_hand else 'agents'}: failed")
            result = json.loads(run.stdout)
            result["storedMiB"] = broker.stored()
            return result
        finally:
            broker.close()
    finally:
        shutil.rmtree(folder)


def report(title, result):
    for part in ("storm", "steady"):
        values = result[part]
        seconds = values["seconds"]
        print(f"{title} {part:6} {seconds:6.1f} s, {values['messages']:.0f} messages ({values['messages'] / seconds:.0f}/s, "
              f"{values['bytes'] / seconds / 1024:.0f} KiB/s); own processor time {values['cpu']:.2f} s; "
              f"brokers {values['brokerCpu']:.2f} s, {values['brokerMiBBefore']:.0f} to {values['brokerMiB']:.0f} MiB, "
              f"{values['writtenMiB']:.1f} MiB written; to a reader {values['delayMedian']:.1f} ms, 99 % within "
              f"{values['delayP99']:.1f} ms ({values['received']:.0f}); {values['connections']:.0f} connections", flush=True)
    print(f"{title} all retained readings after {result['retainedSeconds']:.2f} s; {result['storedMiB']:.1f} MiB stored",
          flush=True)


def compare(name, results):
    def ratio(part, value):
        return statistics.median(one["agents"][part][value] / one["by hand"][part][value] for one in results)

    for part in ("storm", "steady"):
        wall = f"time {ratio(part, 'seconds'):.2f}, " if part == "storm" else ""
        print(f"{name} {part}: agents / by hand: {wall}own processor time {ratio(part, 'cpu'):.2f}, brokers' processor "
              f"time {ratio(part, 'brokerCpu'):.2f}, median delay {ratio(part, 'delayMedian'):.2f}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--brokers", nargs="+", choices=BROKERS, default=list(BROKERS))
    parser.add_argument("--agents", type=int, default=1000)
    parser.add_argument("--printers", type=int, default=10)
    parser.add_argument("--interval", type=float, default=30)
    parser.add_argument("--seconds", type=float, default=30)
    parser.add_argument("--rounds", type=int, default=1)
    parser.add_argument("--password-cost", type=int, default=4, help="of the hashes that NATS compares with (deploy: 11)")
    arguments = parser.parse_args()
    _, most = resource.getrlimit(resource.RLIMIT_NOFILE)
    resource.setrlimit(resource.RLIMIT_NOFILE, (most, most))
    for name in arguments.brokers:
        results = []
        for number in range(arguments.rounds):
            ways = ("by hand", "agents") if number % 2 == 0 else ("agents", "by hand")
            results.append({way: measure(arguments, name, way == "by hand") for way in ways})
            for way in ways:
                report(f"{name}, {way}:", results[-1][way])
            print(f"load {os.getloadavg()[0]:.1f}", flush=True)
        compare(name, results)


if __name__ == "__main__":
    main()
