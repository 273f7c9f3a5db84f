"""What can go wrong, as one family of exceptions."""

from __future__ import annotations

from enum import IntEnum


class ErrorCode(IntEnum):
    """The library's last-error codes."""

    NONE = 0
    FAILED = 1
    NOT_INITIALIZED = 2
    WRITE_FAILED = 3
    INVALID_ARGUMENT = 4


class TavrinError(Exception):
    """A failure of the library.

    code is the last-error code that came with it, NONE where the library was not asked at all, and
    reason says what happened.
    """

    def __init__(self, reason: str, code: ErrorCode = ErrorCode.NONE) -> None:
        super().__init__(reason, code)
        self.reason = reason
        self.code = code

    def __str__(self) -> str:
        return self.reason


class LibraryError(TavrinError):
    """The library is not there, or what is there is not the library of this package."""


class LoadError(TavrinError):
    """The definition file does not load. No session is open then."""


class NotOpenError(TavrinError):
    """The session was closed, or another one has taken its place."""


class WriteError(TavrinError):
    """The modeling conditions file cannot be opened for writing."""


def failure(call: str, code: int) -> TavrinError:
    """The exception for an export that failed with the code."""
    if code == ErrorCode.NOT_INITIALIZED:
        return NotOpenError(f"{call}: no definition is loaded", ErrorCode.NOT_INITIALIZED)
    if code == ErrorCode.WRITE_FAILED:
        return WriteError(f"{call}: the file cannot be opened for writing", ErrorCode.WRITE_FAILED)
    return TavrinError(f"{call} failed: {ErrorCode(code).name}", ErrorCode(code))
