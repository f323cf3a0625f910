#!/usr/bin/python3
"""What a session costs while nothing happens in it, and while the waiting animation plays.

The idle session is a video page with the video paused, its watermark and the periodic check at work; the floor is a bare
full-screen view of the same page with the client's rendering settings. Ends with status 1 when a budget is exceeded.
"""

import argparse
import json
import pathlib
import re
import subprocess
import sys
import time

_ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(_ROOT / "scripts"))

from budgets import Budgets  # noqa: E402
from harness.processes import named  # noqa: E402
from virtual_desktop import Client, NotReached, Provider, VirtualDesktop, cpu_seconds, pss_kib  # noqa: E402

_SETTLING = 20.0
_WATERMARK = "hash=%2FVn1jOw8U5hDiCY7fdWXIrTPKA4uBWu1VprwdHtpICI%3D"
_IDLE_PAGE = f"/course/video/playlist/4?{_WATERMARK}&paused=1"
_RENDERER = "orken-animation-renderer"


def _megabytes(pids):
    return pss_kib(pids) * 1024 / 1e6


def client_settings(desktop, client):
    """The rendering settings that the client has chosen for this machine, as its engine's processes have got them."""
    names = ("GSK_RENDERER", "GDK_DEBUG")
    environment = {}
    for pid in client.guest.tree():
        if named([pid], "WebKitWebProcess") or named([pid], "WebKitNetworkProcess"):
            with open(f"/proc/{pid}/environ", encoding="utf-8", errors="replace") as file:
                variables = dict(entry.partition("=")[::2] for entry in file.read().split("\0"))
            environment |= {name: variables[name] for name in names if name in variables}
    return {**desktop.new_environment(), **environment}


def _lacking_limits(pid):
    """How many of the renderer's limits are not in force, each of its threads counted."""
    threads = [path.read_text(encoding="ascii") for path in pathlib.Path(f"/proc/{pid}/task").glob("*/status")]
    limits = pathlib.Path(f"/proc/{pid}/limits").read_text(encoding="ascii")
    wanted = (r"Max core file size +0 +0 ", r"Max address space +536870912 +536870912 ")
    return sum("Seccomp:\t2" not in text or "NoNewPrivs:\t1" not in text for text in threads) + sum(
        re.search(limit, limits) is None for limit in wanted
    )


class Sessions:
    def __init__(self, desktop, build):
        self._desktop = desktop
        self._build = build

    def idle(self, seconds):
        """Processor use of the client's process in per cent of one, and memory of client and floor."""
        client, provider = self._start(_IDLE_PAGE)
        provider.wait_for_page("video", guests=[client.guest])
        time.sleep(_SETTLING)
        renderers = len(named(client.guest.tree(), _RENDERER))
        own, everything = [client.guest.pid], client.guest.tree()
        before, began = (cpu_seconds(own), cpu_seconds(everything)), time.monotonic()
        time.sleep(seconds)
        passed = time.monotonic() - began
        used = [100 * (cpu_seconds(pids) - start) / passed for pids, start in zip((own, everything), before)]
        memory = _megabytes(client.guest.tree())
        environment = client_settings(self._desktop, client)
        self._desktop.discard(client.guest)

        address = f"https://{provider.address}{_IDLE_PAGE}"
        floor = self._desktop.spawn([str(self._build / "bench/floor_webkit"), address], environment=environment)
        provider.wait_for_page("video", floor.started, guests=[floor])
        time.sleep(_SETTLING)
        floor_memory = _megabytes(floor.tree())
        self._desktop.discard(floor)
        return {
            "idle_client_percent": used[0],
            "idle_all_percent": used[1],
            "idle_renderers": renderers,
            "memory": memory,
            "floor_memory": floor_memory,
        }

    def waiting(self, seconds):
        """Processor use of client and renderer while the animation plays, and the renderer's memory."""
        client, _ = self._start("/never")
        client.wait_for("the renderer", lambda: named(client.guest.tree(), _RENDERER))
        time.sleep(3.0)
        (renderer,) = named(client.guest.tree(), _RENDERER)
        pids = ([client.guest.pid], [renderer])
        before, began = [cpu_seconds(of) for of in pids], time.monotonic()
        time.sleep(seconds)
        passed = time.monotonic() - began
        used = [100 * (cpu_seconds(of) - start) / passed for of, start in zip(pids, before)]
        figures = {
            "playing_client_percent": used[0],
            "playing_renderer_percent": used[1],
            "renderer_memory": _megabytes([renderer]),
            "renderer_lacks": _lacking_limits(renderer),
        }
        self._desktop.discard(client.guest)
        return figures

    def _start(self, page):
        provider = Provider(self._desktop, str(self._build / "demo/orken-demo-provider"), ["--first-page", page])
        environment = self._desktop.new_environment()
        # Choosing a renderer is part of what is measured.
        del environment["GSK_RENDERER"]
        client = Client(self._desktop, str(self._build / "demo/orken-demo"), provider, environment=environment)
        client.open_application()
        client.wait_for_session_window()
        return client, provider


def _main_thread_costs(build):
    command = [str(_ROOT / "scripts/on_virtual_desktop.py"), str(build / "bin/session_costs")]
    command.append(str(_ROOT / "demo/pages/animation.json"))
    return json.loads(subprocess.run(["/usr/bin/python3", *command], stdout=subprocess.PIPE, check=True).stdout)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--seconds", type=float, default=60, help="how long the idle session is watched")
    parser.add_argument("--build", type=pathlib.Path, default=_ROOT / "build/bench", help="build folder to use")
    options = parser.parse_args()
    costs = _main_thread_costs(options.build)
    with VirtualDesktop(1280, 800) as desktop:
        sessions = Sessions(desktop, options.build)
        figures = {**sessions.waiting(10.0), **sessions.idle(options.seconds)}
    print(json.dumps({name: round(value, 2) for name, value in {**costs, **figures}.items()}))

    budgets = Budgets()
    budgets.check("update pass of the page scripts, median", costs["pass median"], 150, "us")
    per_frame = costs["tick median"] + costs["frame and texture median"]
    budgets.check("animation frame, our own code, medians", per_frame / 1000, 0.5, "ms")
    budgets.check("animation frames a second", costs["ticks a second"], 61)
    budgets.check("idle session, client's process", figures["idle_client_percent"], 0.3, "% of a processor")
    budgets.check("renderers of an idle session", figures["idle_renderers"], 0)
    budgets.check("session's memory above the floor's", figures["memory"] - figures["floor_memory"], 20, "MB")
    budgets.check("renderer's memory", figures["renderer_memory"], 12, "MB")
    budgets.check("limits that the renderer lacks", figures["renderer_lacks"], 0)
    return budgets.status()


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (NotReached, OSError, subprocess.CalledProcessError) as failure:
        sys.exit(f"measure_session.py: {failure}")
