"""Monitors of an X screen come, go and change their size, through the server's own extension for it."""

import ctypes
from ctypes import POINTER, byref, c_char_p, c_int, c_uint, c_ulong, c_void_p

from .image import Rectangle
from .xlib import X11

_RANDR = ctypes.CDLL("libXrandr.so.2")
_XID = c_ulong
_NO_ROTATION = 1
_MILLIMETRES_PER_PIXEL = 25.4 / 96


class _Mode(ctypes.Structure):
    _fields_ = [
        *(("id", _XID), ("width", c_uint), ("height", c_uint), ("clock", c_ulong)),
        *((name, c_uint) for name in ("h_start", "h_end", "h_total", "h_skew", "v_start", "v_end", "v_total")),
        *(("name", c_char_p), ("name_length", c_uint), ("flags", c_ulong)),
    ]


class _Resources(ctypes.Structure):
    _fields_ = [
        *(("time", c_ulong), ("configured", c_ulong), ("crtc_count", c_int), ("crtcs", POINTER(_XID))),
        *(("output_count", c_int), ("outputs", POINTER(_XID)), ("mode_count", c_int), ("modes", POINTER(_Mode))),
    ]


class _Monitor(ctypes.Structure):
    _fields_ = [
        *(("name", c_ulong), ("primary", c_int), ("automatic", c_int), ("output_count", c_int)),
        *((name, c_int) for name in ("x", "y", "width", "height", "width_mm", "height_mm")),
        ("outputs", POINTER(_XID)),
    ]


_RANDR.XRRGetScreenResources.restype = POINTER(_Resources)
_RANDR.XRRGetScreenResources.argtypes = [c_void_p, _XID]
_RANDR.XRRFreeScreenResources.argtypes = [POINTER(_Resources)]
_RANDR.XRRCreateMode.restype = _XID
_RANDR.XRRCreateMode.argtypes = [c_void_p, _XID, POINTER(_Mode)]
_RANDR.XRRAddOutputMode.argtypes = [c_void_p, _XID, _XID]
_RANDR.XRRSetCrtcConfig.argtypes = [
    *(c_void_p, POINTER(_Resources), _XID, c_ulong, c_int, c_int, _XID, ctypes.c_ushort, POINTER(_XID), c_int),
]
_RANDR.XRRSetScreenSize.argtypes = [c_void_p, _XID, c_int, c_int, c_int, c_int]
_RANDR.XRRSetMonitor.argtypes = [c_void_p, _XID, POINTER(_Monitor)]
_RANDR.XRRDeleteMonitor.argtypes = [c_void_p, _XID, c_ulong]


class Monitors:
    """Of one screen, which is one monitor at first. The screen cannot become larger than it was."""

    def __init__(self, screen):
        self._screen = screen
        self._display = screen.connection
        self._modes = {}
        self._added = []

    def resize(self, width, height):
        """Another mode of the one output, and the screen as large as it."""
        resources = _RANDR.XRRGetScreenResources(self._display, self._screen.root)
        crtc, output = resources.contents.crtcs[0], resources.contents.outputs
        mode = self._mode(output[0], width, height)
        set_mode = (_RANDR.XRRSetCrtcConfig, self._display, resources, crtc, 0, 0, 0)
        set_mode[0](*set_mode[1:], 0, _NO_ROTATION, None, 0)
        _RANDR.XRRSetScreenSize(self._display, self._screen.root, width, height, *_millimetres(width, height))
        set_mode[0](*set_mode[1:], mode, _NO_ROTATION, output, 1)
        _RANDR.XRRFreeScreenResources(resources)
        X11.XSync(self._display, 0)
        self._screen.width, self._screen.height = width, height

    def split(self):
        """Two monitors in place of one, side by side; answers their places."""
        resources = _RANDR.XRRGetScreenResources(self._display, self._screen.root)
        half, height = self._screen.width // 2, self._screen.height
        places = [Rectangle(0, 0, half, height), Rectangle(half, 0, half, height)]
        for count, place in enumerate(places):
            name = X11.XInternAtom(self._display, b"half-%d" % count, 0)
            monitor = _Monitor(name, count == 0, 0, 1 - count, *place, *_millimetres(*place[2:]))
            monitor.outputs = resources.contents.outputs
            _RANDR.XRRSetMonitor(self._display, self._screen.root, byref(monitor))
            self._added.append(name)
        _RANDR.XRRFreeScreenResources(resources)
        self._tell()
        return places

    def join(self):
        """One monitor again."""
        for name in self._added:
            _RANDR.XRRDeleteMonitor(self._display, self._screen.root, name)
        self._added = []
        self._tell()

    def _tell(self):
        """The server tells programs of a change of its outputs, not of its list of monitors."""
        width, height = self._screen.width, self._screen.height
        self.resize(width, height - 8)
        self.resize(width, height)

    def _mode(self, output, width, height):
        if (width, height) not in self._modes:
            name = b"%dx%d" % (width, height)
            timing = (width, width, width, 0, height, height, height)
            mode = _Mode(0, width, height, width * height * 60, *timing, name, len(name), 0)
            self._modes[width, height] = _RANDR.XRRCreateMode(self._display, self._screen.root, byref(mode))
            _RANDR.XRRAddOutputMode(self._display, output, self._modes[width, height])
        return self._modes[width, height]


def _millimetres(width, height):
    return round(width * _MILLIMETRES_PER_PIXEL), round(height * _MILLIMETRES_PER_PIXEL)
