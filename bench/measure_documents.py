#!/usr/bin/python3
"""Compares saving a large document with the least that handing it over costs the engine.

The floor is a bare view that asks the page for the same document's data URL as a text. Both are worked with the same
keys on the demo provider's page, in turns. Prints one JSON object; times count from the page's click on the document.
"""

import argparse
import json
import pathlib
import statistics
import sys
import time

_ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(_ROOT / "scripts"))

from virtual_desktop import Client, NotReached, Provider, VirtualDesktop, wait_for  # noqa: E402

_PAGE = "/documents"
# The page's largest document is its third button; the first has the focus.
_KEYS = ("Tab", "Tab", "Return")
_SIZE = 100_000_000
_REST = 3.0


def _memory(pid, field):
    """Bytes, from the process's status."""
    with open(f"/proc/{pid}/status", encoding="ascii") as file:
        line = next(line for line in file if line.startswith(f"{field}:"))
    return 1024 * int(line.split()[1])


def _hand_over(desktop, provider, guest, end):
    """Seconds from the click to the line `end`, and the peak of the process above its resting figure, in bytes."""
    time.sleep(_REST)
    resting = _memory(guest.pid, "VmRSS")
    pressed = time.monotonic()
    for key in _KEYS:
        desktop.screen.key(key)
    clicked = provider.wait_for_request("the click", lambda r: "what=document" in r["query"], pressed, guests=[guest])
    ended = wait_for(
        repr(end), lambda: next((line for line in guest.lines("stdout") if end in line.text), None), 120.0, [guest]
    )
    return ended.time - clicked["t"], _memory(guest.pid, "VmHWM") - resting


def _run_client(desktop, provider, build):
    client = Client(desktop, str(build / "demo/orken-demo"), provider, environment=desktop.new_environment())
    opened = client.open_application()
    client.wait_for_login_page()
    provider.wait_for_page("documents", opened, guests=[client.guest])
    figures = _hand_over(desktop, provider, client.guest, "başarıyla indirildi.")
    desktop.discard(client.guest)
    return figures


def _run_floor(desktop, provider, build):
    address = f"https://{provider.address}{_PAGE}"
    command = [str(build / "bench/floor_document"), address]
    guest = desktop.spawn(command, environment=desktop.new_environment())
    provider.wait_for_page("documents", guest.started, guests=[guest])
    seconds, peak = _hand_over(desktop, provider, guest, "handed over 1")
    desktop.discard(guest)
    return seconds, peak


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--runs", type=int, default=5, help="measured runs of each program, after one that is not counted")
    parser.add_argument("--build", type=pathlib.Path, default=_ROOT / "build/bench", help="build folder to use")
    options = parser.parse_args()
    samples = {"client": [], "floor": []}
    with VirtualDesktop() as desktop:
        provider = Provider(desktop, str(options.build / "demo/orken-demo-provider"), ["--first-page", _PAGE])
        for run in range(options.runs + 1):
            for name, measure in (("client", _run_client), ("floor", _run_floor)):
                figures = measure(desktop, provider, options.build)
                if run > 0:
                    samples[name].append(figures)
    seconds = {name: statistics.median(time for time, _ in figures) for name, figures in samples.items()}
    peaks = {name: max(peak for _, peak in figures) / _SIZE for name, figures in samples.items()}
    print(json.dumps({
        "document MB": _SIZE / 1e6,
        "client s": round(seconds["client"], 2),
        "floor s": round(seconds["floor"], 2),
        "ratio": round(seconds["client"] / seconds["floor"], 2),
        "client peak / size": round(peaks["client"], 2),
        "floor peak / size": round(peaks["floor"], 2),
    }))
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (NotReached, OSError) as failure:
        sys.exit(f"measure_documents.py: {failure}")
