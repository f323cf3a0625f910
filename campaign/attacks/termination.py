"""SIGTERM at every phase of the client's life."""

import pathlib
import signal

from .fault_case import VIDEO, attack
from .relay import Relay


def _start_window(case):
    client = case.client(case.provider())
    client.wait_for_start_window()
    return client


def _before_the_window(case):
    client = case.client(case.provider())
    client.wait_for("the program itself", lambda: b"orken-demo" in _maps(client.guest.pid))
    return client


def _gate(case):
    relay = Relay(case.provider())
    case.addCleanup(relay.close)
    relay.stall()
    client = case.client(relay)
    client.wait_for_start_window()
    client.wait_for("the gate's connection", lambda: relay.connections > 0)
    return client


def _echo(case):
    return case.client_waiting_for_its_address()


def _login_loading(case):
    provider = case.provider("--first-page", "/never")
    client = case.client(provider)
    client.open_application()
    client.wait_for_session_window()
    provider.wait_for_request("the page", lambda request: request["path"] == "/never")
    return client


def _page_shown(case):
    return case.open_session("/course")[0]


def _video(case):
    return case.open_session(VIDEO)[0]


def _pdf_coming(case):
    """A document of 100 MB: while it comes, and while it is handed over, which takes some seconds."""
    provider = case.provider("--first-page", "/documents?hand=link&size=100000000")
    client = case.client(provider)
    client.open_application()
    provider.wait_for_request("the document", lambda r: r["path"] == "/documents/ornek.pdf", guests=[client.guest])
    return client


def _pdf_handed_over(case):
    client = _pdf_coming(case)
    client.guest.wait_for_line("PDF dosyası bulundu")
    return client


def _pdf_question(case):
    client = case.open_session("/documents?hand=link")[0]
    client.guest.wait_for_line("başarıyla indirildi.")
    return client


def _exit_question(case):
    client = case.open_session("/course")[0]
    case.ask_to_exit(client)
    return client


_PHASES = {
    "before the window": _before_the_window,
    "start window": _start_window,
    "gate under way": _gate,
    "waiting for the address": _echo,
    "login loading": _login_loading,
    "page shown": _page_shown,
    "video playing": _video,
    "PDF coming": _pdf_coming,
    "PDF handed over": _pdf_handed_over,
    "PDF saved, its alert up": _pdf_question,
    "exit question open": _exit_question,
}


@attack("sigterm-at-every-phase")
def sigterm_at_every_phase(case):
    """Exit status 0 each time, no process left, caches cleared, nothing half written in Downloads."""
    for phase, reach in _PHASES.items():
        client = reach(case)
        processes = case.processes(client)
        client.guest.signal(signal.SIGTERM)
        try:
            client.guest.wait_exit(20.0)
            expected = (0, -signal.SIGTERM) if phase == "before the window" else (0,)
            case.assertIn(client.guest.exit_status(), expected, client.guest.describe_end())
            case.assert_gone(processes)
            case.assert_caches_cleared()
            _assert_whole_documents(case)
        except Exception as failure:
            raise AssertionError(f"{phase}: {failure}") from failure
    return f"{len(_PHASES)} phases: status 0, no process, no cache, no half document"


def _assert_whole_documents(case):
    folder = case.home() / "Downloads"
    for file in folder.iterdir() if folder.is_dir() else ():
        content = file.read_bytes()
        case.assertTrue(content.startswith(b"%PDF-") and content.rstrip().endswith(b"%%EOF"), f"{file} is not whole")


def _maps(pid):
    try:
        return pathlib.Path(f"/proc/{pid}/maps").read_bytes()
    except (FileNotFoundError, ProcessLookupError):
        return b""
