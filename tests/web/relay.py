# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""What stands between the page and a broker: it can be cut, be silent, or answer with garbage."""
import contextlib
import os
import socket
import threading


class Relay:
    """A port that passes connections on to another."""

    def __init__(self, target):
        self._target = target
        self._mode = "pass"
        self._sockets = set()
        self._lock = threading.Lock()
        self.accepted = 0
        self._listener = socket.create_server(("127.0.0.1", 0))
        self.port = self._listener.getsockname()[1]
        threading.Thread(target=self._accept, daemon=True).start()

    @property
    def address(self):
        return f"ws://127.0.0.1:{self.port}/mqtt"

    def set_mode(self, mode):
        """`pass`, `refuse` (closes at once), `silent` (never answers) or `garbage`. Ends all connections."""
        with self._lock:
            self._mode = mode
            sockets, self._sockets = self._sockets, set()
        for one in sockets:
            with contextlib.suppress(OSError):
                one.shutdown(socket.SHUT_RDWR)

    def _accept(self):
        while True:
            try:
                client, _ = self._listener.accept()
            except OSError:
                return
            self.accepted += 1
            threading.Thread(target=self._serve, args=(client,), daemon=True).start()

    def _serve(self, client):
        with contextlib.ExitStack() as stack, contextlib.suppress(OSError):
            stack.enter_context(client)
            with self._lock:
                mode = self._mode
                self._sockets.add(client)
            if mode == "refuse":
                return
            if mode == "garbage":
                client.recv(65536)
                client.sendall(os.urandom(5000))
                return
            if mode == "silent":
                while client.recv(65536):
                    pass
                return
            server = stack.enter_context(socket.create_connection(("127.0.0.1", self._target)))
            with self._lock:
                self._sockets.add(server)
            threading.Thread(target=self._copy, args=(server, client), daemon=True).start()
            self._copy(client, server)

    @staticmethod
    def _copy(source, target):
        with contextlib.suppress(OSError):
            while data := source.recv(65536):
                target.sendall(data)
        for one in (source, target):
            with contextlib.suppress(OSError):
                one.shutdown(socket.SHUT_RDWR)

    def close(self):
        # accept does not return by itself when the listener is closed.
        with contextlib.suppress(OSError):
            self._listener.shutdown(socket.SHUT_RDWR)
        self._listener.close()
        self.set_mode("refuse")
