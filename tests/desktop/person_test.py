#!/usr/bin/python3
"""One whole session as a person goes through it: by names that a screen reader says, a pointer and a keyboard.

    PYTHONPATH=scripts tests/desktop/person_test.py BUILD_FOLDER [test names]
"""

from harness.client_case import ClientCase, main
from harness.accessibility import Accessibility
from harness.client import SESSION_TITLE, START_TITLE
from virtual_desktop import wait_for

OTHER_APPLICATIONS = "Devam edebilmek için aşağıdaki açık uygulamalar kapatılacak, onaylıyor musunuz?"
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
        element = self.hears("button", name, window)
        area = self.accessibility.extents(element)
        frame = self.desktop.screen.geometry(self.desktop.screen.window(window))
        self.desktop.screen.click(frame.x + area.x + area.width // 2, frame.y + area.y + area.height // 2)

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
        self.assertIsNone(self.accessibility.find("label", "Yükleniyor..."))
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


if __name__ == "__main__":
    main()
