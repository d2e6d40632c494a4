# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""MQTT clients that say what a broker allows them."""
import contextlib
import queue
import select
import ssl
import threading
import time

import paho.mqtt.client as mqtt

LIMIT = 60


class Refused(Exception):
    """The broker does not take this client."""


class Silent(Exception):
    """The broker does not answer."""


class Client:
    """A client that is connected, and does not connect again."""

    def __init__(self, port, authority, user=None, password=None, certificate=None, protocol=mqtt.MQTTv311):
        self.messages = queue.SimpleQueue()
        self._client = mqtt.Client(protocol=protocol)
        self._changed = threading.Condition()
        # Of two threads that write to a connection over TLS at a time, one spoils what the other writes.
        self._using = threading.RLock()
        self._code = None
        self._granted = {}
        self._lost = False
        self._client.on_connect = self._on_connect
        self._client.on_subscribe = self._on_subscribe
        self._client.on_message = lambda _client, _data, message: self.messages.put(message)
        if user:
            self._client.username_pw_set(user, password)
        if authority:
            context = ssl.create_default_context(cafile=authority)
            if certificate:
                context.load_cert_chain(*certificate)
            self._client.tls_set_context(context)
        try:
            self._client.connect("127.0.0.1", port, keepalive=600)
        except (OSError, ssl.SSLError) as error:
            if self._client.socket():
                self._client.socket().close()
            raise Refused(str(error)) from error
        self._is_closed = False
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()
        with self._changed:
            is_answered = self._changed.wait_for(lambda: self._code is not None or self._lost, LIMIT)
        if self._code != 0:
            self.close()
            raise Refused(f"code {self._code}") if is_answered else Silent(f"no answer within {LIMIT} s")

    def _run(self):
        # A connection that the broker ends while the library reads or writes is an exception there.
        with contextlib.suppress(OSError, ValueError):
            while not self._is_closed and self._work() == mqtt.MQTT_ERR_SUCCESS:
                pass
        with self._changed:
            self._lost = True
            self._changed.notify_all()

    def _work(self):
        connection = self._client.socket()
        if connection is None:
            return mqtt.MQTT_ERR_NO_CONN
        readable = isinstance(connection, ssl.SSLSocket) and connection.pending() > 0
        if not readable:
            writing = [connection] if self._client.want_write() else []
            readable = select.select([connection], writing, [], 0.1)[0]
        with self._using:
            result = self._client.loop_read() if readable else mqtt.MQTT_ERR_SUCCESS
            if result == mqtt.MQTT_ERR_SUCCESS and self._client.want_write():
                result = self._client.loop_write()
            return self._client.loop_misc() if result in (mqtt.MQTT_ERR_SUCCESS, mqtt.MQTT_ERR_AGAIN) else result

    def _on_connect(self, _client, _data, _flags, code, *_):
        with self._changed:
            self._code = code if isinstance(code, int) else code.value
            self._changed.notify_all()

    def _on_subscribe(self, _client, _data, number, granted, *_):
        with self._changed:
            self._granted[number] = granted
            self._changed.notify_all()

    def subscribe(self, topic, qos=0):
        """True if the broker allows it."""
        with self._using:
            _, number = self._client.subscribe(topic, qos)
        with self._changed:
            if not self._changed.wait_for(lambda: number in self._granted or self._lost, LIMIT):
                raise AssertionError(f"the broker does not answer to the subscription to {topic}")
        granted = self._granted.get(number, [128])
        return all((code if isinstance(code, int) else code.value) < 128 for code in granted)

    def send(self, topic, payload):
        """Publishes a retained message without waiting for the answer."""
        with self._using:
            self._client.publish(topic, payload, qos=1, retain=True)

    def publish(self, topic, payload, retain=False):
        """Returns when the broker has answered or ended the connection."""
        with self._using:
            message = self._client.publish(topic, payload, qos=1, retain=retain)
        deadline = time.monotonic() + LIMIT
        while not message.is_published() and not self._lost:
            if time.monotonic() > deadline:
                raise AssertionError(f"the broker does not answer to what was published to {topic}")
            time.sleep(0.02)
        return message.is_published()

    def next(self, limit=LIMIT):
        """The next message as (topic, payload)."""
        message = self.messages.get(timeout=limit)
        return message.topic, message.payload.decode()

    def close(self):
        with contextlib.suppress(OSError), self._using:
            self._client.disconnect()
        self._is_closed = True
        self._thread.join()
