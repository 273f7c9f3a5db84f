"""What a full-colour 3D inkjet printer can do, as TavrinLib reads it from a printer definition.

    import tavrinlib

    with tavrinlib.Session("printer.dat") as printer:
        print(printer.identity.model_name)
        for slot in printer.slots:
            print(slot.number, slot.ink_name)

Lengths are whole micrometres (µm); only head_band_mm is in millimetres. Everything handed out is a
copy and stays valid after the session.
"""

from ._errors import (
    ErrorCode,
    LibraryError,
    LoadError,
    NotOpenError,
    TavrinError,
    WriteError,
)
from ._session import Session
from ._values import BuildVolume, Category, PrinterIdentity, PrintMode, Slot, Support, Switches

__all__ = [
    "BuildVolume",
    "Category",
    "ErrorCode",
    "LibraryError",
    "LoadError",
    "NotOpenError",
    "PrintMode",
    "PrinterIdentity",
    "Session",
    "Slot",
    "Support",
    "Switches",
    "TavrinError",
    "WriteError",
]
