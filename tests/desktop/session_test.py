#!/usr/bin/python3
"""What the session screen draws over the page: the waiting overlay with its animation, the watermark, the exit button.

    PYTHONPATH=scripts tests/desktop/session_test.py BUILD_FOLDER [test names]
"""

import re

from harness.client_case import ClientCase, main
from harness.processes import named

# Black at 80 % over a white page.
OVERLAY = (51, 51, 51)
WATERMARK = "/course/video/playlist/4?hash=%2FVn1jOw8U5hDiCY7fdWXIrTPKA4uBWu1VprwdHtpICI%3D"
# Of the animation, which the overlay shows in the middle of the screen above its text.
EXTENT = 300
LINE_OF_MOVE = re.compile(r"X Position: ([\d.]+), Y Position: ([\d.]+)")


class SessionCase(ClientCase):
    def start(self, page, *options):
        provider = self.provider("--first-page", page, *options)
        client = self.client(provider)
        client.open_application()
        client.wait_for_session_window()
        return client, provider

    def renderers(self, client):
        return named(client.guest.tree(), "orken-animation-renderer")

    def animation(self):
        """The pixels at some hundred places of the animation, or None while the screen shows no overlay."""
        screen = self.desktop.screen
        image = screen.image()
        if image.pixel(screen.width // 4, screen.height - 100) != OVERLAY:
            return None
        left, top = (screen.width - EXTENT) // 2, (screen.height - EXTENT) // 2 - 28
        return [image.pixel(left + x, top + y) for x in range(5, EXTENT, 20) for y in range(5, EXTENT, 20)]

    def shows_picture(self):
        pixels = self.animation()
        return pixels is not None and any(pixel != OVERLAY for pixel in pixels)


class WaitingOverlay(SessionCase):
    def test_it_plays_until_the_first_page_has_finished_and_leaves_nothing_in_the_way(self):
        client, provider = self.start("/slow?seconds=5")
        client.wait_for("the animation", self.shows_picture, interval=0.1)
        first = self.animation()
        client.wait_for("another frame of it", lambda: self.animation() != first, interval=0.1)
        self.assertEqual(len(self.renderers(client)), 1)
        provider.wait_for_page("slow", guests=[client.guest])
        client.wait_for_login_page()
        client.wait_for("the renderer's end", lambda: not self.renderers(client))
        # "Dersler" in the page's navigation, which the overlay covered.
        self.desktop.screen.click(self.desktop.screen.width - 220, 81)
        provider.wait_for_page("course", guests=[client.guest])
        self.assertEqual(client.guest.terminate(), 0)

    def test_an_animation_that_cannot_be_drawn_is_left_out(self):
        for name, is_shown in (("html", False), ("hang", False), ("memory", False), ("image", True)):
            with self.subTest(name):
                client, provider = self.start("/never", "--animation", name)
                provider.wait_for_request("the animation", lambda r: r["path"].startswith("/a/"))
                client.wait_for("the overlay", self.animation, interval=0.1)
                if is_shown:
                    client.wait_for("the picture", self.shows_picture, interval=0.1)
                else:
                    client.guest.wait_for_line("Path: /never")
                    client.wait_for("the renderer's end", lambda: not self.renderers(client))
                    self.assertFalse(self.shows_picture())
                self.assertEqual(client.guest.terminate(), 0)
                self.assertEqual(self.renderers(client), [])


class Watermark(SessionCase):
    def moves(self, client):
        found = [LINE_OF_MOVE.fullmatch(line) for line in self.stdout(client)]
        return [(float(move[1]), float(move[2])) for move in found if move]

    def lies_at(self, x, y):
        """A black box with white text in it, its middle there."""
        image = self.desktop.screen.image()
        edges = [image.pixel(round(x), round(y) + side) for side in (-28, 28)]
        middle = [image.pixel(min(max(round(x) + step, 0), image.width - 1), round(y)) for step in range(-100, 100)]
        return edges == [(0, 0, 0)] * 2 and (255, 255, 255) in middle

    def test_it_wanders_over_the_video_in_its_range(self):
        client, provider = self.start(WATERMARK + "&paused=1")
        provider.wait_for_page("video", guests=[client.guest])
        client.guest.wait_for_line("Max Width: Optional(960.0), Max Height: Optional(540.0)")
        for count in (1, 2):
            client.wait_for("a move", lambda: len(self.moves(client)) >= count)
            x, y = self.moves(client)[-1]
            self.assertTrue(50 <= x <= self.desktop.screen.width / 2 - 50 and 70 <= y <= 540 - 50, (x, y))
            client.wait_for("the watermark there", lambda: self.lies_at(x, y), limit=4)
        self.desktop.screen.click(round(x), round(y))
        provider.wait_for_request("a click through it", lambda r: "what=click" in r["query"], guests=[client.guest])
        self.assertEqual(client.guest.terminate(), 0)


if __name__ == "__main__":
    main()
