# SPDX-License-Identifier: MIT
"""The functions of the C header ``ZTKFunc.h``, under their own names.

Each function calls the C function of the same name. It returns the result code,
or a pair of the code and the output if the C function has an output. No code
raises an exception. Most programs should use :mod:`ztkfunc.mixer` instead.

Channels and indexes count from 0. An argument that does not fit into 32 bits
raises :class:`OverflowError`, and the library is not called.

An output is None if the code is not 100. The two queries with a parameter
``initial`` are different: if no mixer can be opened, they return 100 and the
output is ``initial``.

The library must be called from one thread at a time, so every call waits until
no other thread of the program is in the library. A request that a mixer does not
answer takes 1 second.
"""
from __future__ import annotations

import ctypes

from ._library import LIB, LOCK, ChannelCallback, IndexCallback
from ._text import TextArgument, TextRef, to_str

TYPE_CHECKING = False
if TYPE_CHECKING:
    from collections.abc import Callable
    from typing import Any

#: The call succeeded.
ZTK_SUCCESS = 100
#: The call succeeded, but the routing cannot be heard with the current selectors.
ZTK_WARNING = 101
#: The call was refused: an argument is out of range or not served.
ZTK_REJECTED = 102
#: At least one mixer is attached.
ZTK_CONNECTED = 103
#: No mixer is attached.
ZTK_NOT_CONNECTED = 104


def _unsigned(value: int) -> int:
    if not 0 <= value <= 0xFFFFFFFF:
        raise OverflowError(f"{value} is not in 0 to 4294967295")
    return value


def _signed(value: int) -> int:
    if not -0x80000000 <= value <= 0x7FFFFFFF:
        raise OverflowError(f"{value} is not in -2147483648 to 2147483647")
    return value


def _call(name: str, *arguments: Any) -> int:
    with LOCK:
        return int(getattr(LIB, name)(*arguments))


def _number(name: str, *arguments: Any) -> tuple[int, int | None]:
    out = ctypes.c_uint32()
    result = _call(name, *arguments, ctypes.byref(out))
    return result, out.value if result == ZTK_SUCCESS else None


def _number_from(initial: int, name: str, *arguments: Any) -> tuple[int, int]:
    out = ctypes.c_uint32(_unsigned(initial))
    result = _call(name, *arguments, ctypes.byref(out))
    return result, out.value


def _text(name: str, *arguments: Any) -> tuple[int, str | None]:
    out = TextRef()
    result = _call(name, *arguments, ctypes.byref(out))
    return result, to_str(out) if result == ZTK_SUCCESS else None


# Product and connection


def ZTK_GetProductId(name: str) -> tuple[int, int | None]:
    """Finds the number of the model whose name is in a text.

    Returns (100, number) with the number 0 to 6, 8 or 10, or (102, None) if the
    text contains no name of a model.
    """
    out = ctypes.c_uint32()
    text = TextArgument(name)
    result = _call("ZTK_GetProductId", text.ref, ctypes.byref(out))
    return result, out.value if result == ZTK_SUCCESS else None


def ZTK_IsUSBConnection(product_id: int) -> int:
    """Returns 103 if at least one mixer is attached, else 104.

    ``product_id`` is ignored by the library.
    """
    return _call("ZTK_IsUSBConnection", _unsigned(product_id))


# Version texts


def ZTK_GetPkgVersionText(product_id: int) -> tuple[int, str | None]:
    """Reads the version of the installer package. Serves the model 10."""
    return _text("ZTK_GetPkgVersionText", _unsigned(product_id))


def ZTK_GetDriverVersionText(product_id: int) -> tuple[int, str | None]:
    """Reads the version of the USB audio driver. Serves the model 10."""
    return _text("ZTK_GetDriverVersionText", _unsigned(product_id))


def ZTK_GetUtilityVersionText(product_id: int) -> tuple[int, str | None]:
    """Reads the version of the settings utility. Serves the model 10."""
    return _text("ZTK_GetUtilityVersionText", _unsigned(product_id))


def ZTK_GetLibraryVersionText(product_id: int) -> tuple[int, str | None]:
    """Reads the version of the installed library. Serves the model 10."""
    return _text("ZTK_GetLibraryVersionText", _unsigned(product_id))


# USB input audio


def ZTK_GetNumOfInputAudioIndex(
    product_id: int, channel: int
) -> tuple[int, int | None]:
    """Counts the choices of a USB channel: 7 on channels 0 to 3, 8 on channel 4.

    Serves the model 10.
    """
    return _number(
        "ZTK_GetNumOfInputAudioIndex", _unsigned(product_id), _unsigned(channel)
    )


def ZTK_GetUSBInputAudioText(
    product_id: int, channel: int, index: int, ignored: int = 0
) -> tuple[int, str | None]:
    """Names a choice of a USB channel, index 0 to 8 (channel 4: 0 to 9).

    The text of index 7 (channel 4: 8 and 9) is "PARAM ERROR". Index 8 of the
    channels 0 to 3 is the first choice of the next channel. Serves the model 10.
    """
    return _text(
        "ZTK_GetUSBInputAudioText",
        _unsigned(product_id),
        _signed(channel),
        _unsigned(index),
        _unsigned(ignored),
    )


def ZTK_SetUSBInputAudio(product_id: int, channel: int, index: int) -> int:
    """Sends a choice to every mixer, stores it and announces it.

    Channel 0 to 4; index 0 to 7, on channel 4 up to 8. Returns 100, or 101 if the
    routing cannot be heard, or 102. Serves the model 10.
    """
    return _call(
        "ZTK_SetUSBInputAudio",
        _unsigned(product_id),
        _unsigned(channel),
        _unsigned(index),
    )


def ZTK_SetUSBInputAudioDirect(
    product_id: int, channel: int, high: int, source: int
) -> int:
    """Sends a raw routing value to every mixer, without storing it.

    Channel 0 to 4, source 0 to 15; only the low four bits of ``high`` count.
    Returns 100, 101 or 102. Serves the model 10.
    """
    return _call(
        "ZTK_SetUSBInputAudioDirect",
        _unsigned(product_id),
        _unsigned(channel),
        _unsigned(high),
        _unsigned(source),
    )


def ZTK_GetCurrentUSBInputAudioIndex(
    product_id: int, channel: int
) -> tuple[int, int | None]:
    """Reads the stored choice of a USB channel, 0 if none is stored.

    The number comes from the settings file and can be any number. Channel 0 to 5.
    Serves the model 10.
    """
    return _number(
        "ZTK_GetCurrentUSBInputAudioIndex", _unsigned(product_id), _signed(channel)
    )


def ZTK_SetCurrentUSBInputAudio(product_id: int, channel: int) -> int:
    """Sends the stored choice of a USB channel again. Returns 100 or 102.

    Channel 0 to 5. Serves the model 10.
    """
    return _call(
        "ZTK_SetCurrentUSBInputAudio", _unsigned(product_id), _unsigned(channel)
    )


def ZTK_GetWarningTextForSetUSBAudioInput(
    product_id: int, channel: int, result_code: int, language: int
) -> tuple[int, str | None]:
    """Returns the sentence for a result 101 of :func:`ZTK_SetUSBInputAudio`.

    Channel 0 to 3; ``result_code`` must be 101; ``language`` 0 English,
    1 Japanese, 2 French, 3 German, 4 Italian, 5 Dutch, 6 Spanish, 7 Russian,
    8 Portuguese, 9 simplified Chinese, 10 traditional Chinese, 11 Korean, 99 the
    language of the user. (100, None) means that the texts are not installed.
    """
    return _text(
        "ZTK_GetWarningTextForSetUSBAudioInput",
        _unsigned(product_id),
        _unsigned(channel),
        _unsigned(result_code),
        _unsigned(language),
    )


# USB output audio


def ZTK_GetNumOfOutputAudioIndex(
    product_id: int, channel: int
) -> tuple[int, int | None]:
    """Counts the choices of a playback channel: 3. Serves the model 8."""
    return _number(
        "ZTK_GetNumOfOutputAudioIndex", _unsigned(product_id), _unsigned(channel)
    )


def ZTK_GetUSBOutputAudioText(
    product_id: int, channel: int, index: int, ignored: int = 0
) -> tuple[int, str | None]:
    """Names a choice of a playback channel, index 0 to 3. Serves the model 8."""
    return _text(
        "ZTK_GetUSBOutputAudioText",
        _unsigned(product_id),
        _unsigned(channel),
        _unsigned(index),
        _unsigned(ignored),
    )


def ZTK_SetUSBOutputAudio(product_id: int, channel: int, index: int) -> int:
    """Sends a choice to every mixer, stores it and announces it.

    Channel 0 to 4; index 0 to 2. Nothing is sent for the channels 3 and 4.
    Returns 100 or 102. Serves the model 8.
    """
    return _call(
        "ZTK_SetUSBOutputAudio",
        _unsigned(product_id),
        _unsigned(channel),
        _unsigned(index),
    )


def ZTK_SetUSBOutputAudioDefault(product_id: int, channel: int) -> int:
    """Sends and announces the default of a channel, without storing it.

    Channel 0 to 4. Returns 100 or 102. Serves the model 8.
    """
    return _call(
        "ZTK_SetUSBOutputAudioDefault", _unsigned(product_id), _unsigned(channel)
    )


def ZTK_GetCurrentUSBOutputAudioIndex(
    product_id: int, channel: int
) -> tuple[int, int | None]:
    """Reads the stored choice of a channel.

    Returns the number of the channel as the choice if none is stored.

    Channel 0 to 2. Serves the model 8.
    """
    return _number(
        "ZTK_GetCurrentUSBOutputAudioIndex", _unsigned(product_id), _unsigned(channel)
    )


def ZTK_SetCurrentUSBOutputAudio(product_id: int, channel: int) -> int:
    """Sends the stored choice of a channel again. Returns 100 or 102.

    Channel 0 to 2. Serves the model 8.
    """
    return _call(
        "ZTK_SetCurrentUSBOutputAudio", _unsigned(product_id), _unsigned(channel)
    )


# Boost level


def ZTK_GetNumOfBoostLevelIndex(product_id: int) -> tuple[int, int | None]:
    """Counts the boost levels: 4. Serves the models 0, 1, 5, 6, 8 and 10."""
    return _number("ZTK_GetNumOfBoostLevelIndex", _unsigned(product_id))


def ZTK_GetBoostLevelText(
    product_id: int, index: int, ignored: int = 0
) -> tuple[int, str | None]:
    """Names a boost level: 0 "-5 dB", 1 "-10 dB", 2 "-15 dB", 3 "-19 dB".

    Serves the models 0, 1, 5, 6, 8 and 10.
    """
    return _text(
        "ZTK_GetBoostLevelText",
        _unsigned(product_id),
        _unsigned(index),
        _unsigned(ignored),
    )


def ZTK_SetBoostLevelIndex(product_id: int, index: int) -> int:
    """Sends a boost level to every mixer, stores it and announces it.

    Index 0 to 3. Returns 100 or 102. Serves the model 10.
    """
    return _call("ZTK_SetBoostLevelIndex", _unsigned(product_id), _unsigned(index))


def ZTK_GetCurrentBoostLevelIndex(product_id: int) -> tuple[int, int | None]:
    """Reads the stored boost level, 3 if none is stored. Serves the model 10."""
    return _number("ZTK_GetCurrentBoostLevelIndex", _unsigned(product_id))


def ZTK_SetCurrentBoostLevelIndex(product_id: int) -> int:
    """Sends the stored boost level again. Returns 100 or 102. Serves the model 10."""
    return _call("ZTK_SetCurrentBoostLevelIndex", _unsigned(product_id))


# MIDI channel and key mode


def ZTK_GetNumOfMidiChannelIndex(product_id: int) -> tuple[int, int | None]:
    """Counts the MIDI channels: 16. Serves the model 1."""
    return _number("ZTK_GetNumOfMidiChannelIndex", _unsigned(product_id))


def ZTK_GetMidiChannelText(
    product_id: int, index: int, ignored: int = 0
) -> tuple[int, str | None]:
    """Names a MIDI channel: 0 "CH 1" to 15 "CH 16". Serves the model 1."""
    return _text(
        "ZTK_GetMidiChannelText",
        _unsigned(product_id),
        _unsigned(index),
        _unsigned(ignored),
    )


def ZTK_SetMidiChannelIndex(product_id: int, index: int) -> int:
    """Sends a MIDI channel to every mixer, stores it and announces it.

    Index 0 to 15. Returns 100 or 102. Serves the model 1.
    """
    return _call("ZTK_SetMidiChannelIndex", _unsigned(product_id), _unsigned(index))


def ZTK_GetCurrentMidiChannelIndex(product_id: int) -> tuple[int, int | None]:
    """Reads the stored MIDI channel, 0 if none is stored. Serves the model 1."""
    return _number("ZTK_GetCurrentMidiChannelIndex", _unsigned(product_id))


def ZTK_SetCurrentMidiChannelIndex(product_id: int) -> int:
    """Sends the stored MIDI channel again. Returns 100, or 102 if it is above 3.

    Serves the model 1.
    """
    return _call("ZTK_SetCurrentMidiChannelIndex", _unsigned(product_id))


def ZTK_GetNumOfMidiKeyModeIndex(product_id: int) -> tuple[int, int | None]:
    """Returns (102, None): the key mode serves no model."""
    return _number("ZTK_GetNumOfMidiKeyModeIndex", _unsigned(product_id))


def ZTK_GetMidiKeyModeText(
    product_id: int, index: int, ignored: int = 0
) -> tuple[int, str | None]:
    """Returns (102, None): the key mode serves no model."""
    return _text(
        "ZTK_GetMidiKeyModeText",
        _unsigned(product_id),
        _unsigned(index),
        _unsigned(ignored),
    )


def ZTK_SetMidiKeyModeIndex(product_id: int, index: int) -> int:
    """Returns 102: the key mode serves no model."""
    return _call("ZTK_SetMidiKeyModeIndex", _unsigned(product_id), _unsigned(index))


def ZTK_GetCurrentMidiKeyModeIndex(product_id: int) -> tuple[int, int | None]:
    """Returns (102, None): the key mode serves no model."""
    return _number("ZTK_GetCurrentMidiKeyModeIndex", _unsigned(product_id))


def ZTK_SetCurrentMidiKeyModeIndex(product_id: int) -> int:
    """Returns 102: the key mode serves no model."""
    return _call("ZTK_SetCurrentMidiKeyModeIndex", _unsigned(product_id))


# Mixer status


def ZTK_GetMixerCertifyLevel(product_id: int) -> tuple[int, int | None]:
    """Asks for the certification level, which is 0 if no mixer answers.

    Serves the model 10.
    """
    return _number("ZTK_GetMixerCertifyLevel", _unsigned(product_id))


def ZTK_GetFirmwareVersionIndex(product_id: int) -> tuple[int, int | None]:
    """Asks the first mixer for its firmware version, such as 1078.

    The version is 0 if the first mixer does not answer. Serves the model 10.
    """
    return _number("ZTK_GetFirmwareVersionIndex", _unsigned(product_id))


def ZTK_GetMixerInputSelectorStatus(
    product_id: int, channel: int, initial: int = 0
) -> tuple[int, int]:
    """Asks for the position of the input selector of a mixer channel, 0 to 16.

    Channel 0 to 4. The position is ``initial`` if no mixer can be opened. With
    102, the position is the number above 16 that a mixer reported, or
    ``initial`` if an argument was refused. Serves the model 10.
    """
    return _number_from(
        initial,
        "ZTK_GetMixerInputSelectorStatus",
        _unsigned(product_id),
        _unsigned(channel),
    )


def ZTK_GetMixerSeratoActiveStatus(
    product_id: int, initial: int = 0
) -> tuple[int, int]:
    """Asks whether the Serato DJ software is active on the mixer: 0 or 1.

    The output is ``initial`` if no mixer can be opened. The result is 102 if a
    mixer reports another number or sends no data. Serves the model 10.
    """
    return _number_from(
        initial, "ZTK_GetMixerSeratoActiveStatus", _unsigned(product_id)
    )


# Change callbacks
#
# The library keeps the address of a callback until the process ends, and a
# notification that has not been delivered yet may still call a callback that was
# replaced. So the callback objects are never released.

_kept: list[Any] = []


def _register(name: str, product_id: int, kind: Any, callback: Any) -> int:
    address: Any = kind() if callback is None else kind(callback)
    _kept.append(address)
    return _call(name, _unsigned(product_id), address, None)


def _channel_callback(callback: Callable[[int, int], object] | None) -> Any:
    if callback is None:
        return None

    return lambda channel, index, _context: callback(channel, index)


def _index_callback(callback: Callable[[int], object] | None) -> Any:
    if callback is None:
        return None

    return lambda index, _context: callback(index)


def ZTK_RegisterInputAudioChangedCallback(
    product_id: int, callback: Callable[[int, int], object] | None
) -> int:
    """Registers a function that is called with the channel and the new index.

    The function is called on the GLib main context of the thread that registers
    it (on macOS: on the run loop of the main thread). There is one callback for
    each family and model, so this call replaces the callback of
    :func:`ztkfunc.subscribe`. After n registrations the function is called n
    times for each change. Serves the model 10.
    """
    return _register(
        "ZTK_RegisterInputAudioChangedCallback",
        product_id,
        ChannelCallback,
        _channel_callback(callback),
    )


def ZTK_UnregisterInputAudioChangedCallback(product_id: int) -> int:
    """Removes the callback of USB input audio. Serves 0, 1, 5, 6, 8 and 10."""
    return _call(
        "ZTK_UnregisterInputAudioChangedCallback", _unsigned(product_id), None
    )


def ZTK_RegisterOutputAudioChangedCallback(
    product_id: int, callback: Callable[[int, int], object] | None
) -> int:
    """Registers a function for USB output audio, as for USB input audio.

    The setters of this family announce their changes with the name of another
    model. So a change by this library never calls the function. Serves the
    model 10.
    """
    return _register(
        "ZTK_RegisterOutputAudioChangedCallback",
        product_id,
        ChannelCallback,
        _channel_callback(callback),
    )


def ZTK_UnregisterOutputAudioChangedCallback(product_id: int) -> int:
    """Removes the callback of USB output audio. Serves 0, 1, 5, 6, 8 and 10."""
    return _call(
        "ZTK_UnregisterOutputAudioChangedCallback", _unsigned(product_id), None
    )


def ZTK_RegisterBoostLevelChangedCallback(
    product_id: int, callback: Callable[[int], object] | None
) -> int:
    """Registers a function that is called with the index of the new boost level.

    Everything else is as for USB input audio. Serves the model 10.
    """
    return _register(
        "ZTK_RegisterBoostLevelChangedCallback",
        product_id,
        IndexCallback,
        _index_callback(callback),
    )


def ZTK_UnregisterBoostLevelChangedCallback(product_id: int) -> int:
    """Removes the callback of the boost level. Serves 0, 1, 5, 6, 8 and 10."""
    return _call(
        "ZTK_UnregisterBoostLevelChangedCallback", _unsigned(product_id), None
    )


def ZTK_RegisterMidiChannelChangedCallback(
    product_id: int, callback: Callable[[int], object] | None
) -> int:
    """Registers a function that is called with the index of the new MIDI channel.

    Everything else is as for USB input audio. Serves the model 1.
    """
    return _register(
        "ZTK_RegisterMidiChannelChangedCallback",
        product_id,
        IndexCallback,
        _index_callback(callback),
    )


def ZTK_UnregisterMidiChannelChangedCallback(product_id: int) -> int:
    """Removes the callback of the MIDI channel. Serves the model 1."""
    return _call(
        "ZTK_UnregisterMidiChannelChangedCallback", _unsigned(product_id), None
    )


def ZTK_RegisterMidiKeyModeChangedCallback(
    product_id: int, callback: Callable[[int], object] | None
) -> int:
    """Returns 102: the key mode serves no model."""
    return _register(
        "ZTK_RegisterMidiKeyModeChangedCallback",
        product_id,
        IndexCallback,
        _index_callback(callback),
    )


def ZTK_UnregisterMidiKeyModeChangedCallback(product_id: int) -> int:
    """Returns 102: the key mode serves no model."""
    return _call(
        "ZTK_UnregisterMidiKeyModeChangedCallback", _unsigned(product_id), None
    )
