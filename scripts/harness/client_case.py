"""What every test of the whole client starts from: a virtual desktop of its own, the demo provider, the client."""

import os
import pathlib
import sys
import unittest

from on_virtual_desktop import SANITIZERS
from virtual_desktop import Client, Provider, VirtualDesktop

from .client import SESSION_TITLE

BUNDLE = "com.orken.app"
_BUILD = None


def build_folder():
    return _BUILD


def use_build(folder):
    global _BUILD
    _BUILD = os.path.abspath(folder)


class ClientCase(unittest.TestCase):
    window_manager = True

    def setUp(self):
        self.desktop = self.enterContext(VirtualDesktop(window_manager=self.window_manager))
        self.environment = {**self.desktop.new_environment(), **SANITIZERS}

    def provider(self, *options):
        return Provider(self.desktop, f"{_BUILD}/demo/orken-demo-provider", options)

    def client(self, provider, within=(), **environment):
        merged = {key: value for key, value in {**self.environment, **environment}.items() if value is not None}
        return Client(self.desktop, f"{_BUILD}/demo/orken-demo", provider, merged, within)

    def open_login_page(self, provider, **environment):
        """A client in full screen with the login page on the screen, and the requests that came for it."""
        client = self.client(provider, **environment)
        clicked = client.open_application()
        client.wait_for_login_page()
        provider.wait_for_page("login", clicked, guests=[client.guest])
        return client, provider.requests(clicked)

    def client_waiting_for_its_address(self):
        """Its session window is on the screen, empty, while the main thread reads for two minutes."""
        provider = self.provider("--echo", "slow:120")
        client = self.client(provider)
        clicked = client.open_application()
        provider.wait_for_request("the address", lambda request: request["server"] == "echo", clicked)
        client.wait_for("the session window", lambda: self.desktop.screen.window(SESSION_TITLE))
        return client

    def assert_ends(self, client, status=0):
        client.guest.wait_exit()
        self.assertEqual(client.guest.exit_status(), status, client.guest.describe_end())

    def stdout(self, client):
        return [line.text for line in client.guest.lines("stdout")]

    def seen(self, provider, what):
        """Queries of the reports that pages have made of this kind."""
        wanted = f"what={what}"
        queries = [request["query"] for request in provider.requests() if request["path"] == "/demo/seen"]
        return [query for query in queries if wanted in query.split("&")]

    def home(self):
        return pathlib.Path(self.environment["HOME"])


def main():
    """Runs the tests of the calling program: BUILD_FOLDER [test names]."""
    use_build(sys.argv.pop(1))
    unittest.main(verbosity=2)
