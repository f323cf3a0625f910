#!/usr/bin/python3
"""The whole client on GTK and WebKit against the demo provider, worked with real input on a virtual desktop.

    PYTHONPATH=scripts tests/desktop/whole_client_test.py BUILD_FOLDER [test names]
"""

import pathlib
import signal

from harness.client_case import BUNDLE, ClientCase, main
from harness.client import SESSION_TITLE, START_TITLE, USER_AGENT

APPLICATION_KEY = "5b2e7a41-93cd-4f08-a6e2-1c7d90b3f584"
LOGIN_TAIL = f"&xppKey={APPLICATION_KEY}"


def serial():
    return pathlib.Path("/etc/machine-id").read_text(encoding="ascii").strip()


class Road(ClientCase):
    def test_from_the_start_window_to_the_login_page_in_full_screen(self):
        provider = self.provider()
        client = self.client(provider)
        client.wait_for_start_window()
        self.assertEqual([r for r in provider.requests() if "login" in r["path"]], [], "nothing before the click")
        client.open_application()
        client.wait_for_session_window()
        client.wait_for_login_page()
        provider.wait_for_page("login", guests=[client.guest])

        requests = provider.requests()
        site = [request for request in requests if request["headers"].get("user-agent") is not None]
        # The gate's answer may come while the click is already on its way.
        early = [request for request in requests if request not in site]
        self.assertIn("/settings/xpp.json", [request["path"] for request in early[:2]])
        echo = next(request for request in requests if request["server"] == "echo")
        self.assertLess(requests.index(echo), requests.index(site[0]), "the address is known before the page is asked for")
        self.assertEqual(site[0]["path"], "//accounts/login")
        self.assertEqual(site[0]["query"], f"param={serial()}{LOGIN_TAIL}")
        self.assertEqual(site[1]["path"], "/accounts/Login")
        self.assertEqual({request["headers"].get("user-agent") for request in site}, {USER_AGENT})

        lines = self.stdout(client)
        self.assertLess(
            lines.index('asdasdasdasd: Optional("203.0.113.7")'),
            lines.index(f"https://{provider.address}{site[0]['path']}?{site[0]['query']}"),
        )

    def test_nothing_of_a_session_is_left_whether_it_ended_well_or_not(self):
        provider = self.provider()
        ends = {
            "killed, then quit before the engine was loaded": self.kill_and_quit_at_once,
            "SIGTERM": lambda client: client.guest.signal(signal.SIGTERM),
            "SIGHUP": lambda client: client.guest.signal(signal.SIGHUP),
            "window manager": lambda client: self.desktop.screen.key("alt+F4"),
            "SIGINT": lambda client: client.guest.signal(signal.SIGINT),
        }
        # Each session is the proof for the end of the one before it: all of them have the same home folder.
        for name, end in ends.items():
            with self.subTest(name):
                client, requests = self.open_login_page(provider)
                paths = {request["path"] for request in requests}
                self.assertIn("/static/site.css", paths, "not from the cache of the session before")
                self.assertEqual([request["headers"].get("cookie") for request in requests[:3]], [None] * 3)
                visits = [request["query"] for request in requests if "what=visit" in (request["query"] or "")]
                self.assertEqual(visits, ["what=visit&count=1"])
                end(client)
                self.assert_ends(client, -signal.SIGKILL if "killed" in name else 0)
                cache = pathlib.Path(self.environment["HOME"], ".cache", BUNDLE)
                left = [path.name for path in cache.rglob("*") if path.is_file()]
                self.assertLessEqual(set(left), {"salt", "hsts-storage.sqlite"}, "the engine's own empty stores")

    def kill_and_quit_at_once(self, client):
        client.guest.signal(signal.SIGKILL)
        client.guest.wait_exit()
        next_client = self.client(client.provider)
        _, quit_button = next_client.wait_for_start_window()
        self.desktop.screen.click(*quit_button.centre)
        self.assert_ends(next_client)

    def test_the_login_pages_exit_button_ends_the_session(self):
        client, _ = self.open_login_page(self.provider())
        find = self.desktop.screen.image
        button = client.wait_for("the page's exit button", lambda: find().find_rectangle("#8e8e93", 4, 280, 60))
        self.desktop.screen.click(*button.centre)
        self.assert_ends(client)

    def test_closing_the_start_window_is_quitting(self):
        client = self.client(self.provider())
        client.wait_for_start_window()
        client.wait_for("the keyboard", lambda: self.desktop.screen.active_title() == START_TITLE)
        self.desktop.screen.key("alt+F4")
        self.assert_ends(client)

    def test_a_second_copy_presents_the_first_and_goes(self):
        provider = self.provider()
        client = self.client(provider)
        client.wait_for_start_window()
        self.assert_ends(self.client(provider))
        titles = [window.title for window in self.desktop.screen.windows()]
        self.assertEqual(titles.count(START_TITLE), 1)
        self.assertEqual(client.guest.terminate(), 0)


class Faults(ClientCase):
    def test_what_the_address_echo_answers_decides_about_the_session(self):
        for mode, address in {"refuse": "nil", "binary": "nil", "empty": 'Optional("")'}.items():
            with self.subTest(mode):
                provider = self.provider("--echo", mode)
                client = self.client(provider)
                client.open_application()
                self.assertEqual(client.guest.wait_for_line("asdasdasdasd: ").text, f"asdasdasdasd: {address}")
                if address == "nil":
                    client.wait_for("the empty window", lambda: self.desktop.screen.window(SESSION_TITLE))
                else:
                    client.wait_for_login_page()
                self.assertEqual(client.guest.terminate(), 0)

    def test_a_termination_signal_ends_the_wait_for_a_slow_address(self):
        client = self.client_waiting_for_its_address()
        # It cannot answer a second copy now, which goes all the same.
        self.assert_ends(self.client(client.provider))
        client.guest.signal(signal.SIGTERM)
        self.assert_ends(client)
        self.assertEqual(self.stdout(client)[-1], "asdasdasdasd: nil")

    def test_without_a_display_it_says_so(self):
        client = self.client(self.provider(), DISPLAY=":4711")
        client.guest.wait_exit()
        self.assertEqual(client.guest.exit_status(), 1)
        self.assertIn("no display", client.guest.lines("stderr")[-1].text)

    def test_a_home_folder_that_is_missing_or_cannot_be_written_does_not_keep_the_page_away(self):
        provider = self.provider()
        for home in (None, "/proc", "/dev/null/home"):
            with self.subTest(home=home):
                client, _ = self.open_login_page(provider, HOME=home)
                self.assertEqual(client.guest.terminate(), 0)


class WithoutWindowManager(ClientCase):
    window_manager = False

    def test_the_page_comes_without_full_screen(self):
        provider = self.provider()
        client = self.client(provider)
        clicked = client.open_application()
        provider.wait_for_page("login", clicked, guests=[client.guest])
        size = 1170, 28
        client.wait_for("the page", lambda: self.desktop.screen.image().find_rectangle("#0a7d4f", 4, *size))
        self.assertEqual(client.guest.terminate(), 0)


if __name__ == "__main__":
    main()
