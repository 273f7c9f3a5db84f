"""The platform's side of the binary contract on Windows."""

from __future__ import annotations

import sys

assert sys.platform == "win32"

import ctypes
import os
import struct
from collections.abc import Iterator
from contextlib import ExitStack, contextmanager
from ctypes import c_char_p, c_int, c_uint32, c_void_p, c_wchar_p
from typing import Any, Optional, Union

LIBRARY_NAME = "TavrinLib.dll"
#: How many entries the table of a slot has before GetColorCode.
DESTRUCTORS = 1

_LC_NUMERIC = 4
_ENABLE_PER_THREAD_LOCALE = 1
_LONGEST_PATH = 32768

_kernel = ctypes.WinDLL("kernel32", use_last_error=True)
_kernel.GetProcessHeap.restype = c_void_p
_kernel.GetProcessHeap.argtypes = []
_kernel.HeapFree.restype = c_int
_kernel.HeapFree.argtypes = [c_void_p, c_uint32, c_void_p]
_kernel.GetModuleFileNameW.restype = c_uint32
_kernel.GetModuleFileNameW.argtypes = [c_void_p, c_wchar_p, c_uint32]


def release(array: Any) -> None:
    """Gives back an array that the library has handed out."""
    if array:
        _kernel.HeapFree(_kernel.GetProcessHeap(), 0, array)


def encode_path(path: Union[str, bytes, os.PathLike[str], os.PathLike[bytes]]) -> bytes:
    """The path as the library takes it: in the ANSI code page, which must have its characters."""
    return os.fsdecode(path).encode("mbcs")


def text_encoding() -> str:
    """The encoding of texts in a definition: the ANSI code page."""
    return "mbcs"


@contextmanager
def _c_numeric_locale_of(runtime: ctypes.CDLL) -> Iterator[None]:
    runtime.setlocale.restype = c_char_p
    runtime.setlocale.argtypes = [c_int, c_char_p]
    threads = runtime._configthreadlocale(_ENABLE_PER_THREAD_LOCALE)
    previous = runtime.setlocale(_LC_NUMERIC, None)
    runtime.setlocale(_LC_NUMERIC, b"C")
    try:
        yield
    finally:
        runtime.setlocale(_LC_NUMERIC, previous)
        runtime._configthreadlocale(threads)


@contextmanager
def c_numeric_locale() -> Iterator[None]:
    """Numbers as in the "C" locale on the calling thread, everything else as it was, in both
    runtimes that a build of the library may use."""
    with ExitStack() as stack:
        for name in "ucrtbase", "msvcrt":
            stack.enter_context(_c_numeric_locale_of(ctypes.CDLL(name)))
        yield


def path_of(library: ctypes.CDLL, function: str) -> str:
    """The file of a loaded library."""
    path = ctypes.create_unicode_buffer(_LONGEST_PATH)
    _kernel.GetModuleFileNameW(library._handle, path, _LONGEST_PATH)
    return path.value


def interface_of(contents: bytes) -> Optional[int]:
    """The number of the binary interface: the major version in the version resource, whose fixed
    part begins with a signature, its format and the minor and major version."""
    position = contents.find(b"\xbd\x04\xef\xfe\x00\x00\x01\x00")
    if position < 0:
        return None
    (major,) = struct.unpack_from("<H", contents, position + 10)
    return int(major)
