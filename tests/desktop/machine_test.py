#!/usr/bin/python3
"""The client and the machine around it: the version gate, other applications, keys and windows, removal of the bundle.

    PYTHONPATH=scripts tests/desktop/machine_test.py BUILD_FOLDER [test names]
"""

import os
import pathlib
import subprocess

from harness import client_case
from harness.client_case import ClientCase, main
from harness.client import SESSION_TITLE, START_TITLE
from virtual_desktop import wait_for

ALERT_TITLE = "Devam edebilmek için"
UPDATE_TITLE = "Güncelleme Gerekli"


class MachineCase(ClientCase):
    def victim(self, window_class, *command):
        guest = self.desktop.spawn(["xterm", "-class", window_class, "-name", window_class, *command])
        wait_for(f"window of {window_class}", lambda: self.window_of(guest), guests=[guest])
        return guest

    def window_of(self, guest):
        return next((window for window in self.desktop.screen.windows() if window.pid == guest.pid), None)

    def wait_for_alert(self, text):
        wait_for(f"the alert {text!r}", lambda: self.desktop.screen.active_title().startswith(text))


class Gate(MachineCase):
    def test_escape_closes_a_client_that_is_too_old(self):
        client = self.client(self.provider("--required-version", "1.10"))
        client.guest.wait_for_line("Başarılı: ")
        self.wait_for_alert(UPDATE_TITLE)
        self.desktop.screen.key("Escape")
        self.assert_ends(client)
        self.assertEqual(
            self.stdout(client),
            [
                "Mevcut Sürüm: 1.0 - Gerekli Sürüm: 1.10",
                "",
                "Uygulama güncelleme gerekli.",
                'Başarılı: AppData(macVersion: "1.10")',
            ],
        )


class OtherApplications(MachineCase):
    def test_are_asked_to_quit_and_what_carries_the_session_is_not(self):
        provider = self.provider()
        victims = [self.victim(name) for name in ("Bir", "İki", "Üç", "Dört", "Beş", "Altı")]
        kept = [self.victim(name) for name in ("Orca", "Xfce4-notifyd")]
        program = f"{client_case.build_folder()}/demo/orken-demo"
        terminal = self.desktop.spawn(
            ["xterm", "-e", program, provider.ready_file], environment=self.environment, name="terminal"
        )
        start = wait_for("the start window", lambda: self.desktop.screen.window(START_TITLE), guests=[terminal])
        wait_for("its focus", lambda: self.desktop.screen.active_window() == start)
        self.desktop.screen.key("Return")
        self.wait_for_alert(ALERT_TITLE)
        self.desktop.screen.key("Escape")
        # The daemon's class is offered by the alert, so it goes with the victims; the reader is in no list.
        self.desktop.screen.key("Return")
        for guest in [*victims, kept[1]]:
            guest.wait_exit()
        session = self.session_in_full_screen(terminal)

        # Each tick asks what has come meanwhile, and leaves the session where it is.
        notifier = self.victim("Xfce4-notifyd")
        for _ in range(2):
            self.victim("Geç").wait_exit()
            self.assertTrue(self.desktop.screen.is_fullscreen(session))
        for guest in (kept[0], notifier, terminal):
            self.assertIsNone(guest.exit_status(), guest.describe_end())

    def session_in_full_screen(self, terminal):
        def session():
            window = self.desktop.screen.window(SESSION_TITLE)
            return window if window and self.desktop.screen.is_fullscreen(window) else None

        return wait_for("the session in full screen", session, guests=[terminal])


class Keys(MachineCase):
    def test_every_key_but_escape_reaches_the_page(self):
        provider = self.provider("--first-page", "/keys")
        client = self.client(provider)
        client.open_application()
        client.wait_for_login_page()
        provider.wait_for_page("keys", guests=[client.guest])
        for key in ("a", "Escape", "shift+Escape", "ctrl+Escape", "F5", "Tab"):
            self.desktop.screen.key(key)
        # Nor does the exit button keep the keys, when the question that it asks is denied.
        self.desktop.screen.click(self.desktop.screen.width - 31, 31)
        client.wait_for("the question", lambda: self.desktop.screen.active_title().startswith("Çıkış"))
        self.desktop.screen.key("Tab")
        self.desktop.screen.key("Return")
        client.wait_for("the session", lambda: self.desktop.screen.active_title() == SESSION_TITLE)
        self.desktop.screen.key("b")
        provider.wait_for_request("the last key", lambda request: "what=key&key=b" in request["query"])
        keys = [query.removeprefix("what=key&key=") for query in self.seen(provider, "key")]
        self.assertEqual([key for key in keys if key not in ("Shift", "Control")], ["a", "F5", "Tab", "b"])
        self.assertEqual(client.guest.terminate(), 0)


class Wayland(MachineCase):
    def test_full_screen_and_keys_work_on_a_screen_smaller_than_the_session_asks_for(self):
        # 1024 by 640, in a window of this desktop, whose keyboard it has.
        compositor = ["weston", "--backend=x11-backend.so", "--socket=inner", "--idle-time=0"]
        weston = self.desktop.spawn(compositor, environment=self.environment)
        socket = pathlib.Path(self.environment["XDG_RUNTIME_DIR"], "inner")
        wait_for("the compositor", lambda: socket.exists() and self.desktop.screen.active_window(), guests=[weston])
        provider = self.provider("--first-page", "/keys")
        client = self.client(provider, DISPLAY=None, WAYLAND_DISPLAY="inner")
        find = self.desktop.screen.image
        client.wait_for("the start window", lambda: len(find().find_rectangles("#8e8e93", 4, 300, 50)) == 2)
        self.desktop.screen.key("Return")
        client.guest.wait_for_line("other applications cannot be listed: there is no X server")
        provider.wait_for_page("keys", guests=[client.guest])
        client.wait_for("full screen", lambda: find().find_rectangle("#0a7d4f", 4, 1024, 8))
        for key in ("a", "Escape", "b"):
            self.desktop.screen.key(key)
        provider.wait_for_request("the last key", lambda request: "what=key&key=b" in request["query"])
        self.assertEqual(self.seen(provider, "key"), ["what=key&key=a", "what=key&key=b"])
        self.assertEqual(client.guest.terminate(), 0)


class Bundle(MachineCase):
    """In a root of its own, whose /Applications holds what the build installs there."""

    def setUp(self):
        super().setUp()
        self.stage = pathlib.Path(self.desktop.new_folder("stage"))
        environment = {**os.environ, "DESTDIR": str(self.stage)}
        command = ["cmake", "--install", client_case.build_folder(), "--component", "bundle"]
        subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)
        self.bundle = self.stage / "Applications/Orken.app"
        self.copy = self.stage / "Applications/Copy of Orken.app"
        self.copy.mkdir()
        self.outside = self.stage / "outside"
        self.outside.write_text("kept", encoding="ascii")
        (self.bundle / "Contents/link").symlink_to(self.outside)

    def spawn_in_root(self, *command):
        arguments = ["bwrap", "--die-with-parent", "--tmpfs", "/"]
        for entry in pathlib.Path("/").iterdir():
            if entry.is_symlink():
                arguments += ["--symlink", str(entry.readlink()), str(entry)]
            elif entry.name != "Applications":
                arguments += ["--dev-bind", str(entry), str(entry)]
        arguments += ["--bind", str(self.stage / "Applications"), "/Applications", *command]
        return self.desktop.spawn(arguments, environment=self.environment, name="bundle")

    def assert_only_the_bundle_is_gone(self):
        self.assertFalse(self.bundle.exists())
        self.assertTrue(self.copy.is_dir() and self.outside.exists())

    def test_an_installed_client_runs_and_the_update_button_removes_it(self):
        guest = self.spawn_in_root("--unshare-net", "/Applications/Orken.app/Contents/MacOS/orken")
        guest.wait_for_line("Gelen veri null")
        self.wait_for_alert(UPDATE_TITLE)
        self.desktop.screen.key("Return")
        guest.wait_exit()
        self.assertEqual(guest.exit_status(), 0, guest.describe_end())
        self.assertEqual([line.text for line in guest.lines("stdout")][-1], "Uygulama başarıyla silindi.")
        self.assert_only_the_bundle_is_gone()

    def test_the_removal_button_asks_first(self):
        program = f"{client_case.build_folder()}/demo/orken-demo"
        guest = self.spawn_in_root(program, self.provider().ready_file)
        start = wait_for("the start window", lambda: self.desktop.screen.window(START_TITLE), guests=[guest])
        guest.wait_for_line("Başarılı: ")
        # The first question is answered with "Hayır", the second with "Evet".
        for to_button, to_answer in ((["Tab", "Tab"], ["Tab"]), ([], [])):
            wait_for("its focus", lambda: self.desktop.screen.active_window() == start)
            for key in [*to_button, "Return"]:
                self.desktop.screen.key(key)
            self.wait_for_alert("Uygulamayı silmek istediğinizden")
            self.assertTrue(self.bundle.exists())
            for key in [*to_answer, "Return"]:
                self.desktop.screen.key(key)
        guest.wait_exit()
        self.assertEqual(guest.exit_status(), 0, guest.describe_end())
        self.assert_only_the_bundle_is_gone()


if __name__ == "__main__":
    main()
