# SPDX-License-Identifier: MIT
"""Settings of the USB DJ mixer VRM-D6 and its sister models.

    import ztkfunc

    mixer = ztkfunc.Mixer()
    mixer.input[2] = "Post CH2 Fader"

The package calls the installed shared library ZTKFunc. It has these modules:
:mod:`ztkfunc.mixer` for the settings as objects, :mod:`ztkfunc.changes` for the
changes that any program makes, :mod:`ztkfunc.outcome` for the effects of the last
call, and :mod:`ztkfunc.functions` for the functions of the C header.
"""
from ._library import LibraryMissingError
from ._version import VERSION as __version__
from .changes import Change, Changes, Subscription, changes, subscribe, use_glib_main_loop
from .mixer import (
    ChannelSetting,
    Inaudible,
    Mixer,
    NotSent,
    NotStored,
    Rejected,
    Selectors,
    warning_text,
)
from .outcome import Outcome, last_outcome

__all__ = [
    "Change",
    "Changes",
    "ChannelSetting",
    "Inaudible",
    "LibraryMissingError",
    "Mixer",
    "NotSent",
    "NotStored",
    "Outcome",
    "Rejected",
    "Selectors",
    "Subscription",
    "__version__",
    "changes",
    "last_outcome",
    "subscribe",
    "use_glib_main_loop",
    "warning_text",
]
