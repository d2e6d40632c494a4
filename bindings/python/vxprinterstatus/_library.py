# SPDX-License-Identifier: MIT
# Copyright The VxPrinterStatus authors
"""Finds and loads the library, and declares its functions as vxkit.h does."""
from __future__ import annotations

import ctypes
import ctypes.util
import os
import sys
import threading
from pathlib import Path
from typing import Callable, List, Optional

from ._errors import InvalidArgumentError, LibraryNotFoundError, Result, error_of

_INTERFACE_MAJOR = 1
_INTERFACE_MINOR = 0

# session, change, printer, old name, fields, user data
CALLBACK = ctypes.CFUNCTYPE(
    None,
    ctypes.c_void_p,
    ctypes.c_int32,
    ctypes.c_char_p,
    ctypes.c_char_p,
    ctypes.c_uint32,
    ctypes.c_void_p,
)


class NativeCommandResult(ctypes.Structure):
    """vxkit_command_result."""

    _fields_ = [
        ("size", ctypes.c_uint32),
        ("failure", ctypes.c_int32),
        ("system_error", ctypes.c_uint32),
        ("job", ctypes.c_uint32),
        ("bytes", ctypes.c_int64),
    ]


_HANDLE = ctypes.c_void_p
_TEXT = ctypes.c_char_p
_INT = ctypes.c_int32
_FLAGS = ctypes.c_uint32
_SIZE = ctypes.c_size_t
_BUFFER = [ctypes.c_char_p, ctypes.c_size_t, ctypes.POINTER(ctypes.c_size_t)]
_HANDLE_RESULT = ctypes.POINTER(ctypes.c_void_p)
_SIZE_RESULT = ctypes.POINTER(ctypes.c_size_t)
_COMMAND_RESULT = ctypes.POINTER(NativeCommandResult)

_FUNCTIONS = {
    "vxkit_library_version": _BUFFER,
    "vxkit_last_error": _BUFFER,
    "vxkit_create": [_HANDLE_RESULT],
    "vxkit_set_option": [_HANDLE, _INT, _TEXT],
    "vxkit_start": [_HANDLE],
    "vxkit_stop": [_HANDLE],
    "vxkit_destroy": [_HANDLE],
    "vxkit_is_running": [_HANDLE, ctypes.POINTER(ctypes.c_int64)],
    "vxkit_read_all": [_HANDLE, _HANDLE_RESULT],
    "vxkit_read": [_HANDLE, _TEXT, _HANDLE_RESULT],
    "vxkit_readings_free": [_HANDLE],
    "vxkit_readings_count": [_HANDLE, _SIZE_RESULT],
    "vxkit_reading_json": [_HANDLE, _SIZE, *_BUFFER],
    "vxkit_reading_text": [_HANDLE, _SIZE, _INT, *_BUFFER],
    "vxkit_active_printer": [_HANDLE, *_BUFFER],
    "vxkit_status_json": [_HANDLE, _INT, _TEXT, *_BUFFER],
    "vxkit_all_status_json": [_HANDLE, _TEXT, *_BUFFER],
    "vxkit_add_callback": [_HANDLE, CALLBACK, ctypes.c_void_p, ctypes.POINTER(ctypes.c_uint64)],
    "vxkit_remove_callback": [_HANDLE, ctypes.c_uint64],
    "vxkit_send_text": [_HANDLE, _TEXT, _TEXT, _FLAGS, _COMMAND_RESULT],
    "vxkit_send_bytes": [_HANDLE, _TEXT, ctypes.c_char_p, _SIZE, _FLAGS, _COMMAND_RESULT],
}


def _file_names() -> List[str]:
    if sys.platform == "win32":
        return ["vxprinterstatuskit.dll"]
    # The first is the name under which programs find it, the second that of a folder of a build.
    return [f"libvxprinterstatuskit.so.{_INTERFACE_MAJOR}", "libvxprinterstatuskit.so"]


def _in_folder(folder: Path) -> Optional[str]:
    for name in _file_names():
        if (folder / name).exists():
            return str((folder / name).resolve())
    return None


def _places() -> List[str]:
    """What to load, in this order, until something can be."""
    named = os.environ.get("VXPRINTERSTATUS_LIBRARY")
    if named:
        path = Path(named)
        if not path.is_dir():
            return [str(path.resolve())]
        found = _in_folder(path)
        if found is None:
            raise LibraryNotFoundError(
                f"VXPRINTERSTATUS_LIBRARY is the folder {named!r}, in which there is no {_file_names()[-1]}"
            )
        return [found]
    beside = _in_folder(Path(__file__).resolve().parent)
    if beside is not None:
        return [beside]
    found = ctypes.util.find_library("vxprinterstatuskit")
    return ([found] if found else []) + _file_names()


def _load() -> ctypes.CDLL:
    errors = []
    for place in _places():
        try:
            library = ctypes.CDLL(place)
            break
        except OSError as error:
            errors.append(str(error))
    else:
        raise LibraryNotFoundError(
            "the library vxprinterstatuskit cannot be loaded; set VXPRINTERSTATUS_LIBRARY to its file or "
            "folder: " + "; ".join(errors)
        )
    try:
        library.vxkit_interface_version.argtypes = []
        library.vxkit_interface_version.restype = ctypes.c_uint32
        version = library.vxkit_interface_version()
        if version >> 16 != _INTERFACE_MAJOR or version & 0xFFFF < _INTERFACE_MINOR:
            raise LibraryNotFoundError(
                f"{library._name} has version {version >> 16}.{version & 0xFFFF} of the interface; this "
                f"package needs {_INTERFACE_MAJOR}.{_INTERFACE_MINOR} or a later {_INTERFACE_MAJOR}.x"
            )
        for name, arguments in _FUNCTIONS.items():
            function = getattr(library, name)
            function.argtypes = arguments
            function.restype = ctypes.c_int32
    except AttributeError as error:
        raise LibraryNotFoundError(f"{library._name} is another library: {error}") from None
    return library


_lock = threading.Lock()
_library: Optional[ctypes.CDLL] = None


def library() -> ctypes.CDLL:
    """The library, which is loaded by the first call."""
    global _library
    with _lock:
        if _library is None:
            _library = _load()
        return _library


def read_text(function: Callable[..., int], *arguments: object) -> str:
    """A text that a function writes to a buffer."""
    size = 1024
    while True:
        buffer = ctypes.create_string_buffer(size)
        needed = ctypes.c_size_t(0)
        result = function(*arguments, buffer, size, ctypes.byref(needed))
        if result == Result.BUFFER_TOO_SMALL:
            size = needed.value
            continue
        check(result)
        return buffer.value.decode("utf-8")


def check(result: int) -> None:
    """Raises the exception for a result that is not OK."""
    if result == Result.OK:
        return
    buffer = ctypes.create_string_buffer(1024)
    library().vxkit_last_error(buffer, len(buffer), None)
    raise error_of(result, buffer.value.decode("utf-8"))


def text_bytes(text: str, what: str) -> bytes:
    """A text as the library takes it."""
    if "\0" in text:
        raise InvalidArgumentError(f"{what} has a zero character", Result.INVALID_TEXT)
    try:
        return text.encode("utf-8")
    except UnicodeEncodeError as error:
        raise InvalidArgumentError(f"{what} cannot be encoded: {error}", Result.INVALID_TEXT) from None
