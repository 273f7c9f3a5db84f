"""Finds and loads the library, and refuses what is not it."""

from __future__ import annotations

import ctypes
import os
from functools import lru_cache
from pathlib import Path

from ._errors import LibraryError
from ._exports import PARAMETERS
from ._platform import LIBRARY_NAME, interface_of, path_of

#: The binary interface that this package is written for: the library's major version.
INTERFACE = 1


def _place() -> str:
    """Where the library is: in the package, else where the environment says, else the system's."""
    bundled = Path(__file__).with_name(LIBRARY_NAME)
    if bundled.exists():
        return str(bundled)
    return os.environ.get("TAVRINLIB_LIBRARY") or LIBRARY_NAME


@lru_cache(maxsize=None)
def load_library() -> ctypes.CDLL:
    """The library, loaded once, with the types of its exports."""
    place = _place()
    try:
        library = ctypes.CDLL(place)
    except OSError as error:
        raise LibraryError(
            f"TavrinLib cannot be loaded: {error} (install it, or name its file in the environment "
            "variable TAVRINLIB_LIBRARY)"
        ) from error
    for name, parameters in PARAMETERS.items():
        try:
            export = getattr(library, name)
        except AttributeError:
            raise LibraryError(f"{place} is not TavrinLib {INTERFACE}: it has no {name}") from None
        export.restype, export.argtypes = ctypes.c_bool, parameters
    file = path_of(library, "TavrinInitialize")
    interface = interface_of(Path(file).read_bytes())
    if interface != INTERFACE:
        found = "not a TavrinLib" if interface is None else f"TavrinLib {interface}"
        raise LibraryError(f"{file} is {found}, this package needs TavrinLib {INTERFACE}")
    return library
