# SPDX-License-Identifier: MIT
"""The structures of ``ZTKOutcome.h``, under the names of the header."""
from __future__ import annotations

from ctypes import Structure, c_int32, c_uint32

# The largest number of mixers in a record.
MIXERS = 127


class CRequestOutcome(Structure):
    _fields_ = [
        ("result", c_uint32),
        ("opened", c_uint32),
        ("length", c_uint32),
        ("systemCode", c_int32),
    ]
    result: int
    opened: int
    length: int
    systemCode: int


class CMixerOutcome(Structure):
    _fields_ = [("write", CRequestOutcome), ("read", CRequestOutcome)]
    write: CRequestOutcome
    read: CRequestOutcome


class CFileOutcome(Structure):
    _fields_ = [("result", c_uint32), ("systemCode", c_int32)]
    result: int
    systemCode: int


class CAnnouncementOutcome(Structure):
    _fields_ = [("result", c_uint32), ("systemCode", c_int32)]
    result: int
    systemCode: int


class COutcome(Structure):
    _fields_ = [
        ("size", c_uint32),
        ("mixersFound", c_uint32),
        ("mixersListed", c_uint32),
        ("read", CFileOutcome),
        ("store", CFileOutcome),
        ("announcement", CAnnouncementOutcome),
        ("mixers", CMixerOutcome * MIXERS),
    ]
    size: int
    mixersFound: int
    mixersListed: int
    read: CFileOutcome
    store: CFileOutcome
    announcement: CAnnouncementOutcome
    mixers: list[CMixerOutcome]


STRUCTURES = {
    "ZTKRequestOutcome": CRequestOutcome,
    "ZTKMixerOutcome": CMixerOutcome,
    "ZTKFileOutcome": CFileOutcome,
    "ZTKAnnouncementOutcome": CAnnouncementOutcome,
    "ZTKOutcome": COutcome,
}
