"""A desktop of its own: X server, window manager, session bus, home folder. For the tour, the tests and the bench.

    with VirtualDesktop() as desktop:
        guest = desktop.spawn(["xterm"])
        window = wait_for("its window", lambda: desktop.screen.window("xterm"), guests=[guest])

Needs the distribution's Python only. Everything started here is ended here, by process id, whatever happens.
"""

import os
import shutil
import signal
import subprocess
import sys
import tempfile

from harness.client import Client
from harness.guest import Guest, end_with_parent
from harness.image import Image, Rectangle
from harness.map_watch import Mapped, MapWatch
from harness.processes import cpu_seconds, process_tree, pss_kib
from harness.provider import Provider
from harness.screen import Screen, Window
from harness.waiting import NotReached, wait_for

__all__ = [
    *("VirtualDesktop", "Guest", "Client", "Provider", "Screen", "Window", "Image", "Rectangle", "MapWatch", "Mapped"),
    *("NotReached", "wait_for", "process_tree", "cpu_seconds", "pss_kib"),
]

# No service folders: the bus starts nothing, so no portal, settings or accessibility service of the machine joins in.
_BUS_CONFIGURATION = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default"><allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy>
</busconfig>
"""

_OPENBOX_CONFIGURATION = """<?xml version="1.0" encoding="UTF-8"?>
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <focus><focusNew>yes</focusNew><followMouse>no</followMouse></focus>
  <placement><policy>Smart</policy><center>yes</center></placement>
  <theme><name>Clearlooks</name><titleLayout>NLIMC</titleLayout><animateIconify>no</animateIconify></theme>
  <desktops><number>1</number><popupTime>0</popupTime></desktops>
  <keyboard><keybind key="A-F4"><action name="Close"/></keybind></keyboard>
  <mouse>
    <context name="Client">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
    </context>
    <context name="Titlebar">
      <mousebind button="Left" action="Press"><action name="Focus"/><action name="Raise"/></mousebind>
      <mousebind button="Left" action="Drag"><action name="Move"/></mousebind>
    </context>
    <context name="Close">
      <mousebind button="Left" action="Click"><action name="Close"/></mousebind>
    </context>
  </mouse>
</openbox_config>
"""


class VirtualDesktop:
    """Use it in a `with` statement; nothing runs before and nothing remains after."""

    def __init__(self, width=1280, height=800, window_manager=True):
        self._size = width, height
        self._window_manager = window_manager
        self._processes = []
        self._x_server = None
        self._manager = None
        self._guests = []
        self._watches = []
        self._folders = 0
        self.screen = None
        self.display_name = None
        self.folder = None
        self._bus_address = None
        self._environment = {}

    def __enter__(self):
        # A polite request to end must unwind the `with` statement instead of leaving an X server behind.
        if signal.getsignal(signal.SIGTERM) is signal.SIG_DFL:
            signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
        self.folder = tempfile.mkdtemp(prefix="orken-desktop-")
        try:
            self._start_bus()
            self._start_x_server()
            self._environment = self.new_environment()
            if self._window_manager:
                self.start_window_manager()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        for guest in reversed(self._guests):
            guest.close()
        for watch in self._watches:
            watch.close()
        if self.screen:
            self.screen.close()
        for process in reversed(self._processes):
            _end(process)
        shutil.rmtree(self.folder, ignore_errors=True)
        self._guests, self._watches, self._processes, self.screen = [], [], [], None

    @property
    def environment(self):
        """A copy of the desktop's environment: nothing of the caller's but PATH, and a home folder of its own."""
        return dict(self._environment)

    def new_environment(self):
        """Like `environment`, with a fresh and empty home folder."""
        home = self.new_folder("home")
        runtime = self.new_folder("runtime")
        os.chmod(runtime, 0o700)
        return {
            "PATH": os.environ.get("PATH", "/usr/bin:/bin"),
            "LANG": "C.UTF-8",
            "HOME": home,
            "XDG_RUNTIME_DIR": runtime,
            "DISPLAY": self.display_name,
            "DBUS_SESSION_BUS_ADDRESS": self._bus_address,
            "GSETTINGS_BACKEND": "memory",
            # Without an accessibility bus the toolkits would warn; a test of accessibility brings its own.
            "GTK_A11Y": "none",
            # The same renderer on every machine, with a graphics card or not.
            "GSK_RENDERER": "cairo",
        }

    def new_folder(self, name):
        self._folders += 1
        path = os.path.join(self.folder, f"{name}-{self._folders}")
        os.mkdir(path)
        return path

    def spawn(self, command, environment=None, name=None):
        """Starts a program on this desktop; it is ended with the desktop at the latest. Main thread only."""
        name = name or os.path.basename(command[0])
        log = os.path.join(self.new_folder(name), "output.log")
        guest = Guest(command, environment or self._environment, log, name)
        self._guests.append(guest)
        return guest

    def discard(self, guest):
        """Ends a guest before the desktop ends."""
        self._guests.remove(guest)
        guest.close()

    def watch_maps(self):
        watch = MapWatch(self.display_name)
        self._watches.append(watch)
        return watch

    def end_x_server(self, number=signal.SIGTERM):
        """The screen is gone from here on, also for the caller."""
        # A connection whose server has gone would end this interpreter.
        for watch in self._watches:
            watch.close()
        self.screen.close()
        self.screen, self._watches = None, []
        self._x_server.send_signal(number)
        self._x_server.wait()

    def start_window_manager(self):
        configuration = os.path.join(self.folder, "openbox.xml")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(_OPENBOX_CONFIGURATION)
        self._manager = self._start(["openbox", "--config-file", configuration], env=self._environment)
        _await("the window manager", self._manager, self.screen.has_window_manager)

    def end_window_manager(self, number=signal.SIGTERM):
        self._manager.send_signal(number)
        self._manager.wait()
        self._processes.remove(self._manager)

    def _start_bus(self):
        socket = os.path.join(self.folder, "bus")
        configuration = os.path.join(self.folder, "bus.conf")
        with open(configuration, "w", encoding="utf-8") as file:
            file.write(_BUS_CONFIGURATION.format(socket=socket))
        bus = self._start(["dbus-daemon", "--nofork", "--nopidfile", f"--config-file={configuration}"])
        _await("the session bus", bus, lambda: os.path.exists(socket))
        self._bus_address = f"unix:path={socket}"

    def _start_x_server(self):
        reader, writer = os.pipe()
        width, height = self._size
        command = ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{width}x{height}x24"]
        try:
            self._x_server = self._start(command + ["-dpi", "96", "-noreset", "-nolisten", "tcp"], pass_fds=[writer])
        finally:
            os.close(writer)
        with os.fdopen(reader) as answer:
            number = answer.readline().strip()
        if not number:
            raise NotReached(f"the X server: ended with status {self._x_server.wait()}")
        self.display_name = f":{number}"
        self.screen = Screen(self.display_name)

    def _start(self, command, **options):
        """One of the desktop's own processes; its messages go to a file in the desktop's folder."""
        with open(os.path.join(self.folder, f"{command[0]}.log"), "wb") as log:
            process = subprocess.Popen(
                command,
                stdin=subprocess.DEVNULL,
                stdout=log,
                stderr=log,
                start_new_session=True,
                preexec_fn=end_with_parent,
                **options,
            )
        self._processes.append(process)
        return process


def _await(what, process, condition):
    def ready():
        if process.poll() is not None:
            raise NotReached(f"{what}: ended with status {process.returncode}")
        return condition()

    wait_for(what, ready, 30.0)


def _end(process):
    process.terminate()
    try:
        process.wait(10.0)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()
