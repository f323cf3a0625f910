"""Further copies of the program are started."""

from harness.client import SESSION_TITLE, START_TITLE

from .fault_case import COURSE_FROM_RIGHT, attack

_COPIES = 10


@attack("second-copies")
def second_copies(case):
    """At the start window, in full screen, many at once, and while the first one waits for its address."""
    provider = case.provider("--first-page", "/course")
    client = case.client(provider)
    client.wait_for_start_window()
    case.assert_ends(case.client(provider))
    client.open_application()
    client.wait_for_session_window()
    client.wait_for_login_page()
    copies = [case.client(provider) for _ in range(_COPIES)]
    for copy in copies:
        case.assert_ends(copy)
        case.assertEqual(copy.guest.lines("stdout"), [])
    case.assert_full_screen(client)
    titles = [window.title for window in case.desktop.screen.windows()]
    case.assertEqual((titles.count(SESSION_TITLE), titles.count(START_TITLE)), (1, 0))
    case.follow(client, provider, COURSE_FROM_RIGHT, "course")
    case.ask_to_exit(client)
    case.assert_ends(case.client(provider))
    case.assertTrue(case.question_is_up())
    case.deny_exit(client)
    case.assert_exit_button_works(client)

    first = case.client_waiting_for_its_address()
    case.assert_ends(case.client(first.provider))
    case.assertEqual(first.guest.terminate(), 0)
    return f"{_COPIES + 3} copies gone at once, the first one's windows, full screen, question, exit button"
