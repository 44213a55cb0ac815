# SPDX-License-Identifier: MIT
"""Conversion between Python strings and the texts of the library.

The library's texts are UTF-8 on Linux and CFStringRef on macOS.
"""
from __future__ import annotations

import ctypes
import sys

if sys.platform == "darwin":
    # kCFStringEncodingUTF8 of Core Foundation.
    _UTF8 = 0x08000100
    TextRef = ctypes.c_void_p
    _cf = ctypes.CDLL(
        "/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation"
    )
    _cf.CFStringCreateWithBytes.restype = ctypes.c_void_p
    _cf.CFStringCreateWithBytes.argtypes = [
        ctypes.c_void_p,
        ctypes.c_char_p,
        ctypes.c_long,
        ctypes.c_uint32,
        ctypes.c_ubyte,
    ]
    _cf.CFStringGetLength.restype = ctypes.c_long
    _cf.CFStringGetLength.argtypes = [ctypes.c_void_p]
    _cf.CFStringGetMaximumSizeForEncoding.restype = ctypes.c_long
    _cf.CFStringGetMaximumSizeForEncoding.argtypes = [ctypes.c_long, ctypes.c_uint32]
    _cf.CFStringGetCString.restype = ctypes.c_ubyte
    _cf.CFStringGetCString.argtypes = [
        ctypes.c_void_p,
        ctypes.c_char_p,
        ctypes.c_long,
        ctypes.c_uint32,
    ]
    _cf.CFRelease.restype = None
    _cf.CFRelease.argtypes = [ctypes.c_void_p]

    class TextArgument:
        """A text for the library, which is valid as long as this object exists."""

        def __init__(self, text: str) -> None:
            data = text.encode("utf-8")
            self.ref = ctypes.c_void_p(
                _cf.CFStringCreateWithBytes(None, data, len(data), _UTF8, 0)
            )

        def __del__(self) -> None:
            if self.ref:
                _cf.CFRelease(self.ref)

    def to_str(ref: ctypes.c_void_p) -> str | None:
        """Copies a text of the library. Returns None for null."""
        if not ref:
            return None
        length = _cf.CFStringGetLength(ref)
        size = _cf.CFStringGetMaximumSizeForEncoding(length, _UTF8) + 1
        buffer = ctypes.create_string_buffer(size)
        if not _cf.CFStringGetCString(ref, buffer, size, _UTF8):
            return None
        return buffer.value.decode("utf-8")

else:
    TextRef = ctypes.c_char_p

    class TextArgument:
        """A text for the library, which is valid as long as this object exists."""

        def __init__(self, text: str) -> None:
            # The library would ignore everything after the first zero byte.
            if "\0" in text:
                raise ValueError("a text must not contain a zero character")
            self.ref = ctypes.c_char_p(text.encode("utf-8"))

    def to_str(ref: ctypes.c_char_p) -> str | None:
        """Copies a text of the library. Returns None for null."""
        return None if ref.value is None else ref.value.decode("utf-8")
