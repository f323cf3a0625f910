#!/usr/bin/python3
"""A scripted tour: the client against the demo provider on a virtual desktop, worked with real clicks and keys.

Every step prints one line; the pictures are in build/tour. Exit status 0 when every step went as it should.
"""

import argparse
import os
import pathlib
import sys
import time
import urllib.parse

from harness.client import USER_AGENT
from virtual_desktop import Client, NotReached, Provider, VirtualDesktop, wait_for

_ROOT = pathlib.Path(__file__).resolve().parent.parent

# Where "Belgeler" stands in the navigation of the demo's pages, in pixels.
_DOCUMENTS_FROM_RIGHT = 129
_NAVIGATION_HEIGHT = 81


class Tour:
    """The walk's state. Each public operation is one step; STEPS below gives their order."""

    def __init__(self, desktop, options):
        self._desktop = desktop
        self._options = options
        self._pictures = 0
        self._provider = None
        self._client = None

    def start_provider(self):
        self._provider = Provider(self._desktop, self._program("orken-demo-provider"))
        return self._provider.address

    def start_window(self):
        self._client = Client(self._desktop, self._program("orken-demo"), self._provider)
        self._client.wait_for_start_window()
        return self._picture("start")

    def login_page(self):
        self._client.open_application()
        self._client.wait_for_session_window()
        self._client.wait_for_login_page()
        self._provider.wait_for_page("login", guests=[self._client.guest])
        return self._picture("login")

    def login_request(self):
        login = self._provider.wait_for_request("//accounts/login", lambda r: r["path"] == "//accounts/login", limit=5.0)
        query = urllib.parse.parse_qs(login["query"], keep_blank_values=True)
        _expect(list(query) == ["param", "xppKey"], f"login query is {login['query']!r}")
        _expect(all(values[0] for values in query.values()), f"empty value in login query {login['query']!r}")
        return f"status {login['status']}"

    def user_agent(self):
        """The client's own downloads name no user agent; whatever a page asks for must name this one."""
        agents = {request["path"]: request["headers"].get("user-agent") for request in self._provider.requests()}
        for path in ("//accounts/login", "/demo/finished"):
            _expect(agents.get(path) == USER_AGENT, f"{path} came with user agent {agents.get(path)!r}")
        wrong = {path: agent for path, agent in agents.items() if agent not in (None, USER_AGENT)}
        _expect(not wrong, f"other user agents: {wrong}")
        return f"{len(agents)} addresses"

    def sign_in(self):
        """The page has the keyboard and its form has the focus, so a user only types."""
        self._desktop.screen.type("öğrenci\tgizli")
        before, began = self._desktop.screen.image(), time.monotonic()
        self._desktop.screen.type("\n")
        self._provider.wait_for_page("session", since=began, guests=[self._client.guest])
        return self._picture_of_another_page("signed-in", before)

    def document(self):
        """By the page's navigation to the documents; the first one's button has the focus there."""
        began = self._desktop.screen.click(self._options.width - _DOCUMENTS_FROM_RIGHT, _NAVIGATION_HEIGHT)
        self._provider.wait_for_page("documents", since=began, guests=[self._client.guest])
        self._desktop.screen.key("Return")
        saved = self._client.guest.wait_for_line("başarıyla indirildi.").text
        self._client.wait_for("the alert", lambda: self._desktop.screen.active_title() == saved)
        picture = self._picture("saved")
        file = pathlib.Path(self._desktop.environment["HOME"], "Downloads", saved.split(" ")[0])
        _expect(file.read_bytes().startswith(b"%PDF-"), f"{file} is no PDF")
        self._desktop.screen.key("Tab")
        self._desktop.screen.key("Return")
        self._client.wait_for("the page again", lambda: self._desktop.screen.active_title() != saved)
        return picture

    def end(self):
        status = self._client.guest.terminate()
        _expect(status == 0, f"the client ended with status {status}")
        return "status 0"

    def failure(self):
        """What is worth seeing after a failed step."""
        self._desktop.screen.screenshot(self._options.pictures / "failure.png")
        if self._client:
            for line in self._client.guest.lines()[-20:]:
                print(f"      {line.stream}: {line.text}")

    def _program(self, name):
        return str(self._options.build / "demo" / name)

    def _picture_of_another_page(self, name, before):
        """Once the screen shows something else than before, and has come to rest: a page reports itself undrawn."""
        last = before

        def at_rest():
            nonlocal last
            shown, last = last, self._desktop.screen.image()
            return last == shown != before

        wait_for(f"{name} on the screen, at rest", at_rest, guests=[self._client.guest], interval=0.3)
        return self._picture(name)

    def _picture(self, name):
        self._pictures += 1
        path = self._options.pictures / f"{self._pictures}-{name}.png"
        self._desktop.screen.screenshot(path)
        return os.path.relpath(path, _ROOT)


STEPS = (
    ("the provider serves", Tour.start_provider),
    ("the start window is on the screen", Tour.start_window),
    ('"Uygulamayı Aç" leads to the login page in full screen', Tour.login_page),
    ("the login request carries param and xppKey", Tour.login_request),
    ("pages are asked for with the client's user agent", Tour.user_agent),
    ("a typed name and password sign in", Tour.sign_in),
    ("a document is saved, and its alert closed", Tour.document),
    ("SIGTERM ends the client in order", Tour.end),
)


def _expect(holds, otherwise):
    if not holds:
        raise NotReached(otherwise)


def _walk(tour):
    for what, step in STEPS:
        began = time.monotonic()
        try:
            detail = step(tour)
        except (NotReached, OSError) as failure:
            print(f"FAIL  {what}: {failure}", flush=True)
            tour.failure()
            return False
        print(f"ok    {what} ({detail}, {time.monotonic() - began:.1f} s)", flush=True)
    return True


def _options():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--width", type=int, default=1280, help="of the screen, in pixels")
    parser.add_argument("--height", type=int, default=800, help="of the screen, in pixels")
    parser.add_argument("--build", type=pathlib.Path, default=_ROOT / "build/release", help="build folder to use")
    parser.add_argument("--pictures", type=pathlib.Path, default=_ROOT / "build/tour", help="folder for the pictures")
    return parser.parse_args()


def main():
    options = _options()
    options.pictures.mkdir(parents=True, exist_ok=True)
    for old in options.pictures.glob("*.png"):
        old.unlink()
    with VirtualDesktop(options.width, options.height) as desktop:
        return 0 if _walk(Tour(desktop, options)) else 1


if __name__ == "__main__":
    sys.exit(main())
