#!/usr/bin/python3
"""One whole session as a person goes through it: by names that a screen reader says, a pointer and a keyboard.

    PYTHONPATH=scripts tests/desktop/person_test.py BUILD_FOLDER [test names]
"""

from harness.client_case import ClientCase, main
from harness.accessibility import Accessibility
from harness.client import SESSION_TITLE, START_TITLE
from harness.image import Rectangle
from virtual_desktop import wait_for

OTHER_APPLICATIONS = "Devam edebilmek için aşağıdaki açık uygulamalar kapatılacak, onaylıyor musunuz?"
WAITING = "Yükleniyor..."
WATERMARK = '<b>Öğrenci & "4711"</b>'
# Places on the demo's pages, whose content the engine keeps from the toolkit's tree.
NAVIGATION_TOP, COURSE_FROM_RIGHT, DOCUMENTS_FROM_RIGHT = 81, 220, 129
FOURTH_LESSON = 300, 376
TYPED = ("öğrenci-adı", "çok gizli")


class Person(ClientCase):
    def setUp(self):
        super().setUp()
        self.accessibility = Accessibility(self.desktop)

    def hears(self, role, name, window=None):
        """The element, once the screen has it."""

        def found():
            element = self.accessibility.find(role, name)
            return element if element and window in (None, element.window) else None

        return wait_for(f"{role} {name!r}", found)

    def press(self, name, window):
        """Clicks the middle of the button with this name."""
        self.desktop.screen.click(*self.on_screen(self.hears("button", name, window)).centre)

    def on_screen(self, element):
        frame = self.desktop.screen.geometry(self.desktop.screen.window(element.window))
        area = self.accessibility.extents(element)
        return Rectangle(frame.x + area.x, frame.y + area.y, area.width, area.height)

    def contrast(self, element):
        return self.desktop.screen.image().contrast(self.on_screen(element))

    def assert_can_be_read(self, name, window):
        element = self.hears("label", name, window)
        wait_for(f"{name!r} to be told from what is behind it", lambda: self.contrast(element) >= 4.5)

    def focus_moves_to(self, name):
        """With the next Tab, for the eye and for the ear."""
        before = self.desktop.screen.image()
        self.desktop.screen.key("Tab")
        element = wait_for(f"the keyboard at {name!r}", lambda: (e := self.accessibility.focused()) and e.name == name and e)
        x, y, width, height = self.on_screen(element)
        edge = [(x + step, row) for row in (y, y + height - 1) for step in range(width)]
        ring = lambda: (i := self.desktop.screen.image()) and any(i.pixel(*at) != before.pixel(*at) for at in edge)
        wait_for(f"a ring around {name!r}", ring)

    def go(self, provider, client, page, x, y):
        clicked = self.desktop.screen.click(x, y)
        provider.wait_for_page(page, clicked, guests=[client.guest])

    def test_a_session_from_the_start_window_to_the_exit_question(self):
        other = self.desktop.spawn(["xterm", "-class", "Hesap", "-title", "Hesap"])
        wait_for("another application", lambda: self.desktop.screen.window("Hesap"), guests=[other])
        provider = self.provider()
        client = self.client(provider, GTK_A11Y=None)
        client.guest.wait_for_line('Başarılı: AppData(macVersion: "1.0")')
        self.hears("label", "Uygulama sürümü: 1.0", START_TITLE)
        self.press("Uygulamayı Aç", START_TITLE)
        self.hears("label", OTHER_APPLICATIONS)
        self.hears("label", "Açık olan uygulamalar:\nXTerm")
        self.press("Evet", OTHER_APPLICATIONS)
        other.wait_exit()

        client.wait_for_session_window()
        client.wait_for_login_page()
        provider.wait_for_page("login", guests=[client.guest])
        self.hears("button", "Çıkış Yap", SESSION_TITLE)
        self.desktop.screen.type("\t".join(TYPED) + "\n")
        provider.wait_for_page("session", guests=[client.guest])
        (signed_in,) = [r for r in provider.requests() if r["path"] == "/accounts/session"]
        self.assertEqual((signed_in["method"], signed_in["status"]), ("POST", 200))

        right = self.desktop.screen.width
        self.go(provider, client, "course", right - COURSE_FROM_RIGHT, NAVIGATION_TOP)
        self.go(provider, client, "video", *FOURTH_LESSON)
        for what in ("overlay-removed", "playing"):
            client.wait_for(what, lambda what=what: self.seen(provider, what))
        self.hears("label", WATERMARK, SESSION_TITLE)

        self.go(provider, client, "documents", right - DOCUMENTS_FROM_RIGHT, NAVIGATION_TOP)
        client.wait_for("the watermark's end", lambda: not self.accessibility.find("label", WATERMARK))
        self.assertIsNone(self.accessibility.find("label", WAITING))
        self.desktop.screen.key("Return")
        saved = client.guest.wait_for_line("başarıyla indirildi.").text
        self.hears("label", saved)
        self.press("Kapat", saved)
        client.wait_for("the alert's end", lambda: self.desktop.screen.window(saved) is None)

        self.press("Çıkış", SESSION_TITLE)
        self.press("Evet", "Çıkış yapmak istediğinize emin misiniz?")
        self.assert_ends(client)
        self.assert_only_the_document_is_kept(saved.split(" ")[0])

    def assert_only_the_document_is_kept(self, name):
        files = [path for path in self.home().rglob("*") if path.is_file()]
        documents = [path for path in files if path.suffix == ".pdf"]
        self.assertEqual([(path.name, path.stat().st_size) for path in documents], [(name, 40000)])
        # The last two are names of the site's cookies and of what it has in its local storage.
        traces = [trace.encode() for trace in (*TYPED, WATERMARK, "playlist", "visited", "visits")]
        for path in files:
            content = path.read_bytes()
            self.assertEqual([trace for trace in traces if trace in content], [], path)

    def test_texts_can_be_read_and_the_keyboard_reaches_every_control(self):
        provider = self.provider("--first-page", "/never")
        client = self.client(provider, GTK_A11Y=None)
        buttons = ("Uygulamayı Aç", "Uygulamadan Çık", "Uygulamayı Sil")
        for name in (*buttons, "Uygulama sürümü: 1.0"):
            self.assert_can_be_read(name, START_TITLE)
        usual = self.accessibility.extents(self.hears("label", "Uygulama sürümü: 1.0", START_TITLE))
        for name in (*buttons[1:], *buttons):
            self.focus_moves_to(name)
        client.open_application()
        client.wait_for_session_window()
        focused = wait_for("what is told of the wait", self.accessibility.focused)
        self.assertEqual((focused.role, focused.name), ("alert", WAITING))
        self.assert_can_be_read(WAITING, SESSION_TITLE)
        self.focus_moves_to("Çıkış")
        self.assertEqual(client.guest.terminate(), 0)

        settings = self.home() / ".config/gtk-4.0/settings.ini"
        settings.parent.mkdir(parents=True, exist_ok=True)
        settings.write_text("[Settings]\ngtk-font-name=Sans 22\n", encoding="ascii")
        client = self.client(provider, GTK_A11Y=None)
        large = self.accessibility.extents(self.hears("label", "Uygulama sürümü: 1.0", START_TITLE))
        self.assertGreater(large.height, 1.8 * usual.height)
        self.assertEqual(client.guest.terminate(), 0)


if __name__ == "__main__":
    main()
