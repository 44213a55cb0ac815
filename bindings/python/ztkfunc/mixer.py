# SPDX-License-Identifier: MIT
"""The settings as objects. Channels and choices count from 1, as in ``ztk``.

    mixer = Mixer()
    mixer.input[2] = "Post CH2 Fader"
    mixer.boost = "-10 dB"

A new value is sent to every attached mixer, stored for the user and announced to
every program of the session. A value that is not accepted raises
:class:`Rejected` or :class:`ValueError`, and nothing is sent. If a value was set
but a step failed, the package issues a warning of Python's :mod:`warnings`:

- :class:`NotSent`: not every attached mixer has accepted the value, or none is
  attached. The value is stored; :meth:`Mixer.apply` sends it again.
- :class:`NotStored`: the value is not in the settings file.
- :class:`Inaudible`: the input selector of the channel makes the routing silent.

``warnings.simplefilter("error", ztkfunc.NotSent)`` turns such a warning into an
exception.
"""
from __future__ import annotations

import sys
import warnings
from collections.abc import Callable, Iterator, Mapping, MutableMapping
from types import FrameType

from . import functions
from .outcome import Outcome, last_outcome

_MODEL_NAMES = {
    0: "VRM-Q8X",
    1: "VRM-K2",
    2: "VRM-Q8S",
    3: "VRC-H7",
    4: "VRM-Q9",
    5: "VRM-L4",
    6: "VRM-E3",
    8: "VRM-B5",
    10: "VRM-D6",
}
_USERS_OWN_LANGUAGE = 99
# The initial output of a query. No mixer can report this number, so an output with
# this number shows that no mixer has answered.
_NO_ANSWER = 0xFFFFFFFF
# Channels with an input selector.
_SELECTORS = range(1, 5)


class Rejected(Exception):
    """The library refused the call: the model does not have the setting, or a
    stored value is not one that can be sent. Nothing was sent."""


class NotSent(UserWarning):
    """Not every attached mixer has accepted the value, or no mixer is attached."""


class NotStored(UserWarning):
    """The value that was sent is not in the settings file."""


class Inaudible(UserWarning):
    """The input selector of the channel makes the new routing silent."""


def _folded(text: str) -> str:
    return "".join(text.split()).casefold()


def _index_of(choice: str | int, choices: tuple[str, ...], label: str) -> int:
    """Finds a choice by its text or by its number from 1."""
    accepted = ", ".join(f"{text} ({n})" for n, text in enumerate(choices, 1))
    if isinstance(choice, bool) or not isinstance(choice, (str, int)):
        raise TypeError(f"{label} takes a text or a number; accepted: {accepted}")
    if isinstance(choice, int):
        if 1 <= choice <= len(choices):
            return choice - 1
    else:
        for index, text in enumerate(choices):
            if _folded(text) == _folded(choice):
                return index
    raise ValueError(f"{choice!r} is not a choice of {label}; accepted: {accepted}")


def _warn(text: str, category: type[Warning]) -> None:
    """Issues a warning for the line of the program that called the package."""
    level = 1
    frame: FrameType | None = sys._getframe()
    while frame is not None and frame.f_globals.get("__name__") == __name__:
        frame = frame.f_back
        level += 1
    warnings.warn(text, category, stacklevel=level)


def _report(label: str, outcome: Outcome, stores: bool) -> None:
    """Issues a warning for each step of the last call that failed."""
    if outcome.mixers_found == 0:
        _warn(f"{label}: no mixer is attached", NotSent)
    else:
        failed = [mixer for mixer in outcome.mixers if not mixer.accepted]
        if failed:
            reasons = "; ".join(mixer.describe() for mixer in failed)
            _warn(f"{label}: {reasons}", NotSent)
    if stores and not outcome.stored:
        _warn(f"{label}: {outcome.store.describe()}", NotStored)


class ChannelSetting(MutableMapping[int, "str | None"]):
    """A setting with channels: a mapping from a channel, counted from 1, to a text.

    Reading returns the stored choice, or the default if none is stored, or None
    if the number in the settings file is not a choice. Assigning accepts a text or
    the number of a choice, counted from 1, and sends the choice to every mixer.
    """

    def __init__(
        self,
        title: str,
        model: int,
        channels: int,
        count: Callable[[int, int], tuple[int, int | None]],
        text: Callable[[int, int, int], tuple[int, str | None]],
        current: Callable[[int, int], tuple[int, int | None]],
        assign: Callable[[int, int, int], int],
        apply: Callable[[int, int], int],
    ) -> None:
        self._title = title
        self._model = model
        self._channels = channels
        self._count = count
        self._text = text
        self._current = current
        self._assign = assign
        self._apply = apply

    def _check(self, channel: int) -> int:
        if isinstance(channel, bool) or not isinstance(channel, int):
            raise TypeError(f"a channel of {self._title} is a number, not {channel!r}")
        if not 1 <= channel <= self._channels:
            raise KeyError(
                f"{self._title} has no channel {channel}; accepted: 1 to {self._channels}"
            )
        return channel - 1

    def choices(self, channel: int) -> tuple[str, ...]:
        """Returns the texts of a channel's choices, in the order of their numbers."""
        number = self._check(channel)
        count = self._count(self._model, number)[1]
        assert count is not None
        texts = (self._text(self._model, number, index)[1] for index in range(count))
        return tuple(text for text in texts if text is not None)

    def __getitem__(self, channel: int) -> str | None:
        number = self._check(channel)
        index = self._current(self._model, number)[1]
        choices = self.choices(channel)
        if index is None or index >= len(choices):
            return None
        return choices[index]

    def __setitem__(self, channel: int, choice: str | int | None) -> None:
        number = self._check(channel)
        label = f"{self._title} {channel}"
        if choice is None:
            raise TypeError(f"{label} cannot be set to None")
        index = _index_of(choice, self.choices(channel), label)
        result = self._assign(self._model, number, index)
        outcome = last_outcome()
        if result == functions.ZTK_REJECTED:
            raise Rejected(f"{label}: the library refused index {index}")
        _report(label, outcome, stores=True)
        # There is no warning for USB channel 5, because it has no input selector,
        # and none if no mixer has reported its positions.
        if (
            result == functions.ZTK_WARNING
            and outcome.answered
            and channel in _SELECTORS
        ):
            _warn(
                f"{label}: cannot be heard until the input selector of CH{channel} "
                "is turned to position 4",
                Inaudible,
            )

    def __delitem__(self, channel: int) -> None:
        raise TypeError(f"a channel of {self._title} always has a choice")

    def __iter__(self) -> Iterator[int]:
        return iter(range(1, self._channels + 1))

    def __len__(self) -> int:
        return self._channels

    def apply(self, channel: int | None = None) -> None:
        """Sends the stored choice of one channel, or of all channels, again.

        For a channel without a stored choice, the default is sent.
        """
        for each in list(self) if channel is None else [channel]:
            number = self._check(each)
            label = f"{self._title} {each}"
            result = self._apply(self._model, number)
            outcome = last_outcome()
            if result == functions.ZTK_REJECTED:
                raise Rejected(f"{label}: the stored value cannot be sent")
            _report(label, outcome, stores=False)


class Selectors(Mapping[int, "int | None"]):
    """The positions of the input selectors of the mixer: channels 1 to 4.

    Each access asks the mixers. The position is None if no mixer answers.
    """

    def __getitem__(self, channel: int) -> int | None:
        if channel not in _SELECTORS:
            raise KeyError(f"there is no input selector {channel}; accepted: 1 to 4")
        result, position = functions.ZTK_GetMixerInputSelectorStatus(
            10, channel - 1, _NO_ANSWER
        )
        if result != functions.ZTK_SUCCESS or not last_outcome().answered:
            return None
        return position

    def __iter__(self) -> Iterator[int]:
        return iter(_SELECTORS)

    def __len__(self) -> int:
        return len(_SELECTORS)


def warning_text(channel: int, language: int = _USERS_OWN_LANGUAGE) -> str | None:
    """Returns the library's sentence for a routing that cannot be heard.

    Channel 1 to 4. The numbers of the languages are at
    :func:`ztkfunc.functions.ZTK_GetWarningTextForSetUSBAudioInput`. Returns None
    for channel 5, and if the texts are not installed.
    """
    return functions.ZTK_GetWarningTextForSetUSBAudioInput(
        10, channel - 1, functions.ZTK_WARNING, language
    )[1]


class Mixer:
    """The settings of one model. Without an argument, the model is the VRM-D6.

    A value is sent to all attached mixers, because the library does not
    distinguish them. Objects of this class have no open resources.
    """

    # With __slots__, assigning to a mistyped name of a setting is an error.
    __slots__ = ("model", "product_id")

    #: The name of the model.
    model: str
    #: The number of the model in the library.
    product_id: int

    def __init__(self, model: str | int = "VRM-D6") -> None:
        if isinstance(model, str):
            number = functions.ZTK_GetProductId(model)[1]
        else:
            number = model if model in _MODEL_NAMES else None
        if number is None:
            names = ", ".join(_MODEL_NAMES.values())
            raise ValueError(f"{model!r} is not a model; accepted: {names}")
        self.product_id = number
        self.model = _MODEL_NAMES[number]

    def _require(self, owner: int, setting: str) -> None:
        if self.product_id != owner:
            raise Rejected(
                f"the {self.model} has no {setting}; it is a setting of the {_MODEL_NAMES[owner]}"
            )

    @property
    def connected(self) -> bool:
        """Whether at least one mixer of any model is attached."""
        return functions.ZTK_IsUSBConnection(self.product_id) == functions.ZTK_CONNECTED

    @property
    def input(self) -> ChannelSetting:
        """The source that the computer records on each USB channel, 1 to 5 (VRM-D6)."""
        self._require(10, "USB input audio")
        return ChannelSetting(
            "USB input",
            10,
            5,
            functions.ZTK_GetNumOfInputAudioIndex,
            functions.ZTK_GetUSBInputAudioText,
            functions.ZTK_GetCurrentUSBInputAudioIndex,
            functions.ZTK_SetUSBInputAudio,
            functions.ZTK_SetCurrentUSBInputAudio,
        )

    @property
    def output(self) -> ChannelSetting:
        """The destination of each playback channel, 1 to 3 (VRM-B5)."""
        self._require(8, "USB output audio")
        return ChannelSetting(
            "USB output",
            8,
            3,
            functions.ZTK_GetNumOfOutputAudioIndex,
            functions.ZTK_GetUSBOutputAudioText,
            functions.ZTK_GetCurrentUSBOutputAudioIndex,
            functions.ZTK_SetUSBOutputAudio,
            functions.ZTK_SetCurrentUSBOutputAudio,
        )

    @property
    def boost_choices(self) -> tuple[str, ...]:
        """The texts of the boost levels."""
        self._require(10, "boost level")
        texts = (functions.ZTK_GetBoostLevelText(10, index)[1] for index in range(4))
        return tuple(text for text in texts if text is not None)

    @property
    def boost(self) -> str | None:
        """The boost level, which is the level of the USB output (VRM-D6).

        Reading returns the stored level, or "-19 dB" if none is stored, or None if
        the number in the settings file is not a level. Assigning accepts a text,
        or the number of a level, counted from 1.
        """
        choices = self.boost_choices
        index = functions.ZTK_GetCurrentBoostLevelIndex(10)[1]
        return choices[index] if index is not None and index < len(choices) else None

    @boost.setter
    def boost(self, choice: str | int) -> None:
        index = _index_of(choice, self.boost_choices, "boost level")
        _check_result("boost level", functions.ZTK_SetBoostLevelIndex(10, index), stores=True)

    @property
    def midi_choices(self) -> tuple[str, ...]:
        """The texts of the MIDI channels."""
        self._require(1, "MIDI channel")
        texts = (functions.ZTK_GetMidiChannelText(1, index)[1] for index in range(16))
        return tuple(text for text in texts if text is not None)

    @property
    def midi(self) -> str | None:
        """The MIDI channel on which the controls of the mixer send (VRM-K2).

        Reading returns the stored channel, or "CH 1" if none is stored, or None if
        the number in the settings file is not a channel. Assigning accepts a text,
        or a number from 1 to 16.
        """
        choices = self.midi_choices
        index = functions.ZTK_GetCurrentMidiChannelIndex(1)[1]
        return choices[index] if index is not None and index < len(choices) else None

    @midi.setter
    def midi(self, choice: str | int) -> None:
        index = _index_of(choice, self.midi_choices, "MIDI channel")
        _check_result("MIDI channel", functions.ZTK_SetMidiChannelIndex(1, index), stores=True)

    def apply(self) -> None:
        """Sends all stored settings of the model again, for example after power-on.

        For a setting that is not stored, the default is sent. Raises
        :class:`Rejected` for a stored value that cannot be sent, such as a MIDI
        channel above 4.
        """
        if self.product_id == 10:
            self.input.apply()
            result = functions.ZTK_SetCurrentBoostLevelIndex(10)
            _check_result("boost level", result, stores=False)
        elif self.product_id == 8:
            self.output.apply()
        elif self.product_id == 1:
            result = functions.ZTK_SetCurrentMidiChannelIndex(1)
            _check_result("MIDI channel", result, stores=False)
        else:
            raise Rejected(f"the {self.model} has no settings")

    @property
    def firmware(self) -> str | None:
        """The firmware version of the first mixer, such as "4.36".

        The version is None if the first mixer does not answer.
        """
        self._require(10, "firmware query")
        version = functions.ZTK_GetFirmwareVersionIndex(10)[1]
        if not version or not last_outcome().answered:
            return None
        # The number is binary-coded decimal: 0x0436 is 4.36.
        return f"{version >> 8:x}.{version & 0xFF:02x}"

    @property
    def certification(self) -> int | None:
        """The certification level, or None if no mixer answers."""
        self._require(10, "certification query")
        level = functions.ZTK_GetMixerCertifyLevel(10)[1]
        return level if last_outcome().answered else None

    @property
    def selectors(self) -> Selectors:
        """The positions of the input selectors of channels 1 to 4."""
        self._require(10, "selector query")
        return Selectors()

    @property
    def serato_active(self) -> bool | None:
        """Whether the Serato DJ software is active, or None if no mixer answers."""
        self._require(10, "Serato query")
        result, active = functions.ZTK_GetMixerSeratoActiveStatus(10, _NO_ANSWER)
        if result != functions.ZTK_SUCCESS or active == _NO_ANSWER:
            return None
        return active == 1


def _check_result(label: str, result: int, *, stores: bool) -> None:
    outcome = last_outcome()
    if result == functions.ZTK_REJECTED:
        raise Rejected(f"{label}: the value cannot be sent")
    _report(label, outcome, stores=stores)
