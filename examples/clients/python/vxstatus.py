#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Asks the status service of a host which printers there are, and follows every change.

One file without dependencies; copy it into your project. Python 3.9 or later.

    from vxstatus import Client

    with Client() as status:
        for reading in status.call("printers"):
            print(reading["name"], reading["statusCode"])

    with Client() as status:
        status.subscribe("printerChanged", "printerGone")
        for signal, arguments in status.notifications():
            print(signal, arguments)

`AsyncClient` is the same for asyncio. Both find the service of the same user, trust no other one, and
subscribe again after a lost connection. docs/ipc.md describes the messages. Run as a program, it prints
the printers and then each change:

    vxstatus.py [--service N] [--for SECONDS]
"""
from __future__ import annotations

import argparse
import asyncio
import json
import os
import socket
import stat
import sys
import time
from collections import deque
from typing import Any, AsyncIterator, Deque, Dict, Iterator, List, NamedTuple, Optional, Set, Tuple

STATUS = 3
"""The number of the status service."""
RESUBSCRIBED = "rpc.resubscribed"
"""The signal of the notification that a client makes itself after it has connected again. What was
emitted in between is lost, so this is the time to ask for the state again."""

_LONGEST_LINE = 8 << 20  # twice the longest answer of a service
_FIRST_RETRY = 0.1
_LAST_RETRY = 5.0


class Notification(NamedTuple):
    """A signal that the service has emitted."""

    signal: str
    arguments: Dict[str, Any]
    """By name, as the service declares them."""


class CallError(Exception):
    """The service has answered an error."""

    def __init__(self, code: int, message: str, data: Any = None) -> None:
        super().__init__(f"{message} ({code})")
        self.code = code
        """For example -32004: there is no such printer."""
        self.message = message
        self.data = data


class NotReachable(ConnectionError):
    """No service answers, or it is not the user's own."""


# Finding a service and trusting it ####################################################################


def address(service: int = STATUS) -> str:
    """Where the service listens: the path of a socket, or the name of a pipe on Windows.

    Raises NotReachable when other users could have put theirs there.
    """
    name = f"vxipc-{service}"
    if sys.platform == "win32":
        return rf"\\.\pipe\{name}@{_windows_user()}"
    folder = os.environ.get("XDG_RUNTIME_DIR", "")
    if not os.path.isabs(folder):
        folder = f"{os.environ.get('TMPDIR') or '/tmp'}/vxipc-{os.geteuid()}"
    return _own(f"{_own(folder, stat.S_ISDIR)}/{name}", stat.S_ISSOCK)


def _own(path: str, is_kind: Any) -> str:
    """The path, if what is there belongs to the user and nobody else may write to it."""
    try:
        entry = os.lstat(path)
    except OSError as error:
        raise NotReachable(f"no service answers at {path}: {error.strerror}") from error
    if not is_kind(entry.st_mode) or entry.st_uid != os.geteuid() or entry.st_mode & 0o022:
        raise NotReachable(f"{path} is not trusted: other users may have put it there")
    return path


def _connect(service: int, timeout: float) -> socket.socket:
    """A connection to the service on systems with Unix sockets."""
    path = address(service)
    connection = socket.socket(socket.AF_UNIX)
    connection.settimeout(timeout)
    try:
        connection.connect(path)
    except OSError as error:
        connection.close()
        raise NotReachable(f"no service answers at {path}: {error.strerror or error}") from error
    return connection


# Messages #############################################################################################


class _Lines:
    """Collects bytes and gives the lines in them."""

    def __init__(self) -> None:
        self._bytes = bytearray()

    def add(self, more: bytes) -> List[bytes]:
        self._bytes += more
        *lines, rest = self._bytes.split(b"\n")
        if len(rest) > _LONGEST_LINE:
            raise ConnectionError("the service sends a line without an end")
        self._bytes = bytearray(rest)
        return [bytes(line) for line in lines if line.strip()]


def _request(number: int, method: str, arguments: Any) -> bytes:
    return json.dumps({"jsonrpc": "2.0", "id": number, "method": method,
                       "params": arguments}).encode() + b"\n"


def _read(line: bytes) -> Dict[str, Any]:
    try:
        message = json.loads(line)
    except ValueError as error:
        raise ConnectionError("what the service sends is not JSON") from error
    if not isinstance(message, dict) or message.get("jsonrpc") != "2.0":
        raise ConnectionError("what the service sends is not JSON-RPC 2.0")
    return message


def _notification(message: Dict[str, Any]) -> Optional[Notification]:
    if "id" in message or not isinstance(message.get("method"), str):
        return None
    arguments = message.get("params")
    return Notification(message["method"], arguments if isinstance(arguments, dict) else {})


def _result(message: Dict[str, Any]) -> Any:
    error = message.get("error")
    if error is None:
        return message.get("result")
    raise CallError(error.get("code", 0), str(error.get("message", "")), error.get("data"))


def _parameters(positional: Tuple[Any, ...], named: Dict[str, Any]) -> Any:
    if positional and named:
        raise TypeError("arguments are passed by position or by name, not both")
    return named or list(positional)


# Blocking #############################################################################################


class Client:
    """A client whose calls wait for their answers. To be used by one thread at a time.

    `timeout` is how long, in seconds, connecting and each answer may take.
    """

    def __init__(self, service: int = STATUS, timeout: float = 10.0) -> None:
        self.service = service
        self.timeout = timeout
        self._connection: Any = None
        self._lines = _Lines()
        self._received: Deque[Dict[str, Any]] = deque()
        self._notifications: Deque[Notification] = deque()
        self._subscribed: Set[str] = set()
        self._number = 0

    def __enter__(self) -> Client:
        self.connect()
        return self

    def __exit__(self, *_: Any) -> None:
        self.close()

    def connect(self) -> None:
        """Connects unless it is connected, and subscribes again to what was subscribed to.

        Raises NotReachable. Calls connect by themselves.
        """
        if self._connection is not None:
            return
        self._lines = _Lines()
        self._received.clear()
        self._connection = (_WindowsPipe(address(self.service)) if sys.platform == "win32"
                            else _connect(self.service, self.timeout))
        if self._subscribed:
            # What was received over the old connection comes before, what is emitted from now on
            # behind the answer.
            try:
                self._exchange("rpc.subscribe", sorted(self._subscribed),
                               then=Notification(RESUBSCRIBED, {}))
            except BaseException:
                self.close()
                raise

    def close(self) -> None:
        """Ends the connection. What was subscribed to is subscribed to again with the next one."""
        if self._connection is not None:
            self._connection.close()
            self._connection = None

    def call(self, method: str, *arguments: Any, **named: Any) -> Any:
        """Calls a method with arguments by position or by name, and returns its result.

        Raises CallError when the service answers an error, NotReachable or another ConnectionError
        when there is no connection, and TimeoutError when no answer comes. A connection that was lost
        is made again by the next call.
        """
        parameters = _parameters(arguments, named)
        self.connect()
        return self._exchange(method, parameters)

    def subscribe(self, *signals: str) -> List[str]:
        """Has `notifications` give the emissions of these signals too. Returns all that are
        subscribed to."""
        subscribed: List[str] = self.call("rpc.subscribe", *signals)
        self._subscribed.update(signals)
        return subscribed

    def unsubscribe(self, *signals: str) -> List[str]:
        """Ends subscriptions. What was received before is still given."""
        self._subscribed.difference_update(signals)
        remaining: List[str] = self.call("rpc.unsubscribe", *signals)
        return remaining

    def notifications(self, timeout: Optional[float] = None) -> Iterator[Notification]:
        """Gives each emission as it arrives, for `timeout` seconds or without end.

        Calls may be made in between. When the connection is lost, this connects again, at growing
        intervals, subscribes again, and gives RESUBSCRIBED.
        """
        end = None if timeout is None else time.monotonic() + timeout
        retry = _FIRST_RETRY
        while True:
            while self._notifications:
                yield self._notifications.popleft()
            rest = None if end is None else end - time.monotonic()
            if rest is not None and rest <= 0:
                return
            try:
                self.connect()
                retry = _FIRST_RETRY
                self._receive(rest)
            except TimeoutError:
                continue
            except ConnectionError:
                self.close()
                time.sleep(retry if rest is None else min(retry, rest))
                retry = min(2 * retry, _LAST_RETRY)

    def _exchange(self, method: str, parameters: Any,
                  then: Optional[Notification] = None) -> Any:
        """Sends a request and waits for its answer. `then` is put where the answer arrives among the
        notifications."""
        self._number += 1
        number = self._number
        end = time.monotonic() + self.timeout
        try:
            self._connection.settimeout(self.timeout)
            self._connection.sendall(_request(number, method, parameters))
            while True:
                while self._received:
                    message = self._received.popleft()
                    # An answer without a number is an error about the connection.
                    if message.get("id") in (number, None):
                        return _result(message)
                rest = end - time.monotonic()
                if rest <= 0:
                    raise TimeoutError(f"no answer to {method} within {self.timeout} s")
                self._receive(rest, number, then)
        except ConnectionError as error:
            self.close()
            raise ConnectionError(f"the connection has ended: {error}") from error

    def _receive(self, timeout: Optional[float], number: Optional[int] = None,
                 then: Optional[Notification] = None) -> None:
        """Waits for bytes once, and takes the messages in them."""
        self._connection.settimeout(timeout)
        try:
            received = self._connection.recv(1 << 16)
        except socket.timeout as error:  # TimeoutError itself since Python 3.10
            raise TimeoutError("nothing arrived") from error
        if not received:
            raise ConnectionError("the service has ended the connection")
        for line in self._lines.add(received):
            message = _read(line)
            notification = _notification(message)
            if notification:
                self._notifications.append(notification)
                continue
            self._received.append(message)
            if then is not None and message.get("id") == number and "error" not in message:
                self._notifications.append(then)


# asyncio ##############################################################################################


class AsyncClient:
    """The same for asyncio: calls can be awaited while notifications arrive.

        async with AsyncClient() as status:
            await status.subscribe("printerChanged")
            printers = await status.call("printers")
            async for signal, arguments in status.notifications():
                ...
    """

    def __init__(self, service: int = STATUS, timeout: float = 10.0) -> None:
        self.service = service
        self.timeout = timeout
        self._writer: Any = None
        self._reading: Optional[asyncio.Task[None]] = None
        self._connecting = asyncio.Lock()
        self._calls: Dict[int, Tuple[asyncio.Future[Any], Optional[Notification]]] = {}
        self._notifications: asyncio.Queue[Optional[Notification]] = asyncio.Queue()
        self._subscribed: Set[str] = set()
        self._number = 0
        self._is_closed = False

    async def __aenter__(self) -> AsyncClient:
        await self.connect()
        return self

    async def __aexit__(self, *_: Any) -> None:
        await self.close()

    async def connect(self) -> None:
        """Connects unless it is connected, and subscribes again. Raises NotReachable."""
        async with self._connecting:
            if self._writer is not None:
                return
            if sys.platform == "win32":
                pipe = _WindowsPipe(address(self.service))
                reader, self._writer = _PipeReader(pipe), _PipeWriter(pipe)
            else:
                connection = _connect(self.service, self.timeout)
                connection.setblocking(False)
                reader, self._writer = await asyncio.open_unix_connection(sock=connection)
            self._is_closed = False
            self._reading = asyncio.ensure_future(self._read(reader, self._writer))
            if self._subscribed:
                try:
                    await self._exchange("rpc.subscribe", sorted(self._subscribed),
                                         then=Notification(RESUBSCRIBED, {}))
                except BaseException as error:
                    self._reading.cancel()
                    self._lose(ConnectionError(str(error)))
                    raise

    async def close(self) -> None:
        """Ends the connection, and `notifications` with it."""
        self._is_closed = True
        if self._reading is not None:
            self._reading.cancel()
            await asyncio.gather(self._reading, return_exceptions=True)
        self._lose(ConnectionError("the client was closed"))

    async def call(self, method: str, *arguments: Any, **named: Any) -> Any:
        """Calls a method with arguments by position or by name, and returns its result.

        Raises what `Client.call` raises.
        """
        parameters = _parameters(arguments, named)
        await self.connect()
        return await self._exchange(method, parameters)

    async def subscribe(self, *signals: str) -> List[str]:
        """Has `notifications` give the emissions of these signals too. Returns all that are
        subscribed to."""
        subscribed: List[str] = await self.call("rpc.subscribe", *signals)
        self._subscribed.update(signals)
        return subscribed

    async def unsubscribe(self, *signals: str) -> List[str]:
        """Ends subscriptions. What was received before is still given."""
        self._subscribed.difference_update(signals)
        remaining: List[str] = await self.call("rpc.unsubscribe", *signals)
        return remaining

    async def notifications(self) -> AsyncIterator[Notification]:
        """Gives each emission as it arrives, until the client is closed. For one task.

        When the connection is lost, this connects again, at growing intervals, subscribes again, and
        gives RESUBSCRIBED.
        """
        retry = _FIRST_RETRY
        while not self._is_closed:
            while not self._notifications.empty():
                received = self._notifications.get_nowait()
                if received is not None:
                    yield received
            if self._is_closed:
                return
            try:
                await self.connect()
                retry = _FIRST_RETRY
            except (ConnectionError, TimeoutError):
                await asyncio.sleep(retry)
                retry = min(2 * retry, _LAST_RETRY)
                continue
            notification = await self._notifications.get()
            if notification is not None:
                yield notification

    async def _exchange(self, method: str, parameters: Any,
                        then: Optional[Notification] = None) -> Any:
        self._number += 1
        number = self._number
        answer: asyncio.Future[Any] = asyncio.get_running_loop().create_future()
        self._calls[number] = (answer, then)
        try:
            self._writer.write(_request(number, method, parameters))
            await self._writer.drain()
            message = await asyncio.wait_for(answer, self.timeout)
        except asyncio.TimeoutError as error:
            raise TimeoutError(f"no answer to {method} within {self.timeout} s") from error
        finally:
            self._calls.pop(number, None)
        return _result(message)

    async def _read(self, reader: Any, writer: Any) -> None:
        lines = _Lines()
        try:
            while True:
                received = await reader.read(1 << 16)
                if not received:
                    raise ConnectionError("the service has ended the connection")
                for line in lines.add(received):
                    self._take(_read(line))
        except OSError as error:
            if writer is self._writer:
                self._lose(error)

    def _take(self, message: Dict[str, Any]) -> None:
        notification = _notification(message)
        if notification:
            self._notifications.put_nowait(notification)
            return
        number = message.get("id")
        # An answer without a number is an error about the connection.
        answered = list(self._calls) if number is None else [number]
        for each in answered:
            answer, then = self._calls.get(each, (None, None))
            if answer is None or answer.done():
                continue
            answer.set_result(message)
            # Ahead of what arrives behind the answer.
            if then is not None and "error" not in message:
                self._notifications.put_nowait(then)

    def _lose(self, error: Exception) -> None:
        if self._writer is not None:
            self._writer.close()
            self._writer = None
        for answer, _ in self._calls.values():
            if not answer.done():
                answer.set_exception(error)
        # Wakes `notifications`, which connects again.
        self._notifications.put_nowait(None)


# Windows ##############################################################################################

if sys.platform == "win32":
    import ctypes
    from ctypes import wintypes

    _kernel32 = ctypes.WinDLL("kernel32", use_last_error=True)
    _advapi32 = ctypes.WinDLL("advapi32", use_last_error=True)
    _kernel32.CreateFileW.restype = wintypes.HANDLE
    _kernel32.CreateFileW.argtypes = [wintypes.LPCWSTR, wintypes.DWORD, wintypes.DWORD,
                                      ctypes.c_void_p, wintypes.DWORD, wintypes.DWORD,
                                      wintypes.HANDLE]
    _kernel32.CloseHandle.argtypes = [wintypes.HANDLE]
    _kernel32.GetCurrentProcess.restype = wintypes.HANDLE
    _kernel32.LocalFree.argtypes = [ctypes.c_void_p]
    _kernel32.PeekNamedPipe.argtypes = [wintypes.HANDLE, ctypes.c_void_p, wintypes.DWORD,
                                        ctypes.c_void_p, ctypes.POINTER(wintypes.DWORD),
                                        ctypes.c_void_p]
    _kernel32.ReadFile.argtypes = [wintypes.HANDLE, ctypes.c_void_p, wintypes.DWORD,
                                   ctypes.POINTER(wintypes.DWORD), ctypes.c_void_p]
    _kernel32.WriteFile.argtypes = _kernel32.ReadFile.argtypes
    _advapi32.OpenProcessToken.argtypes = [wintypes.HANDLE, wintypes.DWORD,
                                           ctypes.POINTER(wintypes.HANDLE)]
    _advapi32.GetTokenInformation.argtypes = [wintypes.HANDLE, ctypes.c_int, ctypes.c_void_p,
                                              wintypes.DWORD, ctypes.POINTER(wintypes.DWORD)]
    _advapi32.ConvertSidToStringSidW.argtypes = [ctypes.c_void_p,
                                                 ctypes.POINTER(wintypes.LPWSTR)]
    _advapi32.GetSecurityInfo.argtypes = [wintypes.HANDLE, ctypes.c_int, wintypes.DWORD,
                                          ctypes.POINTER(ctypes.c_void_p), ctypes.c_void_p,
                                          ctypes.c_void_p, ctypes.c_void_p,
                                          ctypes.POINTER(ctypes.c_void_p)]

    def _sid_text(sid: Any) -> str:
        text = wintypes.LPWSTR()
        if not _advapi32.ConvertSidToStringSidW(sid, ctypes.byref(text)):
            raise ctypes.WinError(ctypes.get_last_error())
        try:
            return text.value or ""
        finally:
            _kernel32.LocalFree(text)

    def _windows_user() -> str:
        """The user's security identifier as a text."""
        token_query, token_user = 8, 1
        token = wintypes.HANDLE()
        if not _advapi32.OpenProcessToken(_kernel32.GetCurrentProcess(), token_query,
                                          ctypes.byref(token)):
            raise ctypes.WinError(ctypes.get_last_error())
        try:
            size = wintypes.DWORD()
            _advapi32.GetTokenInformation(token, token_user, None, 0, ctypes.byref(size))
            user = ctypes.create_string_buffer(size.value)
            if not _advapi32.GetTokenInformation(token, token_user, user, size,
                                                 ctypes.byref(size)):
                raise ctypes.WinError(ctypes.get_last_error())
            # TOKEN_USER begins with the pointer to the identifier.
            return _sid_text(ctypes.cast(user, ctypes.POINTER(ctypes.c_void_p))[0])
        finally:
            _kernel32.CloseHandle(token)

    class _WindowsPipe:
        """A pipe of which the user is the owner, with the interface of a socket that is used here."""

        def __init__(self, name: str) -> None:
            self._timeout: Optional[float] = None
            generic_read_write, open_existing = 0xC0000000, 3
            # The service can identify this process, but not impersonate it.
            sqos_present, identification = 0x00100000, 0x00010000
            self._handle = _kernel32.CreateFileW(name, generic_read_write, 0, None, open_existing,
                                                 sqos_present | identification, None)
            if self._handle == wintypes.HANDLE(-1).value:
                error = ctypes.WinError(ctypes.get_last_error())
                raise NotReachable(f"no service answers at {name}: {error.strerror}")
            if self._owner() != _windows_user():
                self.close()
                raise NotReachable(f"{name} is not trusted: it belongs to another user")

        def _owner(self) -> str:
            kernel_object, owner_information = 6, 1
            owner, descriptor = ctypes.c_void_p(), ctypes.c_void_p()
            error = _advapi32.GetSecurityInfo(self._handle, kernel_object, owner_information,
                                              ctypes.byref(owner), None, None, None,
                                              ctypes.byref(descriptor))
            if error:
                raise ctypes.WinError(error)
            try:
                return _sid_text(owner)
            finally:
                _kernel32.LocalFree(descriptor)

        def settimeout(self, timeout: Optional[float]) -> None:
            self._timeout = timeout

        def recv(self, size: int) -> bytes:
            # Never begins to read before there is something: that would block writing, too.
            end = None if self._timeout is None else time.monotonic() + self._timeout
            available = wintypes.DWORD()
            while True:
                if self._handle is None or not _kernel32.PeekNamedPipe(
                        self._handle, None, 0, None, ctypes.byref(available), None):
                    return b""
                if available.value:
                    break
                if end is not None and time.monotonic() >= end:
                    raise socket.timeout("nothing arrived")
                time.sleep(0.01)
            buffer = ctypes.create_string_buffer(min(size, available.value))
            read = wintypes.DWORD()
            if not _kernel32.ReadFile(self._handle, buffer, len(buffer), ctypes.byref(read), None):
                return b""
            return buffer.raw[:read.value]

        def sendall(self, line: bytes) -> None:
            written = wintypes.DWORD()
            while line:
                if not _kernel32.WriteFile(self._handle, line, len(line), ctypes.byref(written),
                                           None):
                    raise ConnectionError("the service has ended the connection")
                line = line[written.value:]

        def close(self) -> None:
            handle, self._handle = self._handle, None
            if handle is not None:
                _kernel32.CloseHandle(handle)

    class _PipeReader:
        """A pipe as a stream of asyncio, which opens pipes without the two protections above."""

        def __init__(self, pipe: _WindowsPipe) -> None:
            self._pipe = pipe
            self._pipe.settimeout(None)

        async def read(self, size: int) -> bytes:
            loop = asyncio.get_running_loop()
            return await loop.run_in_executor(None, self._pipe.recv, size)

    class _PipeWriter:
        def __init__(self, pipe: _WindowsPipe) -> None:
            self._pipe = pipe
            self._lines: List[bytes] = []

        def write(self, line: bytes) -> None:
            self._lines.append(line)

        async def drain(self) -> None:
            lines, self._lines = b"".join(self._lines), []
            await asyncio.get_running_loop().run_in_executor(None, self._pipe.sendall, lines)

        def close(self) -> None:
            self._pipe.close()


# The program ##########################################################################################


def _describe(reading: Dict[str, Any]) -> str:
    """A reading in a line. Names come from drivers and other people, so they are shown escaped."""
    parts = [json.dumps(reading["name"], ensure_ascii=True), f"status {reading['statusCode']}"]
    if reading.get("presence") == "gone":
        parts.append("gone")
    elif not reading["online"]:
        parts.append("offline")
    for slot in ("supply", "ribbon1", "ribbon2"):
        level = reading.get(slot)
        if level and level.get("ratio") is not None:
            parts.append(f"{slot} {level['ratio']:.0%}")
    return ", ".join(parts)


def _main() -> int:
    parser = argparse.ArgumentParser(
        description="Prints the printers of the status service, and then each change.")
    parser.add_argument("--service", type=int, default=STATUS, metavar="N",
                        help="the number of the service (default: %(default)s)")
    parser.add_argument("--for", type=float, dest="seconds", metavar="SECONDS",
                        help="end after SECONDS (default: when interrupted)")
    options = parser.parse_args()
    client = Client(options.service)

    def print_all() -> None:
        for reading in client.call("printers"):
            print(_describe(reading), flush=True)

    try:
        client.subscribe("printerChanged", "printerAdded", "printerGone", "printerRenamed")
        print_all()
        for signal, arguments in client.notifications(options.seconds):
            if signal == RESUBSCRIBED:
                try:
                    print_all()
                except ConnectionError:
                    pass  # lost again; the next connection gives it again
            elif "reading" in arguments:
                print(_describe(arguments["reading"]), flush=True)
            else:
                print(f"{signal}: {json.dumps(arguments)}", flush=True)
    except KeyboardInterrupt:
        pass
    except BrokenPipeError:
        # The reader has read all it wants.
        os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
    except (OSError, CallError) as error:
        print(f"vxstatus: {error}", file=sys.stderr)
        return 1
    finally:
        client.close()
    return 0


if __name__ == "__main__":
    sys.exit(_main())
