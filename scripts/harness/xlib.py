"""The few calls of libX11 and libXtst that the virtual desktop needs, declared for ctypes."""

import ctypes
from ctypes import POINTER, byref, c_char_p, c_int, c_long, c_ubyte, c_uint, c_ulong, c_void_p

X11 = ctypes.CDLL("libX11.so.6")
XTST = ctypes.CDLL("libXtst.so.6")

_DISPLAY = c_void_p
_XID = c_ulong

Z_PIXMAP = 2
ALL_PLANES = c_ulong(-1).value
CREATE_NOTIFY = 16
MAP_NOTIFY = 19
STRUCTURE_NOTIFY_MASK = 1 << 17
SUBSTRUCTURE_NOTIFY_MASK = 1 << 19


class XImage(ctypes.Structure):
    """Its first fields, down to the ones in use."""

    _fields_ = [
        ("width", c_int),
        ("height", c_int),
        ("xoffset", c_int),
        ("format", c_int),
        ("data", c_void_p),
        ("byte_order", c_int),
        ("bitmap_unit", c_int),
        ("bitmap_bit_order", c_int),
        ("bitmap_pad", c_int),
        ("depth", c_int),
        ("bytes_per_line", c_int),
        ("bits_per_pixel", c_int),
    ]


class XWindowEvent(ctypes.Structure):
    """The common beginning of CreateNotify (where `event` is the parent) and MapNotify."""

    _fields_ = [
        ("type", c_int),
        ("serial", c_ulong),
        ("send_event", c_int),
        ("display", c_void_p),
        ("event", _XID),
        ("window", _XID),
    ]


class XEvent(ctypes.Union):
    _fields_ = [("type", c_int), ("of_window", XWindowEvent), ("pad", c_long * 24)]


def _declare(library, name, result, *arguments):
    function = getattr(library, name)
    function.restype = result
    function.argtypes = arguments


def _outputs(*types):
    return tuple(map(POINTER, types))


_declare(X11, "XInitThreads", c_int)
_declare(X11, "XOpenDisplay", _DISPLAY, c_char_p)
_declare(X11, "XCloseDisplay", c_int, _DISPLAY)
_declare(X11, "XDefaultRootWindow", _XID, _DISPLAY)
_declare(X11, "XInternAtom", c_ulong, _DISPLAY, c_char_p, c_int)
_declare(X11, "XSync", c_int, _DISPLAY, c_int)
_declare(X11, "XFree", c_int, c_void_p)
_declare(X11, "XPending", c_int, _DISPLAY)
_declare(X11, "XConnectionNumber", c_int, _DISPLAY)
_declare(X11, "XNextEvent", c_int, _DISPLAY, POINTER(XEvent))
_declare(X11, "XSelectInput", c_int, _DISPLAY, _XID, c_long)
_declare(X11, "XStringToKeysym", c_ulong, c_char_p)
_declare(X11, "XKeysymToKeycode", c_ubyte, _DISPLAY, c_ulong)
_declare(X11, "XkbKeycodeToKeysym", c_ulong, _DISPLAY, c_ubyte, c_int, c_int)
_declare(X11, "XChangeKeyboardMapping", c_int, _DISPLAY, c_int, c_int, POINTER(c_ulong), c_int)
_declare(X11, "XGetImage", POINTER(XImage), _DISPLAY, _XID, c_int, c_int, c_uint, c_uint, c_ulong, c_int)
_declare(X11, "XDestroyImage", c_int, POINTER(XImage))
_declare(X11, "XQueryTree", c_int, _DISPLAY, _XID, *_outputs(_XID, _XID, c_void_p, c_uint))
_declare(X11, "XGetGeometry", c_int, _DISPLAY, _XID, *_outputs(_XID, c_int, c_int, c_uint, c_uint, c_uint, c_uint))
_declare(X11, "XTranslateCoordinates", c_int, _DISPLAY, _XID, _XID, c_int, c_int, *_outputs(c_int, c_int, _XID))
_declare(
    *(X11, "XGetWindowProperty", c_int, _DISPLAY, _XID, c_ulong, c_long, c_long, c_int, c_ulong),
    *_outputs(c_ulong, c_int, c_ulong, c_ulong, c_void_p),
)
_declare(XTST, "XTestFakeMotionEvent", c_int, _DISPLAY, c_int, c_int, c_int, c_ulong)
_declare(XTST, "XTestFakeButtonEvent", c_int, _DISPLAY, c_uint, c_int, c_ulong)
_declare(XTST, "XTestFakeKeyEvent", c_int, _DISPLAY, c_uint, c_int, c_ulong)

# Windows come and go while they are looked at; the library's own handler would end the interpreter.
_IGNORE_ERROR = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)(lambda display, error: 0)
X11.XSetErrorHandler(_IGNORE_ERROR)
X11.XInitThreads()


def _property(display, window, name):
    """The whole property as (bits of one item, bytes); None when absent."""
    kind, bits, count, left, data = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
    atom = X11.XInternAtom(display, name.encode(), 0)
    outputs = map(byref, (kind, bits, count, left, data))
    if X11.XGetWindowProperty(display, window, atom, 0, 1 << 20, 0, 0, *outputs) != 0 or not data:
        return None
    # Items of 32 bits come as native longs.
    size = {8: 1, 16: 2, 32: ctypes.sizeof(c_long)}.get(bits.value, 0)
    content = ctypes.string_at(data, count.value * size)
    X11.XFree(data)
    return bits.value, content


def text_property(display, window, name):
    found = _property(display, window, name)
    return None if found is None else found[1].decode("utf-8", "replace")


def numbers_property(display, window, name):
    """Items of a 32-bit property: windows, atoms, cardinals. Empty when absent."""
    found = _property(display, window, name)
    if found is None or found[0] != 32:
        return []
    return list((c_ulong * (len(found[1]) // ctypes.sizeof(c_ulong))).from_buffer_copy(found[1]))


def children(display, window):
    """Child windows from the lowest to the topmost."""
    root, parent, data, count = _XID(), _XID(), c_void_p(), c_uint()
    if not X11.XQueryTree(display, window, *map(byref, (root, parent, data, count))) or not data:
        return []
    found = list((_XID * count.value).from_address(data.value))
    X11.XFree(data)
    return found


def geometry(display, window):
    """(x, y, width, height) in screen coordinates; None when the window is gone."""
    root, child, x, y = _XID(), _XID(), c_int(), c_int()
    width, height, border, depth = c_uint(), c_uint(), c_uint(), c_uint()
    if not X11.XGetGeometry(display, window, *map(byref, (root, x, y, width, height, border, depth))):
        return None
    if not X11.XTranslateCoordinates(display, window, root, 0, 0, byref(x), byref(y), byref(child)):
        return None
    return x.value, y.value, width.value, height.value


def title_of(display, window):
    return text_property(display, window, "_NET_WM_NAME") or text_property(display, window, "WM_NAME") or ""


def process_of(display, window):
    """The process that says it owns the window; None when none says so."""
    return next(iter(numbers_property(display, window, "_NET_WM_PID")), None)
