#!/usr/bin/python3
"""What passes between a page and the client: the login form's field, documents, and what the engine keeps to itself.

    PYTHONPATH=scripts tests/desktop/page_test.py BUILD_FOLDER [test names]
"""

import json
import os
import pathlib
import signal
import ssl
import urllib.request

from harness.client_case import ClientCase, main
from harness.client import SESSION_TITLE
from harness.processes import named, start_time

MEGABYTES = 1_000_000


class PageCase(ClientCase):
    def open_page(self, path, *options):
        """A client whose session starts with this page; both are there when the page has loaded."""
        provider = self.provider("--first-page", path, *options)
        client = self.client(provider)
        client.open_application()
        client.wait_for_login_page()
        provider.wait_for_page(path[1:].partition("?")[0], guests=[client.guest])
        return client, provider

    def downloads(self):
        folder = self.home() / "Downloads"
        return sorted(folder.iterdir(), key=lambda file: file.stat().st_size) if folder.is_dir() else []


class LoginField(PageCase):
    def test_the_form_gets_the_field_once(self):
        provider = self.provider()
        client = self.client(provider)
        client.open_application()
        client.wait_for_login_page()
        client.guest.wait_for_line("json: ")
        (seen,) = client.wait_for("the field", lambda: self.seen(provider, "param"))
        self.assertEqual(seen, "what=param&value=", "the cipher refuses a key of 36 bytes")
        line = next(line for line in self.stdout(client) if line.startswith("json: "))
        (device,) = json.loads(line.removeprefix("json: "))
        self.assertEqual(device["OsName"], "mac")
        self.assertEqual(device["DiskSerial"], pathlib.Path("/etc/machine-id").read_text(encoding="ascii").strip())
        self.assertEqual(device["Ip"], "203.0.113.7")
        # The script ends with the page's own selection, which no engine hands out.
        client.guest.wait_for_line("JavaScript execution failed: ")
        self.assertEqual(client.guest.terminate(), 0)
        self.assertEqual(len(self.seen(provider, "param")), 1)

    def test_the_view_takes_a_certificate_that_the_url_session_refuses(self):
        trusted, other = self.provider(), self.provider()
        ready = {**trusted.ready, "loginPort": other.ready["port"]}
        pathlib.Path(trusted.ready_file).write_text(json.dumps(ready), encoding="utf-8")
        client = self.client(trusted)
        client.open_application()
        client.wait_for_login_page()
        self.assertEqual(client.guest.terminate(), 0)

        ready["certificateAuthority"] = other.ready["certificateAuthority"]
        pathlib.Path(trusted.ready_file).write_text(json.dumps(ready), encoding="utf-8")
        client = self.client(trusted)
        client.guest.wait_for_line("Hata: ")
        client.guest.wait_for_line("Gelen veri null")
        self.assertEqual(client.guest.terminate(), 0)


class Documents(PageCase):
    def test_a_large_one_arrives_byte_for_byte_and_is_offered_to_be_shown(self):
        client, provider = self.open_page(f"/documents?hand=link&size={20 * MEGABYTES}")
        client.guest.wait_for_line("başarıyla indirildi.")
        (file,) = self.downloads()
        trust = ssl.create_default_context(cafile=provider.ready["certificateAuthority"])
        address = f"https://{provider.address}/documents/ornek.pdf?size={20 * MEGABYTES}"
        with urllib.request.urlopen(address, context=trust) as answer:
            self.assertEqual(file.read_bytes(), answer.read())
        self.assertIn(f"{file.name} başarıyla indirildi.", self.stdout(client))
        self.assertIn("PDF dosyası bulundu, indiriliyor.", self.stdout(client))

        count = len(self.desktop.screen.windows())
        client.wait_for("the alert", lambda: len(self.desktop.screen.windows()) > count or self.alert_is_up())
        self.desktop.screen.key("Return")
        # This desktop has no file manager: the place is told in the log instead.
        line = client.guest.wait_for_line("no file manager could be opened").text
        self.assertIn(str(file), line)
        self.assertEqual(client.guest.terminate(), 0)

    def alert_is_up(self):
        return self.desktop.screen.active_title() not in ("", SESSION_TITLE)

    def press_button(self, place):
        """The page's first button has the focus. A page may open windows only after a user's deed."""
        for _ in range(place):
            self.desktop.screen.key("Tab")
        self.desktop.screen.key("Return")

    def test_every_way_to_a_blob_is_saved_except_a_window(self):
        blank_button, open_button = 5, 8
        client, provider = self.open_page("/documents")
        self.press_button(open_button)
        client.wait_for("the refused window", lambda: self.seen(provider, "open"))
        self.assertEqual(self.seen(provider, "open"), ["what=open&result=null"])
        self.assertEqual(client.guest.terminate(), 0)
        self.assertEqual(self.stdout(client).count("Gelen data tipi blob"), 0)
        client, provider = self.open_page("/documents")
        self.press_button(blank_button)
        client.wait_for("the link", lambda: self.seen(provider, "document"))
        self.desktop.screen.key("Return")
        client.guest.wait_for_line("başarıyla indirildi.")
        self.assertEqual(client.guest.terminate(), 0)

        for count, way in enumerate(("link", "download", "location", "frame", "revoked"), start=1):
            client, _ = self.open_page(f"/documents?hand={way}")
            client.guest.wait_for_line("başarıyla indirildi.")
            self.assertEqual([file.stat().st_size for file in self.downloads()], [40000] * (count + 1), way)
            self.assertEqual(client.guest.terminate(), 0)

    def test_other_types_and_broken_blobs_are_a_line_and_no_file(self):
        expected = {
            "hand=link&type=image/png": "Verilen veri PDF değil, işlemi durdur.",
            "hand=link&type=": "Verilen veri PDF değil, işlemi durdur.",
            "hand=gone": "Veri çözümlenemedi: Error Domain=WebKitJavascriptError Code=699 ",
            "hand=quote": "Veri çözümlenemedi: Error Domain=WebKitJavascriptError Code=699 ",
        }
        for query, line in expected.items():
            with self.subTest(query):
                client, _ = self.open_page(f"/documents?{query}")
                client.guest.wait_for_line(line)
                self.assertEqual(self.downloads(), [])
                self.assertEqual(client.guest.terminate(), 0)

    def test_a_folder_that_cannot_be_made_is_a_line(self):
        (self.home() / "Downloads").write_text("in the way", encoding="ascii")
        client, _ = self.open_page("/documents?hand=link")
        client.guest.wait_for_line("Dosya kaydedilirken bir hata oluştu: ")
        self.assertEqual(client.guest.terminate(), 0)


class Engine(PageCase):
    def kill(self, client, name):
        pid = client.wait_for(name, lambda: named(client.guest.tree(), name))[0]
        since = start_time(pid)
        os.kill(pid, signal.SIGKILL)
        client.wait_for(f"the end of {name}", lambda: start_time(pid) != since)

    def finished(self, provider, page):
        return len([r for r in provider.requests() if r["path"] == "/demo/finished" and f"page={page}" in r["query"]])

    def test_a_page_whose_process_dies_comes_back_three_times(self):
        client, provider = self.open_page("/course")
        for times in (2, 3, 4):
            self.kill(client, "WebKitWebProcess")
            client.wait_for("the page again", lambda: self.finished(provider, "course") == times)
        self.kill(client, "WebKitWebProcess")
        client.guest.wait_for_line("the page is left as it is")
        self.assertEqual(len([line for line in client.guest.lines("stderr") if "is loaded again" in line.text]), 3)
        self.assertEqual(client.guest.terminate(), 0)

    def test_the_client_goes_on_after_its_network_process_died(self):
        provider = self.provider()
        client = self.client(provider)
        client.open_application()
        client.wait_for_login_page()
        client.wait_for("the field", lambda: self.seen(provider, "param"))
        self.kill(client, "WebKitNetworkProcess")
        self.desktop.screen.type("öğrenci\tgizli\n")
        provider.wait_for_page("session", guests=[client.guest])
        self.assertEqual(client.guest.terminate(), 0)

    def test_nothing_a_page_asks_for_is_shown_or_saved(self):
        client, provider = self.open_page("/tries")
        windows = [window.title for window in self.desktop.screen.windows()]
        provider.wait_for_request("the end of the tries", lambda r: "what=tries-done" in r["query"], limit=120)
        results = dict(
            (query.split("name=")[1].split("&")[0], query.split("result=")[1]) for query in self.seen(provider, "try")
        )
        expected = {
            "alert": "returned",
            "confirm": "false",
            "prompt": "null",
            "print": "returned",
            "open": "null",
        }
        self.assertEqual({name: results.get(name) for name in expected}, expected)
        for name in ("geolocation", "notification", "camera", "fullscreen"):
            self.assertNotIn(results[name], ("allowed", "granted", "entered", "never"), name)
        self.assertEqual([window.title for window in self.desktop.screen.windows()], windows)
        self.assertEqual([path for path in self.home().rglob("*") if path.suffix in (".pdf", ".dmg")], [])
        self.assertEqual(client.guest.terminate(), 0)


if __name__ == "__main__":
    main()
