# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""The agent with deploy/nats/agent.json on the three servers of deploy/nats, with the account and the rights of its site.

test_agent_on_nats.py VXPRINTAGENT

VX_CLUSTER_KILLS=50 kills servers so often instead of for about 90 seconds, VX_KILL_SEED=NUMBER repeats the moments
of an earlier run.
"""
import contextlib
import json
import os
import pathlib
import random
import shutil
import ssl
import subprocess
import sys
import tempfile
import threading
import unittest

from shipped import DEPLOY, PASSWORDS  # first: it adds the path of brokers
from test_nats import LIMIT, NatsCluster

import paho.mqtt.client as mqtt

from brokers import Nats, find_program, until
from certificates import Authority

AGENT = sys.argv.pop(1) if len(sys.argv) > 1 else None
PRINTERS = 20
SECONDS_BETWEEN_CHANGES = 0.05
# Each server is killed at least so often, and as often as there is time until the story ends.
KILLS = int(os.environ.get("VX_CLUSTER_KILLS", "12"))
# What a kill takes on a machine that is not busy, until all servers take clients again.
SECONDS_FOR_A_KILL = 6
CHANGES = int(KILLS * SECONDS_FOR_A_KILL / SECONDS_BETWEEN_CHANGES)
# Readings with this code are those at the end of the story: no other change has it.
LAST_CODE = 5
# Events that come while a reader is away are kept only for one with QoS 1, which needs the right to more than
# its topics: NATS delivers them under subjects of its own. The page reads with QoS 0.
RECORDER = '{ user: "recorder", password: "secret", permissions: { publish: ">", subscribe: ">" } }'
# A reader whose server fails gets again what it has not acknowledged, but only after this time and after what has
# come since. With one message at a time, the order in which it reads is that in which they were published.
ONE_AT_A_TIME = 'max_ack_pending: 1\nack_wait: "2s"'
# Names with what NATS does not take in a topic.
ROOT = "vxprint/v1/plant-1/pc%201%2Eb/"


def name_of(number):
    return f"Line {number}.a"


def topic_of(number):
    return f"{ROOT}printer/Line%20{number}%2Ea"


def content(event):
    """An event without what is added to it on its way, and without its time: each place where it is written
    takes its own."""
    return {key: value for key, value in event.items() if key not in ("time", "session", "seq", "historical")}


def last_mileage(number):
    return 1000 + number


def fleet():
    """Printers that change in turns, and at last each to values of its own."""
    values = {"StatusCode": "1", "SupplyIdentifier": "000000641000030000A7", "Mileage": 30480}
    timeline = [{"at": SECONDS_BETWEEN_CHANGES * number, "printer": name_of(number % PRINTERS),
                 "values": {"StatusCode": "4" if number // PRINTERS % 2 == 0 else "1"}}
                for number in range(CHANGES)]
    timeline += [{"at": SECONDS_BETWEEN_CHANGES * CHANGES, "printer": name_of(number),
                  "values": {"StatusCode": str(LAST_CODE), "Mileage": last_mileage(number)}}
                 for number in range(PRINTERS)]
    return {"printers": [{"name": name_of(number), "driver": "Stratamark Alder", "values": values}
                         for number in range(PRINTERS)], "timeline": timeline}


class Reader:
    """Reads a site. The broker keeps for it the events that come while it is away."""

    def __init__(self, port, authority, name="reader", is_new=False):
        self.states = {}  # the last payload of each topic but of events
        self.events = []  # as they came, also those that came twice
        self._subscribed = threading.Event()
        self._client = mqtt.Client(name, clean_session=is_new, protocol=mqtt.MQTTv311)
        self._client.username_pw_set("recorder", "secret")
        self._client.tls_set_context(ssl.create_default_context(cafile=authority))
        self._client.reconnect_delay_set(min_delay=1, max_delay=1)
        self._client.on_connect = lambda client, *_: client.subscribe(
            [("vxprint/v1/plant-1/+/event", 1), ("vxprint/v1/plant-1/+/state", 0), ("vxprint/v1/plant-1/+/printer/+", 0)])
        self._client.on_subscribe = lambda *_: self._subscribed.set()
        self._client.on_message = self._on_message
        self._client.connect("127.0.0.1", port, keepalive=600)
        self._client.loop_start()
        until(self._subscribed.is_set, "the reader's subscription", LIMIT)

    def _on_message(self, _client, _data, message):
        payload = message.payload.decode()
        if message.topic == f"{ROOT}event":
            self.events.append(json.loads(payload))
        else:
            self.states[message.topic] = payload

    def has_last_reading(self, number):
        reading = json.loads(self.states.get(topic_of(number), "{}"))
        return reading.get("statusCode") == LAST_CODE and reading["supply"]["mileage"] == last_mileage(number)

    def close(self):
        self._client.disconnect()
        self._client.loop_stop()


def run_agent(folder):
    """The agent with the configuration and the printers in the folder, and with its messages in agent.log there."""
    with open(folder / "agent.log", "ab") as log:
        return subprocess.Popen(
            [AGENT, "run", "--config", str(folder / "agent.json"), "--virtual", str(folder / "fleet.json")],
            stdin=subprocess.DEVNULL, stdout=log, stderr=subprocess.STDOUT)


class AgentOnNatsTest(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="vx-agent-on-nats-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def start_cluster(self):
        self.authority = Authority(self.folder / "ca")
        self.cluster = NatsCluster(self.folder, self.authority, more_users=RECORDER, more_mqtt=ONE_AT_A_TIME)
        self.addCleanup(self.cluster.close)

    def start_agent(self, server):
        password = self.folder / "password"
        password.touch(mode=0o600)
        password.write_text(PASSWORDS["plant-1-agents"])
        config = json.loads((DEPLOY / "nats/agent.json").read_text())
        config |= {"host": "pc 1.b", "dataFolder": "data", "eventLog": "events.log"}
        config["mqtt"] |= {"url": f"mqtts://127.0.0.1:{self.cluster.mqtt[server]}", "passwordFile": "password",
                           "caFile": self.authority.file, "reconnectSeconds": 1}
        (self.folder / "agent.json").write_text(json.dumps(config))
        (self.folder / "fleet.json").write_text(json.dumps(fleet()))
        agent = run_agent(self.folder)
        self.addCleanup(lambda: print((self.folder / "agent.log").read_text(errors="replace"), flush=True))
        self.addCleanup(agent.wait)
        self.addCleanup(agent.kill)
        return agent

    def logged(self):
        """The agent's events as it writes them to files of its own, whether there is a broker or not. A full file
        becomes events.log.1, and that events.log.2."""
        lines = []
        for number in range(9, -1, -1):
            with contextlib.suppress(FileNotFoundError):
                lines += (self.folder / f"events.log{f'.{number}' if number else ''}").read_bytes().splitlines(keepends=True)
        return [line for line in lines if line.endswith(b"\n")]

    def story_is_over(self):
        last = map(json.loads, self.logged()[-2 * PRINTERS:])
        return {event["printer"] for event in last if event.get("code") == LAST_CODE} \
            == {name_of(number) for number in range(PRINTERS)}

    def let_happen(self, events):
        """Waits until so many events more have happened, or there are no more."""
        enough = len(self.logged()) + events
        until(lambda: len(self.logged()) >= enough or self.story_is_over(), f"{events} events", LIMIT)

    def states_at(self, server, count):
        late = Reader(self.cluster.mqtt[server], self.authority.file, "late", is_new=True)
        try:
            until(lambda: len(late.states) >= count, f"{count} states", 10)
        except AssertionError:
            pass  # a server that has not caught up has fewer
        finally:
            late.close()
        return late.states

    def kill_servers(self, chance):
        """Any one at any moment, until each was killed often enough and nothing changes any more."""
        kills = []
        while len(kills) < KILLS or min(kills.count(number) for number in range(3)) < KILLS // 4 \
                or not self.story_is_over():
            self.let_happen(chance.randrange(20))
            kills.append(chance.randrange(3))
            server = self.cluster.servers[kills[-1]]
            server.kill()
            self.let_happen(chance.randrange(60))
            server.start()
            self.cluster.wait_until_ready()
            print(f"{len(kills)} kills, the last one of server {kills[-1] + 1}", flush=True)
        return kills

    def test_no_state_and_no_event_is_lost_with_any_one_server(self):
        seed = int(os.environ.get("VX_KILL_SEED", random.randrange(100000)))
        print(f"VX_KILL_SEED={seed}", flush=True)
        self.start_cluster()
        reader = Reader(self.cluster.mqtt[2], self.authority.file)
        self.addCleanup(reader.close)
        agent = self.start_agent(0)
        until(lambda: len(reader.events) > PRINTERS, "the first events", LIMIT)
        kills = self.kill_servers(random.Random(seed))
        until(lambda: all(map(reader.has_last_reading, range(PRINTERS))), "the last states", LIMIT)
        kept = [content(json.loads(line)) for line in self.logged()]
        until(lambda: len({event["seq"] for event in reader.events}) >= len(kept), "the last events", LIMIT)

        self.assertEqual(len({event["session"] for event in reader.events}), 1)
        first = {}
        for event in reader.events:
            first.setdefault(event["seq"], content(event))
        self.assertEqual(list(first), list(range(1, len(first) + 1)))
        self.assertEqual(list(first.values()), kept)
        print(f"{len(kills)} kills, of each server {[kills.count(number) for number in range(3)]}; {len(first)} events "
              f"in {len(reader.events)} messages", flush=True)
        # Each server sends the same to a reader that comes now. One that has just come back may hand out old states
        # until it has caught up, and does not send the new ones to who has those: so it is another reader each time.
        for server in range(3):
            until(lambda server=server: self.states_at(server, len(reader.states)) == reader.states,
                  f"the states at server {server + 1}", LIMIT)
        self.assertEqual(reader.states[f"{ROOT}state"], "online")
        agent.kill()
        until(lambda: reader.states[f"{ROOT}state"] == "offline", "the agent's last will", LIMIT)

    def test_a_topic_that_nats_refuses_is_named(self):
        """Without "natsTopics", a space or a dot in the name of a printer or of the computer."""
        server = Nats()
        self.addCleanup(server.close)
        for host, topic in (("pc", "vxprint/v1/plant-1/pc/printer/Line 0.a"), ("pc.x", "vxprint/v1/plant-1/pc.x/state")):
            with self.subTest(host):
                folder = self.folder / host
                folder.mkdir()
                (folder / "agent.json").write_text(json.dumps({
                    "site": "plant-1", "host": host, "dataFolder": "data",
                    "mqtt": {"url": f"mqtt://127.0.0.1:{server.mqtt}"}}))
                (folder / "fleet.json").write_text(json.dumps(
                    {"printers": [{"name": name_of(0), "driver": "Stratamark Alder"}]}))
                agent = run_agent(folder)
                self.addCleanup(agent.wait)
                self.addCleanup(agent.kill)
                log = folder / "agent.log"
                until(lambda log=log: 'set "natsTopics" to true' in log.read_text(), f"the hint: {log.read_text()}", LIMIT)
                self.assertIn(f'"{topic}"', log.read_text())


if __name__ == "__main__":
    if not find_program("nats-server"):
        print("not installed: nats-server; scripts/test installs what the tests need")
        sys.exit(77)
    unittest.main()
