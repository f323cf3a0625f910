"""Key presses through the X server's test extension."""

import ctypes
import time

from .xlib import X11, XTST

_MODIFIERS = {"shift": "Shift_L", "ctrl": "Control_L", "alt": "Alt_L", "super": "Super_L"}
_KEYS = {"\n": "Return", "\t": "Tab"}
_SETTLE = 0.2
_BETWEEN_KEYS = 0.01


class Keyboard:
    """The server's one keyboard, on the connection `display`."""

    def __init__(self, display):
        self._display = display
        self._borrowed = {}

    def press(self, combination):
        """A key by its X name, with modifiers before it: "Escape", "ctrl+shift+i"."""
        symbols = [_symbol(_MODIFIERS.get(name, name)) for name in combination.split("+")]
        self._press([self._code(symbol) for symbol in symbols])

    def type(self, text):
        """Types as if the keyboard had a key for every character."""
        strokes = [self._stroke(character) for character in text]
        # Programs learn of keys that got a new meaning by an event of their own.
        X11.XSync(self._display, 0)
        time.sleep(_SETTLE)
        for stroke in strokes:
            self._press(stroke)
            time.sleep(_BETWEEN_KEYS)

    def _stroke(self, character):
        """Key codes to hold together for one character."""
        symbol = _symbol(_KEYS.get(character, f"U{ord(character):04X}"))
        code = X11.XKeysymToKeycode(self._display, symbol)
        if code and X11.XkbKeycodeToKeysym(self._display, code, 0, 0) == symbol:
            return [code]
        if code and X11.XkbKeycodeToKeysym(self._display, code, 0, 1) == symbol:
            return [self._code(_symbol("Shift_L")), code]
        return [self._borrow(symbol)]

    def _borrow(self, symbol):
        """A key without a meaning gets this one, for the server's lifetime."""
        if symbol not in self._borrowed:
            code = next(code for code in range(255, 8, -1) if self._is_free(code))
            # A lone letter would stand for both its cases, so both levels are set.
            pair = (ctypes.c_ulong * 2)(symbol, symbol)
            X11.XChangeKeyboardMapping(self._display, code, 2, pair, 1)
            self._borrowed[symbol] = code
        return self._borrowed[symbol]

    def _is_free(self, code):
        return code not in self._borrowed.values() and X11.XkbKeycodeToKeysym(self._display, code, 0, 0) == 0

    def _code(self, symbol):
        code = X11.XKeysymToKeycode(self._display, symbol)
        if code == 0:
            raise ValueError(f"no key for symbol {symbol:#x} on this keyboard")
        return code

    def _press(self, codes):
        for code in codes:
            XTST.XTestFakeKeyEvent(self._display, code, 1, 0)
        for code in reversed(codes):
            XTST.XTestFakeKeyEvent(self._display, code, 0, 0)
        X11.XSync(self._display, 0)


def _symbol(name):
    symbol = X11.XStringToKeysym(name.encode())
    if symbol == 0:
        raise ValueError(f"no key symbol called {name!r}")
    return symbol
