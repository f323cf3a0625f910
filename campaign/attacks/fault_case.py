"""What every attack starts from, and how an attack makes itself known."""

import os
import pathlib
import shutil
import signal
import time

from harness.client_case import BUNDLE, ClientCase
from harness.client import SESSION_TITLE
from harness.processes import named, start_time
from harness.waiting import wait_for

VIDEO = "/course/video/playlist/1?hash=%2BKzf0tf55U%2FjBaU20UpvVw%3D%3D"
EXIT_QUESTION = "Çıkış yapmak istediğinize emin misiniz?"
EXIT_BUTTON_FROM_CORNER = 31
# Middle of "Dersler" and "Belgeler" in the navigation of the demo's pages: from the right edge, and from the top.
COURSE_FROM_RIGHT, DOCUMENTS_FROM_RIGHT, NAVIGATION_TOP = 220, 129, 81
# The engine's own empty stores, which it writes anew while it ends.
_OWN_STORES = {"salt", "hsts-storage.sqlite"}
_MEMORY_ERRORS = ("ERROR: AddressSanitizer", "runtime error:", "Assertion `")

_ATTACKS = {}


def registered():
    return dict(_ATTACKS)


class FaultCase(ClientCase):
    """A test case whose checks tell what is left after a fault."""

    def setUp(self):
        super().setUp()
        self.clients = []

    def client(self, provider, within=(), **environment):
        client = super().client(provider, within, **environment)
        self.clients.append(client)
        return client

    def open_session(self, page, *options):
        """A client in full screen with this page finished."""
        provider = self.provider("--first-page", page, *options)
        client = self.client(provider)
        client.open_application()
        client.wait_for_session_window()
        client.wait_for_login_page()
        provider.wait_for_page(_name_of(page), guests=[client.guest])
        return client, provider

    def finished(self, provider, page):
        """How often this page has reported that it was loaded."""
        return len([r for r in provider.requests() if r["path"] == "/demo/finished" and f"page={page}" in r["query"]])

    def follow(self, client, provider, from_right, page):
        """Clicks a link of the page's navigation until its page has finished."""
        clicked = self.desktop.screen.click(self.desktop.screen.width - from_right, NAVIGATION_TOP)
        provider.wait_for_page(page, clicked, guests=[client.guest])

    def process_of(self, client, name):
        return client.wait_for(name, lambda: named(client.guest.tree(), name), interval=0.005)[0]

    def at_work(self, client, name):
        """One that talks to the client by now. Until then the engine itself gives the whole client up when it dies."""
        found = named(client.guest.tree(), name)
        return next((pid for pid in found if _has_thread(pid, "ReceiveQueue") or not name.startswith("WebKit")), None)

    def kill(self, client, name):
        """Ends one of the client's processes, once it has reported itself; answers when it is gone."""
        pid = client.wait_for(f"{name} at work", lambda: self.at_work(client, name), interval=0.005)
        since = start_time(pid)
        os.kill(pid, signal.SIGKILL)
        client.wait_for(f"the end of {name}", lambda: start_time(pid) != since)

    def is_full_screen(self):
        window = self.desktop.screen.window(SESSION_TITLE)
        return window is not None and self.desktop.screen.is_fullscreen(window)

    def assert_full_screen(self, client):
        client.wait_for("full screen", self.is_full_screen, limit=10.0)

    def question_is_up(self):
        return self.desktop.screen.active_title() == EXIT_QUESTION

    def ask_to_exit(self, client):
        """Clicks the corner's button until its question stands there."""
        screen = self.desktop.screen
        screen.click(screen.width - EXIT_BUTTON_FROM_CORNER, EXIT_BUTTON_FROM_CORNER)
        client.wait_for("the question", self.question_is_up)

    def deny_exit(self, client):
        """Answers the exit button's question with "Hayır"."""
        self.desktop.screen.key("Tab")
        self.desktop.screen.key("Return")
        client.wait_for("the session", lambda: not self.question_is_up())

    def assert_exit_button_works(self, client):
        """It asks; "Hayır" leads back to a session in full screen, "Evet" ends it in order."""
        self.ask_to_exit(client)
        self.deny_exit(client)
        self.assert_full_screen(client)
        self.ask_to_exit(client)
        before = self.processes(client)
        self.desktop.screen.key("Return")
        self.assert_ends(client)
        self.assert_gone(before)

    def processes(self, client):
        """The client's processes, each with its start, so that a number used again is no error."""
        return [(pid, start_time(pid)) for pid in client.guest.tree()]

    def assert_gone(self, processes, limit=10.0):
        def names():
            return [_command(pid) for pid, since in processes if since is not None and start_time(pid) == since]

        try:
            wait_for("the end of all processes", lambda: not names(), limit)
        except Exception as failure:
            raise AssertionError(f"still there after {limit:g} s: {names()}") from failure

    def assert_caches_cleared(self):
        folder = self.home() / ".cache" / BUNDLE
        left = {path.name for path in folder.rglob("*") if path.is_file()} - _OWN_STORES
        self.assertEqual(left, set(), "caches")

    def assert_no_memory_error(self):
        for client in self.clients:
            text = "\n".join(line.text for line in client.guest.lines("stderr"))
            for sign in _MEMORY_ERRORS:
                self.assertNotIn(sign, text)

    def keep_evidence(self, folder):
        """A picture and the clients' outputs, for whoever looks into a failure."""
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        if self.desktop.screen:
            self.desktop.screen.screenshot(folder / "screen.png")
        for count, client in enumerate(self.clients, start=1):
            lines = [f"{line.time:.3f} {line.stream} {line.text}" for line in client.guest.lines()]
            state = f"status {client.guest.exit_status()}"
            pathlib.Path(folder, f"client-{count}.log").write_text("\n".join([*lines, state]), encoding="utf-8")


def attack(name, case=FaultCase):
    """Registers a function under this name."""

    def register(function):
        function.case = case
        _ATTACKS[name] = function
        return function

    return register


def pause(seconds):
    """For faults at moments that nothing tells, never for waiting until something is so."""
    time.sleep(seconds)


def _has_thread(pid, name):
    for file in pathlib.Path(f"/proc/{pid}/task").glob("*/comm"):
        try:
            if file.read_text(encoding="utf-8").strip() == name:
                return True
        except (FileNotFoundError, ProcessLookupError):
            continue
    return False


def _name_of(page):
    """What the page calls itself in its reports."""
    path = page[1:].partition("?")[0]
    return {"accounts/Login": "login", "course/video/playlist/1": "video"}.get(path, path)


def _command(pid):
    try:
        return pathlib.Path(f"/proc/{pid}/cmdline").read_bytes().replace(b"\0", b" ").decode(errors="replace")[:120]
    except (FileNotFoundError, ProcessLookupError):
        return str(pid)
