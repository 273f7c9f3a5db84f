"""The platform's side of the binary contract on Linux."""

from __future__ import annotations

import ctypes
import locale
import os
import re
from collections.abc import Iterator
from contextlib import contextmanager
from ctypes import c_char_p, c_int, c_void_p
from typing import Any, Optional, Union

LIBRARY_NAME = "libTavrinLib.so.1"
#: How many entries the table of a slot has before GetColorCode.
DESTRUCTORS = 2

_LC_CTYPE_MASK = 1 << 0
_LC_NUMERIC_MASK = 1 << 1


class _SymbolInfo(ctypes.Structure):
    _fields_ = [
        ("file", c_char_p),
        ("base", c_void_p),
        ("name", c_char_p),
        ("address", c_void_p),
    ]


def _function(name: str, result: Any, *parameters: Any) -> Any:
    function = getattr(_process, name)
    function.restype, function.argtypes = result, parameters
    return function


_process = ctypes.CDLL(None)
_dladdr = _function("dladdr", c_int, c_void_p, ctypes.POINTER(_SymbolInfo))
_duplocale = _function("duplocale", c_void_p, c_void_p)
_free = _function("free", None, c_void_p)
_freelocale = _function("freelocale", None, c_void_p)
_newlocale = _function("newlocale", c_void_p, c_int, c_char_p, c_void_p)
_nl_langinfo_l = _function("nl_langinfo_l", c_char_p, c_int, c_void_p)
_uselocale = _function("uselocale", c_void_p, c_void_p)


def release(array: Any) -> None:
    """Gives back an array that the library has handed out."""
    _free(array)


def encode_path(path: Union[str, bytes, os.PathLike[str], os.PathLike[bytes]]) -> bytes:
    """The path as the library takes it: its bytes, whatever they mean."""
    return os.fsencode(path)


def text_encoding() -> str:
    """The encoding of texts in a definition that is loaded now: the environment's, as long as it
    names a usable one that is more than ASCII."""
    environment = _newlocale(_LC_CTYPE_MASK, b"", None)
    if environment is None:
        return "utf-8"
    codeset: str = _nl_langinfo_l(locale.CODESET, environment).decode()
    _freelocale(environment)
    return "utf-8" if codeset == "ANSI_X3.4-1968" else codeset


@contextmanager
def c_numeric_locale() -> Iterator[None]:
    """Numbers as in the "C" locale on the calling thread, everything else as it was."""
    copy = _duplocale(_uselocale(None))
    changed = copy and _newlocale(_LC_NUMERIC_MASK, b"C", copy)
    if not changed:
        raise MemoryError("no memory for a locale")
    previous = _uselocale(changed)
    try:
        yield
    finally:
        _uselocale(previous)
        _freelocale(changed)


def path_of(library: ctypes.CDLL, function: str) -> str:
    """The file that the function of a loaded library comes from."""
    info = _SymbolInfo()
    _dladdr(ctypes.cast(getattr(library, function), c_void_p), ctypes.byref(info))
    return os.fsdecode(info.file)


def interface_of(contents: bytes) -> Optional[int]:
    """The number of the binary interface, which the library's SONAME ends with."""
    name = re.search(rb"\0libTavrinLib\.so\.([0-9]+)\0", contents)
    return int(name[1]) if name else None
