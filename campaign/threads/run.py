#!/usr/bin/python3
"""Serves the three small documents that `background_queue` wants on loopback, and runs it under the thread sanitizer.

    run.py PROGRAM ROUNDS
"""

import contextlib
import functools
import http.server
import os
import pathlib
import subprocess
import sys
import tempfile
import threading

_ROOT = pathlib.Path(__file__).resolve().parents[2]


class _Pages(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass

    def handle(self):
        # Clients end in the middle of answers: that is the exercise.
        with contextlib.suppress(ConnectionError):
            super().handle()


def main():
    with tempfile.TemporaryDirectory() as folder:
        for name, text in (
            ("settings.json", '{"macVersion": "99"}'),
            ("echo", "203.0.113.7\n"),
            ("animation.json", (_ROOT / "demo/pages/animation.json").read_text(encoding="utf-8")),
        ):
            pathlib.Path(folder, name).write_text(text, encoding="utf-8")
        with http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(_Pages, directory=folder)) as server:
            threading.Thread(target=server.serve_forever, daemon=True).start()
            address = f"http://127.0.0.1:{server.server_address[1]}"
            done = subprocess.run([sys.argv[1], address, sys.argv[2]], stdout=subprocess.DEVNULL, check=False)
            server.shutdown()
    return done.returncode


if __name__ == "__main__":
    # The libraries' own locks are unknown to the sanitizer; what they call is looked at all the same.
    os.environ["TSAN_OPTIONS"] = "ignore_noninstrumented_modules=1 halt_on_error=1 exitcode=66"
    sys.exit(main())
