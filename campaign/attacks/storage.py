"""Disks are full, folders go away, standard streams lead nowhere."""

import pathlib
import shutil

from harness.processes import named

from .fault_case import FaultCase, attack

_SMALL, _LARGE = 40_000, 8_000_000
_DISK = 600_000
_FAILED = "Dosya kaydedilirken bir hata oluştu: "
_SAVED = "başarıyla indirildi."


class DocumentsCase(FaultCase):
    """On the page with the documents, whose first button has the focus and whose second one has the large document."""

    def open_documents(self, within=()):
        provider = self.provider("--first-page", "/documents")
        client = self.client(provider, within)
        client.open_application()
        client.wait_for_session_window()
        client.wait_for_login_page()
        provider.wait_for_page("documents", guests=[client.guest])
        return client

    def count(self, client, text):
        return len([line for line in client.guest.lines("stdout") if text in line.text])

    def press(self, client, text):
        """Presses the button that has the focus; waits for one more line with this text, and closes its alert."""
        before = self.count(client, text)
        self.desktop.screen.key("Return")
        client.wait_for(f"a line with {text!r}", lambda: self.count(client, text) > before)
        if text == _SAVED:
            client.wait_for("its alert", self.alert_is_up)
            self.desktop.screen.key("Tab")
            self.desktop.screen.key("Return")
            client.wait_for("the session", lambda: not self.alert_is_up())

    def alert_is_up(self):
        return _SAVED in self.desktop.screen.active_title()


def _shell(redirections):
    return ["sh", "-c", f'exec "$0" "$@" {redirections}']


@attack("standard-streams", DocumentsCase)
def standard_streams(case):
    """Output to a full device, to a pipe that nobody reads any more, and all three streams closed: a whole session each."""
    for redirections in (">/dev/full 2>/dev/full", "| true", "<&- >&- 2>&-"):
        within = _shell(redirections) if "|" not in redirections else ["sh", "-c", '{ "$0" "$@"; echo "status $?" >&2; } | true']
        client = case.open_documents(within)
        case.desktop.screen.key("Return")
        client.wait_for("the alert", case.alert_is_up)
        case.desktop.screen.key("Tab")
        case.desktop.screen.key("Return")
        client.wait_for("the session", lambda: not case.alert_is_up())
        if "|" not in redirections:
            case.assert_exit_button_works(client)
            continue
        case.ask_to_exit(client)
        case.desktop.screen.key("Return")
        client.guest.wait_exit()
        case.assertEqual(client.guest.lines("stderr")[-1].text, "status 0")
    return "three whole sessions with a document each"


@attack("disk-full", DocumentsCase)
def disk_full(case):
    """A home folder of 600 kB (a tmpfs in a mount namespace): full at the start, full for one document, room again."""
    home = str(case.home())
    namespace = ["bwrap", "--die-with-parent", "--dev-bind", "/", "/", "--size", str(_DISK), "--tmpfs", home]
    client = case.open_documents([*namespace, "sh", "-c", f'head -c 1000000 /dev/zero >"{home}/full"; exec "$0" "$@"'])
    (program,) = named(client.guest.tree(), "orken-demo")
    inside = pathlib.Path(f"/proc/{program}/root{home}")
    client.guest.wait_for_line("Varsayılan dosya oluşturulurken bir hata oluştu: ")
    case.press(client, _FAILED)
    (inside / "full").unlink()
    case.press(client, _SAVED)
    case.desktop.screen.key("Tab")
    case.press(client, _FAILED)
    # What was written of the two that failed stays there; the disk is full of it.
    partial = [file for file in (inside / "Downloads").iterdir() if file.stat().st_size != _SMALL]
    case.assertEqual(len(partial), 2)
    for file in partial:
        file.unlink()
    case.assert_full_screen(client)
    case.desktop.screen.key("shift+Tab")
    case.press(client, _SAVED)
    case.assert_exit_button_works(client)
    return "the session, documents as soon as there is room, one line each time, the exit button"


@attack("downloads-removed", DocumentsCase)
def downloads_removed(case):
    """While the client runs: removed, replaced by a file, and removed with the whole home folder."""
    client = case.open_documents()
    folder = case.home() / "Downloads"
    for _ in range(2):
        case.press(client, _SAVED)
        case.assertEqual([file.stat().st_size for file in folder.iterdir()], [_SMALL])
        shutil.rmtree(folder)
    folder.write_text("in the way", encoding="ascii")
    case.press(client, _FAILED)
    folder.unlink()
    shutil.rmtree(case.home())
    case.press(client, _SAVED)
    case.assertEqual([file.stat().st_size for file in folder.iterdir()], [_SMALL])
    case.assert_exit_button_works(client)
    return "every document that could be saved, the session, the exit button"
