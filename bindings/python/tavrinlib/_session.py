"""A loaded printer definition."""

from __future__ import annotations

import codecs
import ctypes
import os
import threading
from ctypes import POINTER, byref, c_bool, c_double, c_int32, c_uint32, c_void_p
from types import TracebackType
from typing import Any, Optional, Union

from ._errors import ErrorCode, LoadError, NotOpenError, failure
from ._exports import INFO_FIELD_BYTES, Info, InkSlot, ModeConfig
from ._library import load_library
from ._platform import c_numeric_locale, encode_path, release, text_encoding
from ._values import BuildVolume, Category, PrinterIdentity, PrintMode, Slot, Support, Switches

Path = Union[str, bytes, "os.PathLike[str]", "os.PathLike[bytes]"]

_INT32_MIN = -(2**31)
#: No text of a definition begins with it, so it marks what was not written.
_UNWRITTEN = b"\n"

# The definition and the last-error code are the process's: one call at a time, with a look at the
# code that belongs to it.
_lock = threading.RLock()
_open: Optional[Session] = None


def _signed(value: int) -> int:
    return c_int32(value).value


def _bytes_of(path: Path) -> bytes:
    encoded = encode_path(path)
    if b"\0" in encoded:
        raise ValueError("embedded null character in path")
    return encoded


def _load_failure(path: Path, code: int) -> LoadError:
    reason = (
        "is no enciphered printer definition with a Version, or its plain copy cannot be written "
        "to the temporary directory"
    )
    try:
        with open(path, "rb") as file:
            if not file.read(1):
                reason = "is empty"
    except OSError as error:
        reason = error.strerror or str(error)
    return LoadError(f"{os.fsdecode(path)}: {reason}", ErrorCode(code))


class Session:
    """A loaded printer definition, which answers until it is closed.

    The library holds one definition for the process, so there is one open session. Making another
    ends the one before, also where the new definition then fails to load; an ended session raises
    NotOpenError. Any thread may ask; the calls of all threads follow one another. While a
    definition loads, the calling thread's numbers are those of the "C" locale.
    """

    def __init__(self, path: Path) -> None:
        """Loads the enciphered printer definition file at path; LoadError where that fails."""
        global _open
        encoded = _bytes_of(path)
        self._library = load_library()
        with _lock:
            self._codec = codecs.lookup(text_encoding()).name
            with c_numeric_locale():
                _open = None
                loaded = self._library.TavrinInitialize(encoded)
            if not loaded:
                raise _load_failure(path, self._last_error())
            _open = self

    def close(self) -> None:
        """Releases the definition, if the session is still the open one."""
        global _open
        with _lock:
            if self.is_open:
                self._library.TavrinFinalize()
                _open = None

    def __enter__(self) -> Session:
        return self

    def __exit__(
        self,
        kind: Optional[type[BaseException]],
        error: Optional[BaseException],
        trace: Optional[TracebackType],
    ) -> None:
        self.close()

    @property
    def is_open(self) -> bool:
        """Whether the session was not closed and no other one has taken its place."""
        return _open is self

    @property
    def identity(self) -> PrinterIdentity:
        """The printer's identity; TavrinError where one of its texts is longer than 128 bytes."""
        texts = self.identity_texts()
        if None in texts:
            raise failure("TavrinGetInfo", ErrorCode.FAILED)
        return PrinterIdentity(*(text or "" for text in texts))

    def identity_texts(self) -> tuple[Optional[str], ...]:
        """Model name, version and network address as far as they are handed out: one that is longer
        than 128 bytes is None, and so are those after it."""
        info = Info.from_buffer_copy(_UNWRITTEN * ctypes.sizeof(Info))
        with _lock:
            self._require_open("TavrinGetInfo")
            self._library.TavrinGetInfo(byref(info))
        starts = range(0, len(info), INFO_FIELD_BYTES)
        fields = (info.raw[start:][:INFO_FIELD_BYTES] for start in starts)
        return tuple(
            None if field.startswith(_UNWRITTEN) else self._text(field.split(b"\0")[0])
            for field in fields
        )

    @property
    def build_volume(self) -> BuildVolume:
        """The space that models are built in."""
        sides = c_uint32(), c_uint32(), c_uint32()
        self._ask("TavrinGetAreaSize", *map(byref, sides))
        return BuildVolume(*(_signed(side.value) for side in sides))

    @property
    def print_margin(self) -> int:
        """The margin that stays free at the edges of the build volume, in µm."""
        return self._number("TavrinGetAreaMarginSize")

    @property
    def head_band_mm(self) -> float:
        """The width that the print head covers in one pass: the one length in mm."""
        size = c_double()
        self._ask("TavrinGetHeadBandSize", byref(size))
        return size.value

    @property
    def modes(self) -> tuple[PrintMode, ...]:
        """The print modes, in the order of the definition."""
        with _lock:
            return tuple(map(self._mode, range(self._number("TavrinGetModeCount"))))

    @property
    def default_mode(self) -> int:
        """The number, not the position, of the mode to offer first. No mode need have it."""
        return self._number("TavrinGetDefaultPrintMode")

    @property
    def support(self) -> Support:
        """The support under a model."""
        with _lock:
            return Support(
                top_thickness=self._number("TavrinGetTopSupportThickness"),
                detach_layer_height=self._number("TavrinGetDetachLayerHeight"),
                size_code=self._number("TavrinGetSupportSize"),
            )

    def side_support(self, height: int) -> int:
        """The thickness of the support beside a model of that height, both in µm."""
        if not _INT32_MIN <= height < 2**31:
            raise ValueError("a height has 32 bits")
        thickness = c_uint32()
        self._ask("TavrinGetSideSupportThickness", height, byref(thickness))
        return _signed(thickness.value)

    @property
    def chipping_allowance(self) -> int:
        """The number of the cutting margin setting, 0 for none. Not a thickness."""
        return self._number("TavrinGetChippingAllowance")

    @property
    def switches(self) -> Switches:
        """What is on and what is off."""
        with _lock:
            return Switches(
                smoothing=self._switch("TavrinGetSmoothing"),
                feed_bidirection=self._switch("TavrinGetFeedBiDirection"),
                wrap_reduction=self._switch("TavrinGetWrapReduction"),
                auto_cleaning=self._switch("TavrinGetAutoCleaning"),
                check_nozzle_while_printing=self._switch("TavrinGetCheckNozzleWhilePrinting"),
            )

    @property
    def slots(self) -> tuple[Slot, ...]:
        """The ink slots, in the order of their numbers."""
        with _lock:
            count = self._number("TavrinGetItemCountOfInkSlot")
            return tuple(map(self._slot, range(1, count + 1)))

    @property
    def categories(self) -> tuple[Category, ...]:
        """The ink categories, the two totals last."""
        with _lock:
            count = self._number("TavrinGetItemCountOfInkCategory")
            return tuple(map(self._category, range(count)))

    def write_modeling_conditions(self, path: Path) -> None:
        """Writes the definition, byte for byte as it was loaded, to the file at path.

        WriteError where the file cannot be opened. An error after that, such as a full disk, goes
        unreported: compare or load the file where it matters.
        """
        self._ask("TavrinCreateModelingConditionsFile", _bytes_of(path))

    def _require_open(self, call: str) -> None:
        if not self.is_open:
            raise NotOpenError(f"{call}: the session is no longer open", ErrorCode.NOT_INITIALIZED)

    def _last_error(self) -> int:
        code = c_uint32()
        self._library.TavrinGetLastError(byref(code))
        return code.value

    def _ask(self, call: str, *arguments: Any) -> None:
        with _lock:
            self._require_open(call)
            if not getattr(self._library, call)(*arguments):
                raise failure(call, self._last_error())

    def _number(self, call: str) -> int:
        value = c_uint32()
        self._ask(call, byref(value))
        return _signed(value.value)

    def _switch(self, call: str) -> bool:
        value = c_bool()
        self._ask(call, byref(value))
        return value.value

    def _text(self, encoded: bytes) -> str:
        # Bytes that are no text in the definition come out as they are there.
        return encoded.decode(self._codec, "surrogateescape")

    def _mode(self, index: int) -> PrintMode:
        config = ModeConfig()
        limited = c_bool()
        self._ask("TavrinGetModeConfig", index, byref(config))
        self._ask("TavrinGetWarpWarning", index, byref(limited))
        return PrintMode(
            number=config[0],
            slice_height=config[1],
            second_value=config[2],
            first_value=config[3],
            slice_count=None if config[4] == _INT32_MIN else config[4],
            limited_continuous=None if config[5] == -1 else config[5],
            limited=limited.value,
        )

    def _slot(self, number: int) -> Slot:
        slot = POINTER(InkSlot)()
        self._ask("TavrinGetInkSlot", number, byref(slot))
        operations = slot.contents.operations.contents
        color, ink_type = c_uint32(), c_uint32()
        operations.GetColorCode(slot, byref(color))
        operations.GetInkTypeCode(slot, byref(ink_type))
        return Slot(
            number=number,
            color_code=_signed(color.value),
            ink_type_code=_signed(ink_type.value),
            ink_id=self._slot_text(slot, operations.GetInkId) or "",
            ink_name=self._slot_text(slot, operations.GetInkName),
            valid=operations.IsValid(slot),
        )

    def _slot_text(self, slot: Any, get: Any) -> Optional[str]:
        array, size = c_void_p(), c_int32()
        get(slot, byref(array), byref(size))
        if not array:
            return None
        try:
            return self._text(ctypes.string_at(array.value or 0))
        finally:
            release(array)

    def _category(self, index: int) -> Category:
        numbers, count = POINTER(c_int32)(), c_int32()
        # One without slots answers false.
        if not self._library.TavrinGetInkSlotNumConposeInkCategory(
            index, byref(numbers), byref(count)
        ):
            return Category(index, ())
        try:
            return Category(index, tuple(numbers[: count.value]))
        finally:
            release(numbers)
