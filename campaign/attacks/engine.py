"""Processes of the engine and of the animation end, or hang."""

import collections
import os
import random
import signal
import time

from harness.processes import named

from .fault_case import COURSE_FROM_RIGHT, DOCUMENTS_FROM_RIGHT, attack, pause

_WEB = "WebKitWebProcess"
_NETWORK = "WebKitNetworkProcess"
_RENDERER = "orken-animation-renderer"
# The client loads a page again three times within any minute; a little more, for its clock starts when it has noticed.
_RELOADS, _PERIOD = 3, 63.0
_KILLS = 50
# On the demo's page of documents: the card with 8 MB, which is under way when its process ends.
_LARGE_DOCUMENT = 516, 292


class _Reloads:
    """Waits so that every further end of a page is one that the client answers with a reload."""

    def __init__(self):
        self._times = collections.deque(maxlen=_RELOADS)

    def wait_for_next(self):
        if len(self._times) == _RELOADS:
            pause(max(0.0, self._times[0] + _PERIOD - time.monotonic()))

    def happened(self):
        self._times.append(time.monotonic())
        return self._times[-1]


def _ends(client):
    return len([line for line in client.guest.lines("stderr") if "the page's process" in line.text])


@attack("web-process-killed")
def web_process_killed(case):
    """50 times in one session, at random moments of loading and standing still; then oftener than it is loaded again."""
    client, provider = case.open_session("/course")
    moments = random.Random(4711)
    reloads = _Reloads()
    for count in range(1, _KILLS + 1):
        reloads.wait_for_next()
        pause(moments.choice((0.0, moments.uniform(0.0, 0.5), moments.uniform(0.5, 3.0))))
        case.kill(client, _WEB)
        killed = reloads.happened()
        client.wait_for("the client's line", lambda count=count: _ends(client) == count)
        case.assert_full_screen(client)
    provider.wait_for_page("course", killed, guests=[client.guest])
    case.follow(client, provider, DOCUMENTS_FROM_RIGHT, "documents")
    case.desktop.screen.key("Return")
    client.guest.wait_for_line("başarıyla indirildi.")
    client.wait_for("the document's alert", lambda: "indirildi" in case.desktop.screen.active_title())
    case.desktop.screen.key("Tab")
    case.desktop.screen.key("Return")
    client.wait_for("the session", lambda: "indirildi" not in case.desktop.screen.active_title())
    again = len([line for line in client.guest.lines("stderr") if "is loaded again" in line.text])
    case.assertEqual(again, _KILLS)

    reloads.wait_for_next()
    pause(_PERIOD)
    for _ in range(_RELOADS + 1):
        case.kill(client, _WEB)
    client.guest.wait_for_line("the page is left as it is")
    case.assert_full_screen(client)
    case.assert_exit_button_works(client)
    return f"{_KILLS} ends and as many reloads, then {_RELOADS + 1} in a row: the session in full screen, its exit button"


@attack("web-process-killed-early")
def web_process_killed_early(case):
    """Before the application is opened, under the overlay before the first page came, and while a question is open."""
    provider = case.provider("--first-page", "/slow?seconds=4")
    client = case.client(provider)
    client.wait_for_start_window()
    case.kill(client, _WEB)
    client.open_application()
    client.wait_for_session_window()
    asked = provider.wait_for_request("the first page", lambda r: r["path"] == "/slow", guests=[client.guest])
    case.kill(client, _WEB)
    provider.wait_for_request("it again", lambda r: r["path"] == "/slow", asked["t"] + 0.001, guests=[client.guest])
    provider.wait_for_page("slow", guests=[client.guest])
    # The page reports itself before the overlay has gone, which takes the clicks until then.
    client.wait_for_login_page()
    case.ask_to_exit(client)
    case.kill(client, _WEB)
    client.wait_for("the client's line", lambda: _ends(client) == 2)
    case.desktop.screen.key("Escape")
    case.assertTrue(case.question_is_up())
    case.desktop.screen.key("Tab")
    case.desktop.screen.key("Return")
    client.wait_for("the page again", lambda: case.finished(provider, "slow") == 2)
    case.follow(client, provider, COURSE_FROM_RIGHT, "course")
    case.assert_exit_button_works(client)
    return "the session, its first page, the question, the exit button"


@attack("network-process-killed")
def network_process_killed(case):
    """20 times: standing still, while a page loads, while a document comes; the login's cookie stays."""
    client, provider = case.open_session("/accounts/Login")
    case.desktop.screen.type("öğrenci\tgizli\n")
    provider.wait_for_page("session", guests=[client.guest])
    moments = random.Random(4711)
    for count in range(20):
        target = (COURSE_FROM_RIGHT, "course") if count % 2 else (DOCUMENTS_FROM_RIGHT, "documents")
        case.kill(client, _NETWORK)
        case.follow(client, provider, *target)
        if target[1] == "documents" and count % 4 == 0:
            case.desktop.screen.click(*_LARGE_DOCUMENT)
            pause(moments.uniform(0.0, 0.1))
    cookies = [r["headers"].get("cookie", "") for r in provider.requests() if r["path"] in ("/course", "/documents")]
    case.assertTrue(all("session=1" in cookie for cookie in cookies[-4:]), cookies)
    case.assert_exit_button_works(client)
    return "the session, the navigation, the login's cookie, the exit button"


@attack("renderer-killed")
def renderer_killed(case):
    """The animation's process is killed while the overlay plays."""
    return _without_renderer(case, lambda client: case.kill(client, _RENDERER))


@attack("renderer-stopped")
def renderer_stopped(case):
    """The animation's process hangs (SIGSTOP) while the overlay plays."""
    return _without_renderer(case, lambda client: os.kill(case.process_of(client, _RENDERER), signal.SIGSTOP))


def _without_renderer(case, fault):
    provider = case.provider("--first-page", "/slow?seconds=6")
    client = case.client(provider)
    client.open_application()
    client.wait_for_session_window()
    case.process_of(client, _RENDERER)
    pause(1.0)
    fault(client)
    provider.wait_for_page("slow", guests=[client.guest])
    client.wait_for_login_page()
    client.wait_for("the end of every renderer", lambda: not named(client.guest.tree(), _RENDERER))
    case.follow(client, provider, COURSE_FROM_RIGHT, "course")
    case.assert_exit_button_works(client)
    return "the overlay until the page came, the page, the exit button; no renderer stays"
