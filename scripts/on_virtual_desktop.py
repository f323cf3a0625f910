#!/usr/bin/python3
"""Runs a test program on a virtual desktop of its own and hands on its output and exit status."""

import subprocess
import sys

from virtual_desktop import VirtualDesktop

# The leak checker cannot look into the toolkit's and the engine's own threads.
SANITIZERS = {"ASAN_OPTIONS": "detect_leaks=0:intercept_tls_get_addr=0"}

if __name__ == "__main__":
    with VirtualDesktop() as desktop:
        sys.exit(subprocess.run(sys.argv[1:], env={**desktop.environment, **SANITIZERS}, check=False).returncode)
