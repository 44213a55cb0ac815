# SPDX-License-Identifier: MIT
"""Changes of settings as they happen, made by any program.

The library calls one callback for each family of settings. This module
registers its own, once, and passes each change on to every subscriber.

Where the callbacks run on Linux:

- By default on a thread of this module, which runs a GLib main loop of its own.
  The program needs no main loop and no PyGObject.
- After :func:`use_glib_main_loop`, on the main loop that the program runs.

On macOS they run on the main thread while its run loop runs.

Changes are sent over the message bus of the session. Without a bus, for example
over ssh, nothing is received: a subscription then gives a RuntimeWarning.
"""
from __future__ import annotations

import ctypes
import sys
import threading
import warnings
from typing import NamedTuple

from . import functions

# Not imported here, because it would double the time of the import: asyncio, which
# only changes() needs, and the modules that only the annotations need.
TYPE_CHECKING = False
if TYPE_CHECKING:
    import asyncio
    from collections.abc import Callable
    from typing import Any

#: The models for which the callbacks are registered: the VRM-D6 for input, output
#: and boost, and the VRM-K2 for MIDI.
_MIXER_MODEL = 10
_MIDI_MODEL = 1


class Change(NamedTuple):
    """A setting that has just been changed by some program."""

    #: "input", "output", "boost" or "midi".
    setting: str
    #: Channel, from 1; None for a setting without channels.
    channel: int | None
    #: The number of the choice, from 1, as in the output of ``ztk``.
    number: int
    #: The choice as a text, such as "Post CH2 Fader"; None if the number is not
    #: one of the choices.
    text: str | None


class Subscription:
    """Keeps a function subscribed until :meth:`close` is called."""

    def __init__(self, callback: Callable[[Change], object]) -> None:
        self._callback = callback

    def close(self) -> None:
        """Ends the subscription; may be called more than once, from any thread."""
        with _state.lock:
            if self in _state.subscribers:
                _state.subscribers.remove(self)

    def __enter__(self) -> Subscription:
        return self

    def __exit__(self, *_error: object) -> None:
        self.close()


class _State:
    """The state of the module; the lock guards all of it."""

    def __init__(self) -> None:
        self.lock = threading.Lock()
        self.subscribers: list[Subscription] = []
        self.started = False
        self.has_bus = True


_state = _State()


def _choice_text(setting: str, channel: int | None, index: int) -> str | None:
    if index < 0:
        return None
    if setting == "boost":
        return functions.ZTK_GetBoostLevelText(_MIXER_MODEL, index)[1]
    if setting == "midi":
        return functions.ZTK_GetMidiChannelText(_MIDI_MODEL, index)[1]
    assert channel is not None
    if channel < 0:
        return None
    if setting == "output":
        count = functions.ZTK_GetNumOfOutputAudioIndex(8, channel)[1]
        if count is None or index >= count:
            return None
        return functions.ZTK_GetUSBOutputAudioText(8, channel, index)[1]
    count = functions.ZTK_GetNumOfInputAudioIndex(_MIXER_MODEL, channel)[1]
    if count is None or index >= count:
        return None
    return functions.ZTK_GetUSBInputAudioText(_MIXER_MODEL, channel, index)[1]


def _deliver(setting: str, channel: int | None, index: int) -> None:
    change = Change(
        setting=setting,
        channel=None if channel is None else channel + 1,
        number=index + 1,
        text=_choice_text(setting, channel, index),
    )
    with _state.lock:
        subscribers = list(_state.subscribers)
    for subscriber in subscribers:
        try:
            subscriber._callback(change)
        except Exception:  # one subscriber must not silence the others
            sys.excepthook(*sys.exc_info())


def _register_all() -> None:
    """Registers the module's callbacks, which stay until the process ends."""
    functions.ZTK_RegisterInputAudioChangedCallback(
        _MIXER_MODEL, lambda channel, index: _deliver("input", channel, index)
    )
    functions.ZTK_RegisterOutputAudioChangedCallback(
        _MIXER_MODEL, lambda channel, index: _deliver("output", channel, index)
    )
    functions.ZTK_RegisterBoostLevelChangedCallback(
        _MIXER_MODEL, lambda index: _deliver("boost", None, index)
    )
    functions.ZTK_RegisterMidiChannelChangedCallback(
        _MIDI_MODEL, lambda index: _deliver("midi", None, index)
    )


def _has_bus() -> bool:
    """Whether this session has a message bus that programs can connect to."""
    if sys.platform == "darwin":
        return True
    for name in ("libsystemd.so.0", "libelogind.so.0", "libbasu.so.0"):
        try:
            sd_bus = ctypes.CDLL(name)
        except OSError:
            continue
        bus = ctypes.c_void_p()
        if sd_bus.sd_bus_open_user(ctypes.byref(bus)) < 0:
            return False
        sd_bus.sd_bus_close(bus)
        sd_bus.sd_bus_unref(bus)
        return True
    return False


def _warn_without_bus() -> None:
    if not _state.has_bus:
        warnings.warn(
            "this session has no message bus, so no changes will be received; "
            "run: ztk doctor",
            RuntimeWarning,
            stacklevel=3,
        )


def _load_glib() -> Any:
    glib = ctypes.CDLL("libglib-2.0.so.0")
    glib.g_main_context_new.restype = ctypes.c_void_p
    glib.g_main_context_push_thread_default.argtypes = [ctypes.c_void_p]
    glib.g_main_context_iteration.argtypes = [ctypes.c_void_p, ctypes.c_int]
    return glib


def _run_main_loop(glib: Any, registered: threading.Event) -> None:
    context = ctypes.c_void_p(glib.g_main_context_new())
    glib.g_main_context_push_thread_default(context)
    _register_all()
    registered.set()
    while True:
        glib.g_main_context_iteration(context, 1)


def _start_thread() -> None:
    try:
        glib = _load_glib()
    except OSError as error:
        raise RuntimeError(
            f"changes cannot be received without GLib ({error}); "
            "install the package libglib2.0-0"
        ) from error
    registered = threading.Event()
    # A daemon thread: it has nothing to finish when the program ends.
    threading.Thread(
        target=_run_main_loop,
        args=(glib, registered),
        name="ztkfunc-changes",
        daemon=True,
    ).start()
    registered.wait()


def use_glib_main_loop() -> None:
    """Delivers changes on the GLib main loop of the calling thread.

    Call it once, before the first subscription, on the thread that runs the
    loop: the main thread of a GTK program, or one that has pushed a thread
    default context. Raises RuntimeError after the first subscription.
    """
    with _state.lock:
        if _state.started:
            raise RuntimeError(
                "use_glib_main_loop() must be called once, before the first subscription"
            )
        _state.started = True
        _state.has_bus = _has_bus()
    _register_all()
    _warn_without_bus()


def subscribe(callback: Callable[[Change], object]) -> Subscription:
    """Calls a function with every :class:`Change` from now on.

    Issues a RuntimeWarning if there is no message bus. The text at the top of this
    module says on which thread the function is called. If it raises an exception, the
    other subscribers are still called, and the error goes to ``sys.excepthook``.
    """
    subscription = Subscription(callback)
    with _state.lock:
        _state.subscribers.append(subscription)
        start = not _state.started
        _state.started = True
        if start:
            _state.has_bus = _has_bus()
            if sys.platform == "darwin":
                _register_all()
            else:
                _start_thread()
    _warn_without_bus()
    return subscription


class Changes:
    """An asynchronous iterator over changes; see :func:`changes`."""

    def __init__(self) -> None:
        import asyncio

        self._loop = asyncio.get_running_loop()
        self._queue: asyncio.Queue[Change] = asyncio.Queue()
        self._subscription = subscribe(self._put)

    def _put(self, change: Change) -> None:
        try:
            self._loop.call_soon_threadsafe(self._queue.put_nowait, change)
        except RuntimeError:  # the loop has been closed
            self._subscription.close()

    def __aiter__(self) -> Changes:
        return self

    async def __anext__(self) -> Change:
        return await self._queue.get()

    def close(self) -> None:
        """Ends the subscription."""
        self._subscription.close()

    async def __aenter__(self) -> Changes:
        return self

    async def __aexit__(self, *_error: object) -> None:
        self.close()


def changes() -> Changes:
    """Gives every change from now on, for ``async for change in changes()``.

    Must be called while an asyncio loop runs. Changes that come between two
    steps of the loop are kept in order. Gives a RuntimeWarning where there is no
    message bus, as nothing will come then.
    """
    return Changes()
