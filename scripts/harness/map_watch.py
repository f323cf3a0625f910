"""The moments at which windows came onto the screen, told by the X server."""

import os
import select
import threading
import time
from typing import NamedTuple, Optional

from . import xlib
from .waiting import wait_for
from .xlib import X11


class Mapped(NamedTuple):
    time: float
    """Seconds of the monotonic clock."""
    title: str
    pid: Optional[int]


class MapWatch:
    """A thread with an X connection of its own that notes every titled window when it is first shown."""

    def __init__(self, display_name):
        self._display = X11.XOpenDisplay(display_name.encode())
        if not self._display:
            raise OSError(f"no X server at {display_name}")
        self._root = X11.XDefaultRootWindow(self._display)
        X11.XSelectInput(self._display, self._root, xlib.SUBSTRUCTURE_NOTIFY_MASK)
        X11.XSync(self._display, 0)
        self._not_shown = set()
        self._mapped = []
        self._stop_read, self._stop_write = os.pipe()
        self._thread = threading.Thread(target=self._run, daemon=True)
        self._thread.start()

    def mapped(self):
        return list(self._mapped)

    def wait_for(self, pid, title=None, limit=60.0, guests=()):
        """The first showing of a window of process `pid`, of that title if one is given."""

        def first():
            return next((m for m in self.mapped() if m.pid == pid and title in (None, m.title)), None)

        return wait_for(f"window {title or ''!r} of process {pid}", first, limit, guests)

    def close(self):
        os.close(self._stop_write)
        self._thread.join()
        os.close(self._stop_read)
        X11.XCloseDisplay(self._display)

    def _run(self):
        connection = X11.XConnectionNumber(self._display)
        event = xlib.XEvent()
        while True:
            while X11.XPending(self._display):
                X11.XNextEvent(self._display, event)
                self._take(event)
            if self._stop_read in select.select([connection, self._stop_read], [], [])[0]:
                return

    def _take(self, event):
        now = time.monotonic()
        window = event.of_window.window
        if event.type == xlib.CREATE_NOTIFY and event.of_window.event == self._root:
            # A window manager puts the window into a frame, where the root no longer hears of it.
            X11.XSelectInput(self._display, window, xlib.STRUCTURE_NOTIFY_MASK)
            self._not_shown.add(window)
        elif event.type == xlib.MAP_NOTIFY and window in self._not_shown:
            if title := xlib.title_of(self._display, window):
                # The server gives the numbers of windows out again, so a shown one is forgotten here.
                self._not_shown.discard(window)
                self._mapped.append(Mapped(now, title, xlib.process_of(self._display, window)))
