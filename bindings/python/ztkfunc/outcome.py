# SPDX-License-Identifier: MIT
"""The effects of the last call on this thread.

The result codes of the library do not report that a mixer refused a request, that
a file could not be written or that there is no message bus. :func:`last_outcome`
returns this information. It must be called directly after the call in question,
on the same thread.
"""
from __future__ import annotations

import ctypes
import errno
import os
from enum import IntEnum
from typing import NamedTuple

from ._library import LIB
from ._structures import CFileOutcome, CMixerOutcome, COutcome, CRequestOutcome


class Request(IntEnum):
    """The result of a request to a mixer."""

    #: The call had no such request.
    NONE = 0
    #: The mixer accepted the value, or answered the query.
    ACCEPTED = 1
    #: The mixer refused the request.
    REFUSED = 2
    #: The mixer did not answer in time.
    SILENT = 3
    #: The mixer was unplugged after it was counted.
    GONE = 4
    #: This user has no permission to open the mixer.
    NOT_PERMITTED = 5
    #: Another error; see the system code.
    FAILED = 6


class File(IntEnum):
    """The result of reading or storing a file."""

    #: The call did not use a file.
    NONE = 0
    OK = 1
    ABSENT = 2
    NO_HOME = 3
    NO_FOLDER = 4
    NOT_PERMITTED = 5
    READ_ONLY = 6
    FULL = 7
    #: Nothing was stored, and the file was left as it is.
    CANNOT_BE_READ_NOW = 8
    #: The file is not a property list. Storing keeps it under another name.
    DAMAGED = 9
    NOT_REGULAR = 10
    #: Another error; see the system code.
    FAILED = 11


class Announcement(IntEnum):
    """The result of the announcement to other programs."""

    #: The call had nothing to announce.
    NONE = 0
    SENT = 1
    #: The session has no message bus, so no program was informed.
    NO_BUS = 2
    FAILED = 3


_REQUEST_WORDS = {
    Request.NONE: "was not asked",
    Request.ACCEPTED: "has accepted it",
    Request.REFUSED: "refused the request",
    Request.SILENT: "does not answer",
    Request.GONE: "was unplugged",
    Request.NOT_PERMITTED: "cannot be opened: this user has no permission",
    Request.FAILED: "could not be reached",
}

_FILE_WORDS = {
    File.NONE: "nothing was stored",
    File.OK: "the settings file holds the value",
    File.ABSENT: "the settings file does not exist",
    File.NO_HOME: "the user has no home folder",
    File.NO_FOLDER: "the folder of the settings cannot be made",
    File.NOT_PERMITTED: "this user has no permission to write the settings file",
    File.READ_ONLY: "the file system of the settings is read-only",
    File.FULL: "the file system of the settings is full",
    File.CANNOT_BE_READ_NOW: "the settings file cannot be read now",
    File.DAMAGED: "the settings file is damaged",
    File.NOT_REGULAR: "the settings file is a folder or a device",
    File.FAILED: "the settings file could not be written",
}


def _request(value: int) -> Request:
    # A newer library may have more codes, which are failures.
    return Request(value) if value in Request._value2member_map_ else Request.FAILED


def _file(value: int) -> File:
    return File(value) if value in File._value2member_map_ else File.FAILED


def _announcement(value: int) -> Announcement:
    known = value in Announcement._value2member_map_
    return Announcement(value) if known else Announcement.FAILED


def _with_code(words: str, code: int) -> str:
    if code in errno.errorcode:
        return f"{words} ({os.strerror(code)})"
    return f"{words} (system code {code})" if code else words


class RequestOutcome(NamedTuple):
    """The result of one request to one mixer, with details."""

    result: Request
    #: Whether the mixer could be opened; if not, nothing was sent to it.
    opened: bool
    #: Bytes of data that the mixer sent.
    length: int
    #: Number of the operating system's error, 0 if there was none.
    system_code: int


class MixerOutcome(NamedTuple):
    """The results of the requests to one mixer."""

    #: Number of the mixer, from 1, in the order of the bus.
    number: int
    #: The request that sets a value.
    write: RequestOutcome
    #: The request that asks for a status.
    read: RequestOutcome

    @property
    def accepted(self) -> bool:
        """Whether the mixer has accepted the value."""
        return self.write.result == Request.ACCEPTED

    def describe(self) -> str:
        """A sentence for people, such as "mixer 2 refused the request"."""
        words = _REQUEST_WORDS[self.write.result]
        if self.write.result != Request.FAILED:
            return f"mixer {self.number} {words}"
        return f"mixer {self.number} {_with_code(words, self.write.system_code)}"


class FileOutcome(NamedTuple):
    """The result of reading or storing a file."""

    result: File
    #: Number of the operating system's error, 0 if there was none.
    system_code: int

    def describe(self) -> str:
        """A sentence for people."""
        return _with_code(_FILE_WORDS[self.result], self.system_code)


class Outcome(NamedTuple):
    """The effects of one call."""

    #: The number of mixers that the call counted.
    mixers_found: int
    #: The mixers in the order of the bus; at most the first 127.
    mixers: tuple[MixerOutcome, ...]
    #: The result of reading a file.
    read: FileOutcome
    #: The result of storing the value in the settings file.
    store: FileOutcome
    #: The result of the announcement to other programs.
    announcement: Announcement

    @property
    def stored(self) -> bool:
        """Whether the value is in the settings file."""
        return self.store.result == File.OK

    @property
    def answered(self) -> bool:
        """Whether at least one mixer answered a query."""
        return any(mixer.read.result == Request.ACCEPTED for mixer in self.mixers)


def _request_outcome(record: CRequestOutcome) -> RequestOutcome:
    return RequestOutcome(
        result=_request(record.result),
        opened=record.opened != 0,
        length=record.length,
        system_code=record.systemCode,
    )


def _mixer_outcome(number: int, record: CMixerOutcome) -> MixerOutcome:
    return MixerOutcome(
        number=number,
        write=_request_outcome(record.write),
        read=_request_outcome(record.read),
    )


def _file_outcome(record: CFileOutcome) -> FileOutcome:
    return FileOutcome(result=_file(record.result), system_code=record.systemCode)


def last_outcome() -> Outcome:
    """Returns the effects of the last call of the library on this thread.

    Functions that only read constant tables, such as those for texts and counts,
    do not change the record of the call before them.
    """
    record = COutcome(size=ctypes.sizeof(COutcome))
    LIB.ZTK_GetLastOutcome(ctypes.byref(record))
    return Outcome(
        mixers_found=record.mixersFound,
        mixers=tuple(
            _mixer_outcome(number, record.mixers[number - 1])
            for number in range(1, record.mixersListed + 1)
        ),
        read=_file_outcome(record.read),
        store=_file_outcome(record.store),
        announcement=_announcement(record.announcement.result),
    )
