"""The client as a user meets it: how its screens are recognised and worked."""

from .waiting import wait_for

START_TITLE = "ORKEN'E Hoşgeldiniz"
SESSION_TITLE = "ORKEN"
USER_AGENT = (
    "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) ApleWebKit/405.1.15 (KHTML, like Gecko) "
    "Versions/16.6 Safari/405.1.15"
)

_BUTTON_COLOUR = "#8e8e93"
_BUTTON_SIZE = 300, 50
_LOGIN_BAR_COLOUR = "#0a7d4f"
_LOGIN_BAR_HEIGHT = 56
# Seconds between looks at the whole screen, which cost the client processor time.
_LOOK = 0.1


class Client:
    """The client's program on a desktop, with the demo provider to talk to."""

    def __init__(self, desktop, program, provider, environment=None, within=()):
        """`within` is a command that starts the program given after it, such as a shell with redirections."""
        self._screen = desktop.screen
        self.provider = provider
        command = [*within, program, provider.ready_file]
        self.guest = desktop.spawn(command, environment=environment, name="client")

    def wait_for(self, what, condition, limit=60.0, interval=0.02):
        """Fails at once when the client or the provider has ended."""
        return wait_for(what, condition, limit, [self.guest, self.provider.guest], interval)

    def wait_for_start_window(self):
        """Until it can be used: its two wide buttons, "Uygulamayı Aç" above "Uygulamadan Çık"."""
        self.wait_for(f"window {START_TITLE!r}", lambda: self._screen.window(START_TITLE))
        return self.wait_for("the start window's buttons", self._start_buttons, interval=_LOOK)

    def open_application(self):
        """Clicks "Uygulamayı Aç"; answers the moment of the click."""
        open_button, _ = self.wait_for_start_window()
        return self._screen.click(*open_button.centre)

    def wait_for_session_window(self):
        """The session's window, once it covers the screen and the start window has gone."""

        def session():
            window = self._screen.window(SESSION_TITLE)
            gone = self._screen.window(START_TITLE) is None
            return window if window and gone and self._screen.is_fullscreen(window) else None

        return self.wait_for(f"window {SESSION_TITLE!r} in full screen", session)

    def wait_for_login_page(self):
        """Until the login page's coloured bar lies across the top of the screen; answers the bar."""
        size = self._screen.width, _LOGIN_BAR_HEIGHT // 2

        def bar():
            found = self._screen.image().find_rectangle(_LOGIN_BAR_COLOUR, 4, *size)
            return found if found and found.y < _LOGIN_BAR_HEIGHT // 2 else None

        return self.wait_for("the login page on the screen", bar, interval=_LOOK)

    def _start_buttons(self):
        buttons = self._screen.image().find_rectangles(_BUTTON_COLOUR, 4, *_BUTTON_SIZE)
        return buttons if len(buttons) == 2 else None
