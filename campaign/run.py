#!/usr/bin/python3
"""Runs attacks on the whole client, one line each. Exit status 0 when all were survived.

    run.py BUILD_FOLDER [--list] [NAME...]
"""

import pathlib
import sys
import time
import traceback

_ROOT = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(_ROOT / "scripts"))

from harness import client_case  # noqa: E402
import attacks  # noqa: E402


def _run(name, attack):
    case = attack.case()
    began = time.monotonic()
    survived = None
    try:
        case.setUp()
        survived = attack(case)
        case.assert_no_memory_error()
    except Exception as failure:
        print(f"FAILED  {name}  {failure}  ({time.monotonic() - began:.0f} s)", flush=True)
        traceback.print_exc()
        case.keep_evidence(_ROOT / "build" / "campaign" / name)
    finally:
        case.doCleanups()
    if survived:
        print(f"ok      {name}  {survived}  ({time.monotonic() - began:.0f} s)", flush=True)
    return survived is not None


def main():
    client_case.use_build(sys.argv[1])
    names = sys.argv[2:]
    known = attacks.all_attacks()
    if names == ["--list"]:
        for name, attack in known.items():
            print(f"{name}  {attack.__doc__.splitlines()[0]}")
        return 0
    unknown = [name for name in names if name not in known]
    if unknown:
        print(f"campaign: no attack is called {', '.join(unknown)}; --list shows all", file=sys.stderr)
        return 2
    results = [_run(name, known[name]) for name in names or known]
    print(f"{results.count(True)} of {len(results)} attacks survived")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
