"""A network of one cable between the client and the provider's site, to be cut."""

import json
import os
import socket
import struct
import threading

_CHUNK = 16 * 1024


class Relay:
    """Passes bytes on between a port of its own and the site's; what it does with them is set from outside at any time.

    Stands in for the provider where a client is started: its ready file names the relay's port.
    """

    def __init__(self, provider):
        self.provider = provider
        self.guest = provider.guest
        self.connections = 0
        self._cut_after = None
        self._flows = threading.Event()
        self._flows.set()
        self._open = set()
        self._listener = socket.create_server(("127.0.0.1", 0))
        port = self._listener.getsockname()[1]
        self.ready_file = os.path.join(provider.folder, f"relay-{port}.json")
        with open(self.ready_file, "w", encoding="utf-8") as file:
            json.dump({**provider.ready, "port": port}, file)
        threading.Thread(target=self._accept, daemon=True).start()

    def stall(self):
        """Nothing arrives any more; nobody is told."""
        self._flows.clear()

    def flow(self):
        """As if nothing had been."""
        self._cut_after = None
        self._flows.set()

    def cut(self, after):
        """Every connection is reset when this many bytes of answers have come through it, from now on."""
        self._cut_after = after

    def cut_all(self):
        """Every open connection is reset now."""
        for pair in list(self._open):
            _reset(pair)

    def close(self):
        self.flow()
        self._listener.close()
        self.cut_all()

    def _accept(self):
        while True:
            try:
                client, _ = self._listener.accept()
            except OSError:
                return
            self.connections += 1
            try:
                site = socket.create_connection(("127.0.0.1", self.provider.ready["port"]))
            except OSError:
                _reset((client,))
                continue
            pair = (client, site)
            self._open.add(pair)
            threading.Thread(target=self._pass, args=(client, site, pair, False), daemon=True).start()
            threading.Thread(target=self._pass, args=(site, client, pair, True), daemon=True).start()

    def _pass(self, source, target, pair, are_answers):
        passed = 0
        try:
            while data := source.recv(_CHUNK):
                self._flows.wait()
                limit = self._cut_after
                if are_answers and limit is not None and passed + len(data) >= limit:
                    target.sendall(data[: max(0, limit - passed)])
                    break
                target.sendall(data)
                passed += len(data)
        except OSError:
            pass
        self._open.discard(pair)
        _reset(pair)


def _reset(sockets):
    """Ends connections as a broken line does: with a reset instead of an orderly end."""
    for end in sockets:
        try:
            end.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
            # Wakes the thread that reads from it, which keeps the connection open until then.
            end.shutdown(socket.SHUT_RD)
        except OSError:
            pass
        end.close()
