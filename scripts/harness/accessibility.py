"""What an assistive program learns of the screen: the accessibility bus and its trees of named elements."""

from typing import NamedTuple

from gi.repository import Gio, GLib

from .image import Rectangle
from .waiting import wait_for

_LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
_REGISTRY = "org.a11y.atspi.Registry"
_ROOT = "/org/a11y/atspi/accessible/root"
_ACCESSIBLE = "org.a11y.atspi.Accessible"
_APPLICATION = "application"
_FOCUSED = 12
_VISIBLE = 30
_IN_WINDOW = 1


class Element(NamedTuple):
    """One element of a tree, as it was when it was looked at."""

    owner: str
    path: str
    name: str
    role: str
    window: str
    """Title of the window that it is in."""
    is_focused: bool = False


_DESKTOP = Element(_REGISTRY, _ROOT, "", "", "")


class Accessibility:
    """The accessibility bus of a desktop. Programs that are to be seen on it start after it, without `GTK_A11Y`."""

    def __init__(self, desktop):
        self._guest = desktop.spawn([_LAUNCHER, "--launch-immediately"], name="accessibility")
        session = _connect(desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        self._bus = _connect(wait_for("the accessibility bus", lambda: _bus_address(session), guests=[self._guest]))

    def elements(self, parent=_DESKTOP):
        """Everything below `parent` that is visible, parents before children."""
        found = []
        for owner, path in self._children(parent):
            element = self._describe(Element(owner, path, "", "", parent.window))
            if element:
                found += [element, *self.elements(element)]
        return found

    def find(self, role, name):
        """The first element with this role and exactly this name; None when there is none."""
        return next((e for e in self.elements() if (e.role, e.name) == (role, name)), None)

    def focused(self):
        """What has the keyboard; None when nothing says so."""
        return next((e for e in self.elements() if e.is_focused), None)

    def extents(self, element):
        """In the coordinates of its window."""
        arguments = GLib.Variant("(u)", (_IN_WINDOW,))
        (area,) = self._call(element, "org.a11y.atspi.Component", "GetExtents", arguments)
        return Rectangle(*area)

    def _describe(self, at):
        """None when it is hidden, or gone since its parent named it."""
        try:
            arguments = GLib.Variant("(ss)", (_ACCESSIBLE, "Name"))
            (name,) = self._call(at, "org.freedesktop.DBus.Properties", "Get", arguments)
            (role,) = self._call(at, _ACCESSIBLE, "GetRoleName")
            (states,) = self._call(at, _ACCESSIBLE, "GetState")
        except GLib.Error:
            return None
        is_window = at.window == "" and role != _APPLICATION
        is_visible = role == _APPLICATION or states[0] & (1 << _VISIBLE)
        if not is_visible:
            return None
        is_focused = bool(states[0] & (1 << _FOCUSED))
        return at._replace(name=name, role=role, window=name if is_window else at.window, is_focused=is_focused)

    def _children(self, parent):
        try:
            return self._call(parent, _ACCESSIBLE, "GetChildren")[0]
        except GLib.Error:
            return []

    def _call(self, element, interface, method, arguments=None):
        flags, limit = Gio.DBusCallFlags.NONE, 5000
        return self._bus.call_sync(
            element.owner, element.path, interface, method, arguments, None, flags, limit, None
        ).unpack()


def _connect(address):
    flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
    return Gio.DBusConnection.new_for_address_sync(address, flags, None, None)


def _bus_address(session):
    try:
        name, path = "org.a11y.Bus", "/org/a11y/bus"
        flags = Gio.DBusCallFlags.NONE
        return session.call_sync(name, path, name, "GetAddress", None, None, flags, 5000, None).unpack()[0]
    except GLib.Error:
        return None
