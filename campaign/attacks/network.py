"""The provider goes and comes back, and the network breaks in the middle of things."""

import os
import signal

from .fault_case import COURSE_FROM_RIGHT, DOCUMENTS_FROM_RIGHT, NAVIGATION_TOP, attack, pause
from .relay import Relay

_LARGE = 8_000_000


@attack("provider-restarted")
def provider_restarted(case):
    """It is stopped, hangs, is killed and is started again at its port while a session is open."""
    client, provider = case.open_session("/course")
    for number in (signal.SIGTERM, signal.SIGKILL):
        port = provider.ready["port"]
        provider.guest.signal(number)
        provider.guest.wait_exit()
        _click(case, DOCUMENTS_FROM_RIGHT)
        pause(1.0)
        case.assertIsNone(client.guest.exit_status(), client.guest.describe_end())
        client.provider = provider = case.provider("--port", str(port), "--first-page", "/course")
        case.follow(client, provider, DOCUMENTS_FROM_RIGHT, "documents")
    os.kill(provider.guest.pid, signal.SIGSTOP)
    clicked = _click(case, COURSE_FROM_RIGHT)
    pause(3.0)
    os.kill(provider.guest.pid, signal.SIGCONT)
    provider.wait_for_page("course", clicked, guests=[client.guest])
    case.assert_full_screen(client)
    case.assert_exit_button_works(client)
    return "the page that stood there, the navigation afterwards, full screen, the exit button"


@attack("network-cut-in-a-page")
def network_cut_in_a_page(case):
    """At twelve places from the handshake to the page's files, then without an end; and in the first page."""
    client, provider, relay = _session_over_a_relay(case, "/course")
    for count, place in enumerate([0, 1, 600, 1500, 2000, 2200, 2400, 2600, 3000, 4000, 6000, 9000]):
        relay.cut(place)
        relay.cut_all()
        _click(case, DOCUMENTS_FROM_RIGHT)
        pause(0.7)
        relay.flow()
        target = (COURSE_FROM_RIGHT, "course") if count % 2 else (DOCUMENTS_FROM_RIGHT, "documents")
        case.follow(client, provider, *target)
    relay.stall()
    clicked = _click(case, DOCUMENTS_FROM_RIGHT)
    pause(3.0)
    relay.flow()
    provider.wait_for_page("documents", clicked, guests=[client.guest])
    case.assert_full_screen(client)
    case.assert_exit_button_works(client)

    provider = case.provider("--first-page", "/never")
    relay = _relay(case, provider)
    client = case.client(relay)
    client.open_application()
    client.wait_for_session_window()
    provider.wait_for_request("the page", lambda request: request["path"] == "/never")
    pause(1.0)
    relay.cut_all()
    case.desktop.screen.key("alt+F4")
    case.assert_ends(client)
    return "the page that stood there, the navigation afterwards, full screen, the exit button"


@attack("network-cut-in-a-document")
def network_cut_in_a_document(case):
    """At four places of a document of 8 MB, nothing is saved; afterwards, and after a pause, it arrives whole."""
    client, provider, relay = _session_over_a_relay(case, "/documents")
    case.desktop.screen.key("Tab")
    for place in (1, 100_000, 4_000_000, 7_900_000):
        asked = len(_asked(provider))
        relay.cut_all()
        relay.cut(place)
        case.desktop.screen.key("Return")
        if place > 1:
            client.wait_for("the request", lambda before=asked: len(_asked(provider)) > before)
        pause(1.0)
        relay.flow()
        case.assertEqual(_documents(case), [], f"cut after {place} bytes")
    for count, is_stalled in enumerate((False, True), start=1):
        case.desktop.screen.key("Return")
        if is_stalled:
            pause(0.02)
            relay.stall()
            pause(3.0)
            relay.flow()
        client.wait_for("the document", lambda count=count: _saved(client) == count)
        client.wait_for("its alert", lambda: _alert_is_up(case))
        case.desktop.screen.key("Tab")
        case.desktop.screen.key("Return")
        client.wait_for("the session", lambda: not _alert_is_up(case))
    case.assertEqual(_documents(case), [_LARGE] * 2)
    case.assert_exit_button_works(client)
    return "no half document, two whole ones afterwards, the exit button"


def _relay(case, provider):
    relay = Relay(provider)
    case.addCleanup(relay.close)
    return relay


def _session_over_a_relay(case, page):
    provider = case.provider("--first-page", page)
    relay = _relay(case, provider)
    client = case.client(relay)
    client.open_application()
    client.wait_for_login_page()
    provider.wait_for_page(page[1:], guests=[client.guest])
    return client, provider, relay


def _click(case, from_right):
    return case.desktop.screen.click(case.desktop.screen.width - from_right, NAVIGATION_TOP)


def _asked(provider):
    return [request for request in provider.requests() if request["path"] == "/documents/ornek.pdf"]


def _documents(case):
    folder = case.home() / "Downloads"
    return [file.stat().st_size for file in folder.iterdir()] if folder.is_dir() else []


def _saved(client):
    return len([line for line in client.guest.lines("stdout") if "başarıyla indirildi." in line.text])


def _alert_is_up(case):
    return "başarıyla indirildi." in case.desktop.screen.active_title()
