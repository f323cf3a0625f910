"""Looking at an X screen and acting on it like a user."""

import ctypes
import time
from typing import NamedTuple, Optional

from . import xlib
from .image import Image, Rectangle
from .keyboard import Keyboard
from .xlib import X11, XTST

_CURRENT_TIME = 0
_LEFT_BUTTON = 1


class Window(NamedTuple):
    id: int
    title: str
    pid: Optional[int]


class Screen:
    """One connection to the X server; used by one thread."""

    def __init__(self, display_name):
        self._display = X11.XOpenDisplay(display_name.encode())
        if not self._display:
            raise OSError(f"no X server at {display_name}")
        self.root = X11.XDefaultRootWindow(self._display)
        self._keyboard = Keyboard(self._display)
        _, _, self.width, self.height = xlib.geometry(self._display, self.root)

    @property
    def connection(self):
        """For what else looks at or changes this screen."""
        return self._display

    def close(self):
        X11.XCloseDisplay(self._display)

    def has_window_manager(self):
        return bool(xlib.numbers_property(self._display, self.root, "_NET_SUPPORTING_WM_CHECK"))

    def windows(self):
        """Windows of programs, oldest first, as the window manager lists them; without one, the titled ones."""
        managed = self.has_window_manager()
        if managed:
            ids = xlib.numbers_property(self._display, self.root, "_NET_CLIENT_LIST")
        else:
            ids = xlib.children(self._display, self.root)
        described = [
            Window(id, xlib.title_of(self._display, id), xlib.process_of(self._display, id)) for id in ids
        ]
        return [window for window in described if managed or window.title]

    def window(self, title):
        """The oldest window with exactly this title, or None."""
        return next((window for window in self.windows() if window.title == title), None)

    def geometry(self, window):
        """The window without its decoration, in screen coordinates; None when it is gone."""
        found = xlib.geometry(self._display, window.id)
        return None if found is None else Rectangle(*found)

    def is_fullscreen(self, window):
        """The window manager says so and the window covers the screen."""
        wanted = X11.XInternAtom(self._display, b"_NET_WM_STATE_FULLSCREEN", 0)
        states = xlib.numbers_property(self._display, window.id, "_NET_WM_STATE")
        return wanted in states and self._covers_screen(self.geometry(window))

    def _covers_screen(self, area):
        """A window that cannot become as small as the screen reaches beyond it."""
        if area is None:
            return False
        return area.x <= 0 and area.y <= 0 and area.right >= self.width and area.bottom >= self.height

    def active_window(self):
        """The window with the keyboard, or None."""
        active = xlib.numbers_property(self._display, self.root, "_NET_ACTIVE_WINDOW")
        return next((window for window in self.windows() if window.id in active), None)

    def active_title(self):
        """Of the window with the keyboard; empty when none has it."""
        active = self.active_window()
        return active.title if active else ""

    def image(self):
        """What the screen shows now, without the pointer."""
        size = self.width, self.height
        image = X11.XGetImage(self._display, self.root, 0, 0, *size, xlib.ALL_PLANES, xlib.Z_PIXMAP)
        if not image:
            raise OSError("the X server gave no image")
        contents = image.contents
        if (contents.bits_per_pixel, contents.bytes_per_line) != (32, 4 * self.width):
            raise OSError(f"unexpected screen format: {contents.bits_per_pixel} bits a pixel")
        data = ctypes.string_at(contents.data, 4 * self.width * self.height)
        X11.XDestroyImage(image)
        return Image.from_bgrx(*size, data)

    def screenshot(self, path):
        image = self.image()
        image.save(path)
        return image

    def click(self, x, y):
        """Left click; answers the moment at which the button was released."""
        XTST.XTestFakeMotionEvent(self._display, -1, x, y, _CURRENT_TIME)
        self._flush(0.05)
        XTST.XTestFakeButtonEvent(self._display, _LEFT_BUTTON, 1, _CURRENT_TIME)
        self._flush(0.03)
        XTST.XTestFakeButtonEvent(self._display, _LEFT_BUTTON, 0, _CURRENT_TIME)
        self._flush()
        return time.monotonic()

    def key(self, combination):
        """Presses a key by its X name, with modifiers before it: "Escape", "ctrl+shift+i"."""
        self._keyboard.press(combination)

    def type(self, text):
        """Types `text` into what has the keyboard; any character; a line end is Return."""
        self._keyboard.type(text)

    def _flush(self, pause=0.0):
        """Waits until the server has done everything asked, then `pause` seconds as a hand would."""
        X11.XSync(self._display, 0)
        time.sleep(pause)
