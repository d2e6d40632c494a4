# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Real brokers for tests, on ports that are free, in folders that are removed; and a publisher."""
import contextlib
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import threading
import time

import paho.mqtt.client as mqtt

sys.path.append(str(pathlib.Path(__file__).resolve().parents[1] / "support"))
from ports import free_ports  # noqa: E402 (the folder is added above)

# In seconds; ends what hangs.
LIMIT = 120


def find_program(name):
    """Debian keeps some programs where only root looks for them."""
    return shutil.which(name) or shutil.which(name, path="/usr/sbin:/sbin:/usr/local/sbin")


def answers(port):
    with contextlib.suppress(OSError):
        with socket.create_connection(("127.0.0.1", port), timeout=1):
            return True
    return False


def until(condition, what, limit=LIMIT):
    """Waits until the condition answers something true, and returns that. Says every ten seconds that it
    waits: who waits for a cluster on a busy machine does not hang. `what` is a text, or a function that makes it."""
    def text():
        return what() if callable(what) else what
    began = said = time.monotonic()
    while True:
        value = condition()
        if value:
            return value
        now = time.monotonic()
        if now > began + limit:
            raise AssertionError(f"{text()}: not within {limit} s")
        if now > said + 10:
            said = now
            print(f"waiting: {text()}", flush=True)
        time.sleep(0.02)


class Server:
    """A program that listens, with its output in a file."""

    def __init__(self, command, ports, log):
        self._command = command
        self._ports = ports
        self._log = log
        self._process = None
        self.start()

    def start(self):
        until(self._started, lambda: f"{self._command[0]} on {self._ports}: {self.log()[-2000:]}")

    def _started(self):
        if self._process is None or self._process.poll() is not None:
            with open(self._log, "ab") as log:
                self._process = subprocess.Popen(self._command, stdin=subprocess.DEVNULL, stdout=log,
                                                 stderr=subprocess.STDOUT)
            time.sleep(0.05)
        return self._process.poll() is None and all(map(answers, self._ports))

    @property
    def process(self):
        return self._process.pid

    def log(self):
        return pathlib.Path(self._log).read_text(errors="replace") if os.path.exists(self._log) else ""

    def reload(self):
        self._process.send_signal(signal.SIGHUP)

    def pause(self):
        self._process.send_signal(signal.SIGSTOP)

    def resume(self):
        self._process.send_signal(signal.SIGCONT)

    def kill(self):
        if self._process is not None:
            self._process.kill()
            self._process.wait()

    close = kill


class Nats(Server):
    """One NATS server with MQTT over TCP and over WebSockets."""

    def __init__(self, extra=""):
        self.folder = tempfile.mkdtemp(prefix="vx-nats-")
        self._client, self.mqtt, self.websocket = free_ports(3)
        configuration = pathlib.Path(self.folder, "nats.conf")
        configuration.write_text(f"""
server_name: test
listen: "127.0.0.1:{self._client}"
jetstream {{ store_dir: "{self.folder}/store" }}
mqtt {{ host: "127.0.0.1", port: {self.mqtt} }}
websocket {{ host: "127.0.0.1", port: {self.websocket}, no_tls: true }}
{extra}
""")
        super().__init__([find_program("nats-server"), "-c", str(configuration)], [self.mqtt, self.websocket],
                         f"{self.folder}/log")

    @property
    def address(self):
        return f"ws://127.0.0.1:{self.websocket}/mqtt"

    def close(self):
        self.kill()
        shutil.rmtree(self.folder)


class Publisher:
    """An MQTT client that waits until the broker has what it published, and publishes it again if the
    broker was away meanwhile."""

    def __init__(self, port, will=None, user=None, password=None, prepare=None):
        self._client = mqtt.Client(protocol=mqtt.MQTTv311)
        self._connected = threading.Event()
        self._refused = None
        self._client.on_connect = self._on_connect
        self._client.on_disconnect = lambda *_: self._connected.clear()
        self._client.reconnect_delay_set(min_delay=1, max_delay=1)
        if will:
            self._client.will_set(will, "offline", qos=1, retain=True)
        if user:
            self._client.username_pw_set(user, password)
        if prepare:
            prepare(self._client)
        self._client.connect_async("127.0.0.1", port, keepalive=600)
        self._client.loop_start()
        if not self._connected.wait(LIMIT):
            raise AssertionError(f"the publisher is not connected within {LIMIT} s: {self._refused}")

    def _on_connect(self, _client, _data, _flags, code):
        self._refused = code
        if code == 0:
            self._connected.set()

    def publish(self, topic, payload, retain=True, qos=1):
        """Publishes without waiting for the answer."""
        return self._client.publish(topic, payload, qos=qos, retain=retain)

    def put(self, topic, payload, retain=True):
        def is_published():
            try:
                return message.is_published()
            except RuntimeError:  # published while it was not connected: the client sends it later
                return False

        if not self._connected.wait(LIMIT):
            raise AssertionError(f"the publisher is not connected again within {LIMIT} s")
        message = self.publish(topic, payload, retain)
        until(is_published, f"publishing to {topic}")

    def die(self):
        """Ends as a process that was killed does: without a word, so that the broker publishes the will."""
        self._client.loop_stop()
        self._client.socket().shutdown(socket.SHUT_RDWR)
        self._client.socket().close()

    def close(self):
        self._client.disconnect()
        self._client.loop_stop()
