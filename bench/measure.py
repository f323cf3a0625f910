#!/usr/bin/python3
"""Compares the client with floors: bare programs that do the least the same libraries allow.

Runs are interleaved (client, floor, client, floor, ...), each with a fresh process and a fresh home folder, on one
virtual desktop with one demo provider. Prints medians with least and greatest value, writes every sample to a JSON
file, and ends with status 1 when a budget is exceeded. `scripts/bench` builds what this needs.

The floors run with the libraries' defaults, but for memory: there the client's rendering settings are the floor's too.
"""

import argparse
import json
import os
import pathlib
import platform
import signal
import statistics
import sys
import time

_ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(_ROOT / "scripts"))

from budgets import Budgets  # noqa: E402
from measure_session import client_settings  # noqa: E402
from virtual_desktop import Client, NotReached, Provider, VirtualDesktop, cpu_seconds, pss_kib, wait_for  # noqa: E402

_TICK = 1.0 / os.sysconf("SC_CLK_TCK")
_SAMPLE = 0.5
_QUIET = 2.0
_AFTER_PAGE = 1.0

# Name in the results, what the table says, unit.
_MEASURES = (
    ("start_window", "exec to start window shown", "ms"),
    ("login_page", "click (floor: exec) to login page loaded", "ms"),
    ("cpu", "CPU of all processes until page loaded + 1 s", "s"),
    ("memory", "memory (PSS) of all processes, page loaded + 1 s", "MB"),
    ("exit", "SIGTERM to process gone", "ms"),
)


class Bench:
    """One desktop, one provider, and the samples taken on them."""

    def __init__(self, desktop, options):
        self._desktop = desktop
        self._options = options
        self._maps = desktop.watch_maps()
        self._provider = Provider(desktop, str(options.build / "demo/orken-demo-provider"))
        self._login_address = None
        self._settings = None
        self.samples = {name: {"client": [], "floor": []} for name, _, _ in _MEASURES}
        self.idle_percent = None

    def round(self, counts):
        """One run of each program; `counts` is false for runs that only warm the machine up."""
        floors = (self._floor_window, self._floor_page, self._floor_memory)
        for who, run in (("client", self._client), *(("floor", floor) for floor in floors)):
            for name, value in run().items():
                if counts:
                    self.samples[name][who].append(value)

    def measure_idle(self, seconds):
        """Processor use of a start window that nobody touches, after it has come to rest."""
        client = self._start_client()
        _wait_until_quiet(client.guest)
        before, began = cpu_seconds(client.guest.tree()), time.monotonic()
        time.sleep(seconds)
        self.idle_percent = 100 * (cpu_seconds(client.guest.tree()) - before) / (time.monotonic() - began)
        self._desktop.discard(client.guest)

    def _client(self):
        client = self._start_client()
        shown = self._maps.wait_for(client.guest.pid, guests=[client.guest])
        client.wait_for_start_window()
        # Only then is the engine ready behind the window, as it is for a user who reads before clicking.
        _wait_until_quiet(client.guest)
        clicked = client.open_application()
        page = self._provider.wait_for_page("login", since=clicked, guests=[client.guest])
        self._login_address = self._login_address or self._address_of_login()
        self._settings = client_settings(self._desktop, client)
        return {
            "start_window": 1000 * (shown.time - client.guest.started),
            "login_page": 1000 * (page["t"] - clicked),
            **self._at_rest_and_exit(client.guest, page["t"]),
        }

    def _floor_window(self):
        guest = self._spawn_floor("floor_gtk")
        shown = self._maps.wait_for(guest.pid, guests=[guest])
        _wait_until_quiet(guest)
        self._desktop.discard(guest)
        return {"start_window": 1000 * (shown.time - guest.started)}

    def _floor_page(self):
        guest = self._spawn_floor("floor_webkit", self._login_address)
        page = self._provider.wait_for_page("login", since=guest.started, guests=[guest])
        figures = {"login_page": 1000 * (page["t"] - guest.started), **self._at_rest_and_exit(guest, page["t"])}
        del figures["memory"]
        return figures

    def _floor_memory(self):
        guest = self._spawn_floor("floor_webkit", self._login_address, environment=self._settings)
        page = self._provider.wait_for_page("login", since=guest.started, guests=[guest])
        return {"memory": self._at_rest_and_exit(guest, page["t"])["memory"]}

    def _at_rest_and_exit(self, guest, loaded):
        time.sleep(max(0.0, loaded + _AFTER_PAGE - time.monotonic()))
        tree = guest.tree()
        figures = {"cpu": cpu_seconds(tree), "memory": pss_kib(tree) * 1024 / 1e6}
        asked = guest.signal(signal.SIGTERM)
        figures["exit"] = 1000 * (guest.wait_exit() - asked)
        if guest.exit_status() != 0:
            raise NotReached(f"orderly end: {guest.describe_end()}")
        self._desktop.discard(guest)
        return figures

    def _start_client(self):
        program = str(self._options.build / "demo/orken-demo")
        return Client(self._desktop, program, self._provider, environment=self._environment())

    def _spawn_floor(self, name, *arguments, environment=None):
        command = [str(self._options.floors / name), *arguments]
        return self._desktop.spawn(command, environment=environment or self._environment())

    def _environment(self):
        """A fresh home, and no renderer prescribed: choosing one is part of what is measured."""
        environment = self._desktop.new_environment()
        del environment["GSK_RENDERER"]
        return environment

    def _address_of_login(self):
        """What the client asked for, so that the floor loads exactly that."""
        login = next(request for request in self._provider.requests() if request["path"].endswith("/accounts/login"))
        return f"https://{self._provider.address}{login['path']}?{login['query']}"


def _wait_until_quiet(guest):
    """Until its processes have used next to no processor time for two seconds on end."""
    quiet_since = time.monotonic()
    used = cpu_seconds(guest.tree())

    def quiet():
        nonlocal quiet_since, used
        now, before = time.monotonic(), used
        used = cpu_seconds(guest.tree())
        if used - before > _TICK:
            quiet_since = now
        return now - quiet_since >= _QUIET

    wait_for(f"rest of {guest.name}", quiet, 120.0, [guest], _SAMPLE)


def _summary(values):
    return {"median": statistics.median(values), "least": min(values), "greatest": max(values)}


def _results(bench, options):
    measures = {}
    for name, _, unit in _MEASURES:
        sides = {who: {**_summary(values), "samples": values} for who, values in bench.samples[name].items()}
        ratio = sides["client"]["median"] / sides["floor"]["median"]
        measures[name] = {"unit": unit, **sides, "ratio": ratio}
    return {
        "runs": options.runs,
        "machine": {"kernel": platform.release(), "processors": os.cpu_count()},
        "measures": measures,
        "idle_start_window": {"unit": "% of one processor", "seconds": options.idle_seconds, "value": bench.idle_percent},
    }


def _cell(side):
    return f"{side['median']:.4g} ({side['least']:.4g} .. {side['greatest']:.4g})"


def _print_table(results):
    print(f"\n{results['runs']} runs: median (least .. greatest)")
    row = "{:<49} {:>4}  {:<28} {:<28} {:>5}"
    print(row.format("", "", "client", "floor", "ratio"))
    for name, text, unit in _MEASURES:
        measure = results["measures"][name]
        cells = _cell(measure["client"]), _cell(measure["floor"])
        print(row.format(text, unit, *cells, f"{measure['ratio']:.2f}"))
    idle = results["idle_start_window"]
    if idle["value"] is not None:
        print(row.format(f"processor use of an idle start window, {idle['seconds']:g} s", "%", f"{idle['value']:.2f}", "", ""))


def _status(results):
    """0 when every budget holds. Ratios are of medians, and allow what a loaded machine adds."""
    measures, budgets = results["measures"], Budgets()
    budgets.check("start window, of a bare window's time", measures["start_window"]["ratio"], 1.2)
    budgets.check("login page after the click, of a bare view's time from its start", measures["login_page"]["ratio"], 0.3)
    budgets.check("processor time to the login page, of a bare view's", measures["cpu"]["ratio"], 1.15)
    for name, text, limit, unit in (("memory", "memory", 20, "MB"), ("exit", "time to end", 250, "ms")):
        sides = measures[name]
        above = sides["client"]["median"] - sides["floor"]["median"]
        budgets.check(f"{text} above a bare view's", above, limit, unit)
    if results["idle_start_window"]["value"] is not None:
        budgets.check("idle start window, all processes", results["idle_start_window"]["value"], 0.3, "% of a processor")
    return budgets.status()


def _options():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--runs", type=int, default=7, help="measured runs of each program")
    parser.add_argument("--warm-up", type=int, default=1, help="runs before those, not counted")
    parser.add_argument("--idle-seconds", type=float, default=30, help="watched idle time of the start window; 0: none")
    parser.add_argument("--build", type=pathlib.Path, default=_ROOT / "build/bench", help="build folder to use")
    parser.add_argument("--floors", type=pathlib.Path, help="folder of the floors; default: bench in the build folder")
    parser.add_argument("--results", type=pathlib.Path, default=_ROOT / "build/bench/results.json")
    options = parser.parse_args()
    if options.runs < 1:
        parser.error("--runs must be at least 1")
    options.floors = options.floors or options.build / "bench"
    return options


def main():
    options = _options()
    with VirtualDesktop() as desktop:
        bench = Bench(desktop, options)
        for run in range(-options.warm_up, options.runs):
            print(f"warm-up {run + options.warm_up + 1}" if run < 0 else f"run {run + 1}", flush=True)
            bench.round(counts=run >= 0)
        if options.idle_seconds > 0:
            print("idle", flush=True)
            bench.measure_idle(options.idle_seconds)
    results = _results(bench, options)
    _print_table(results)
    options.results.parent.mkdir(parents=True, exist_ok=True)
    options.results.write_text(json.dumps(results, indent=2) + "\n", encoding="utf-8")
    print(f"\nAll samples: {os.path.relpath(options.results)}")
    return _status(results)


if __name__ == "__main__":
    try:
        sys.exit(main())
    except (NotReached, OSError) as failure:
        sys.exit(f"measure.py: {failure}")
