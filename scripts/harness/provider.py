"""The demo provider as a guest, and its request log."""

import json
import os

from .waiting import wait_for


class Provider:
    """Starts the provider on the desktop and waits until it serves.

    `options` go to the program as they are, for instance ("--echo", "refuse").
    """

    def __init__(self, desktop, program, options=()):
        self.folder = desktop.new_folder("provider")
        self.ready_file = os.path.join(self.folder, "ready.json")
        self._log = os.path.join(self.folder, "requests.log")
        certificates = os.path.join(self.folder, "certificates")
        os.mkdir(certificates)
        command = [program, "--ready-file", self.ready_file, "--log", self._log]
        command += ["--certificates", certificates, "--port", "0"]
        self.guest = desktop.spawn(command + list(options), name="provider")
        self.ready = wait_for("the provider's ready file", self._read_ready_file, 30.0, guests=[self.guest])

    @property
    def address(self):
        """host:port of the site."""
        return f"{self.ready['host']}:{self.ready['port']}"

    def requests(self, since=0.0):
        """Logged requests that came from the moment `since` of the monotonic clock on, in the order of their answers.

        Each is a dictionary: t (seconds), method, path, query (empty when there is none), headers (names in lower
        case), status and server.
        """
        try:
            with open(self._log, encoding="utf-8") as file:
                lines = file.read().split("\n")[:-1]
        except FileNotFoundError:
            return []
        entries = [entry for entry in map(json.loads, lines) if entry["t"] >= since]
        return [{**entry, "query": entry["query"] or ""} for entry in entries]

    def wait_for_request(self, what, matches, since=0.0, limit=60.0, guests=()):
        """The first request from `since` on for which `matches` is true."""

        def first():
            return next((request for request in self.requests(since) if matches(request)), None)

        return wait_for(what, first, limit, guests=[self.guest, *guests])

    def wait_for_page(self, name, since=0.0, limit=60.0, guests=()):
        """The report of a page that its load event has run."""

        def matches(request):
            return request["path"] == "/demo/finished" and f"page={name}" in request["query"].split("&")

        return self.wait_for_request(f"finished page {name!r}", matches, since, limit, guests)

    def _read_ready_file(self):
        try:
            with open(self.ready_file, encoding="utf-8") as file:
                return json.load(file)
        except (FileNotFoundError, json.JSONDecodeError):
            return None
