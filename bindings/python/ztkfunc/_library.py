# SPDX-License-Identifier: MIT
"""Loads the shared library and declares the C types of its functions.

The library is loaded by its soname, so its development package is not needed.
"""
from __future__ import annotations

import ctypes
import os
import sys
import threading
from ctypes import POINTER, c_int32, c_uint32, c_void_p
from typing import Any

from ._structures import COutcome
from ._text import TextRef

ChannelCallback = ctypes.CFUNCTYPE(None, c_int32, c_int32, c_void_p)
IndexCallback = ctypes.CFUNCTYPE(None, c_int32, c_void_p)

_U32 = c_uint32
_OUT = POINTER(c_uint32)
_TEXT_OUT = POINTER(TextRef)

# Argument types of the functions, in the order of the header. Each function
# returns a result code, an unsigned number of 32 bits.
PROTOTYPES: dict[str, list[Any]] = {
    "ZTK_GetProductId": [TextRef, _OUT],
    "ZTK_IsUSBConnection": [_U32],
    "ZTK_GetPkgVersionText": [_U32, _TEXT_OUT],
    "ZTK_GetDriverVersionText": [_U32, _TEXT_OUT],
    "ZTK_GetUtilityVersionText": [_U32, _TEXT_OUT],
    "ZTK_GetLibraryVersionText": [_U32, _TEXT_OUT],
    "ZTK_GetNumOfInputAudioIndex": [_U32, _U32, _OUT],
    "ZTK_GetUSBInputAudioText": [_U32, c_int32, _U32, _U32, _TEXT_OUT],
    "ZTK_SetUSBInputAudio": [_U32, _U32, _U32],
    "ZTK_SetUSBInputAudioDirect": [_U32, _U32, _U32, _U32],
    "ZTK_GetCurrentUSBInputAudioIndex": [_U32, c_int32, _OUT],
    "ZTK_SetCurrentUSBInputAudio": [_U32, _U32],
    "ZTK_GetWarningTextForSetUSBAudioInput": [_U32, _U32, _U32, _U32, _TEXT_OUT],
    "ZTK_GetNumOfOutputAudioIndex": [_U32, _U32, _OUT],
    "ZTK_GetUSBOutputAudioText": [_U32, _U32, _U32, _U32, _TEXT_OUT],
    "ZTK_SetUSBOutputAudio": [_U32, _U32, _U32],
    "ZTK_SetUSBOutputAudioDefault": [_U32, _U32],
    "ZTK_GetCurrentUSBOutputAudioIndex": [_U32, _U32, _OUT],
    "ZTK_SetCurrentUSBOutputAudio": [_U32, _U32],
    "ZTK_GetNumOfBoostLevelIndex": [_U32, _OUT],
    "ZTK_GetBoostLevelText": [_U32, _U32, _U32, _TEXT_OUT],
    "ZTK_SetBoostLevelIndex": [_U32, _U32],
    "ZTK_GetCurrentBoostLevelIndex": [_U32, _OUT],
    "ZTK_SetCurrentBoostLevelIndex": [_U32],
    "ZTK_GetNumOfMidiChannelIndex": [_U32, _OUT],
    "ZTK_GetMidiChannelText": [_U32, _U32, _U32, _TEXT_OUT],
    "ZTK_SetMidiChannelIndex": [_U32, _U32],
    "ZTK_GetCurrentMidiChannelIndex": [_U32, _OUT],
    "ZTK_SetCurrentMidiChannelIndex": [_U32],
    "ZTK_GetNumOfMidiKeyModeIndex": [_U32, _OUT],
    "ZTK_GetMidiKeyModeText": [_U32, _U32, _U32, _TEXT_OUT],
    "ZTK_SetMidiKeyModeIndex": [_U32, _U32],
    "ZTK_GetCurrentMidiKeyModeIndex": [_U32, _OUT],
    "ZTK_SetCurrentMidiKeyModeIndex": [_U32],
    "ZTK_GetMixerCertifyLevel": [_U32, _OUT],
    "ZTK_GetFirmwareVersionIndex": [_U32, _OUT],
    "ZTK_GetMixerInputSelectorStatus": [_U32, _U32, _OUT],
    "ZTK_GetMixerSeratoActiveStatus": [_U32, _OUT],
    "ZTK_RegisterInputAudioChangedCallback": [_U32, ChannelCallback, c_void_p],
    "ZTK_UnregisterInputAudioChangedCallback": [_U32, c_void_p],
    "ZTK_RegisterOutputAudioChangedCallback": [_U32, ChannelCallback, c_void_p],
    "ZTK_UnregisterOutputAudioChangedCallback": [_U32, c_void_p],
    "ZTK_RegisterBoostLevelChangedCallback": [_U32, IndexCallback, c_void_p],
    "ZTK_UnregisterBoostLevelChangedCallback": [_U32, c_void_p],
    "ZTK_RegisterMidiChannelChangedCallback": [_U32, IndexCallback, c_void_p],
    "ZTK_UnregisterMidiChannelChangedCallback": [_U32, c_void_p],
    "ZTK_RegisterMidiKeyModeChangedCallback": [_U32, IndexCallback, c_void_p],
    "ZTK_UnregisterMidiKeyModeChangedCallback": [_U32, c_void_p],
    "ZTK_GetLastOutcome": [POINTER(COutcome)],
}

# The library must be called from one thread at a time, so each call holds this
# lock. Threads that do not call the library keep running, because ctypes releases
# the interpreter's lock during a call.
LOCK = threading.RLock()


class LibraryMissingError(ImportError):
    """The shared library is not installed, or is too old for this package."""


def _file_names() -> list[str]:
    override = os.environ.get("ZTKFUNC_LIBRARY")
    if override:
        return [override]
    if sys.platform == "darwin":
        framework = "VRM-D6Setup.framework/VRM-D6Setup"
        return ["/Library/Frameworks/" + framework, framework]
    return ["libZTKFunc.so.1"]


def _load() -> ctypes.CDLL:
    reason = ""
    for name in _file_names():
        try:
            return ctypes.CDLL(name)
        except OSError as error:
            reason = str(error)
    raise LibraryMissingError(
        f"the library ZTKFunc cannot be loaded ({reason}); "
        "install the package libztkfunc1, or name the file in ZTKFUNC_LIBRARY"
    )


def _declare(library: ctypes.CDLL) -> None:
    for name, arguments in PROTOTYPES.items():
        try:
            function = getattr(library, name)
        except AttributeError:
            raise LibraryMissingError(
                f"the installed library ZTKFunc has no function {name}; "
                "install a newer version of it"
            ) from None
        function.argtypes = arguments
        function.restype = c_uint32


LIB = _load()
_declare(LIB)
