"""The position of the main window, and its layout on half a screen."""
import demo_lists
from driver import wait_until
from support import WindowCase


class Place(WindowCase):
    def test_size_and_place_are_those_of_the_last_run(self):
        velmora = self.open_demo()
        velmora.app.move_window(130, 90, size=(1010, 700))
        wait_until(lambda: velmora.app.window("Velmora").rect == (130, 90, 1010, 700), 5, 0.1, "the window's place")
        self.session.settle()
        velmora.app.close_window("Velmora")
        wait_until(lambda: not velmora.app.running, 10, 0.05, "the end of the process")

        again = self.open(size=None)
        again.wait_listed(demo_lists.mine(), "my issues")
        self.assertEqual(again.app.window("Velmora").rect, (130, 90, 1010, 700))


class SmallScreen(WindowCase):
    screen = (1366, 768)

    def test_every_window_comes_up_within_it(self):
        velmora = self.open_demo(size=None)
        self.session.key("j", "ctrl+Return")
        issue = velmora.app.wait_window("^WEB-202")
        for window in (velmora.app.window("Velmora"), issue):
            self.assertLessEqual(window.width, 1366)
            self.assertLessEqual(window.height, 728)


class SmallSteps(WindowCase):
    """At a fractional scale, a colour that belongs to no pane would be a gap or a blurred edge."""

    def columns_of_colour(self, y, left, right):
        """The sequence of colours along a line."""
        width, _, pixels = self.session.x.grab((left, y, right - left, 1))
        row = [tuple(pixels[4 * x:4 * x + 3]) for x in range(width)]
        return [colour for at, colour in enumerate(row) if at == 0 or colour != row[at - 1]]

    def open_scaled(self, scale):
        self.session.env["QT_SCALE_FACTOR"] = str(scale)
        return self.open_demo(size=(1400, 1000), appearance="light")

    def test_a_fill_ends_on_a_device_pixel(self):
        for scale in (1.25, 1.5):
            with self.subTest(scale=scale):
                velmora = self.open_scaled(scale)
                x, y, width, height = (round(value * scale) for value in velmora.header("En cours").rect)
                self.session.move(5, 995)
                self.session.settle()
                colours = self.columns_of_colour(y + height // 2, x + width - round(8 * scale), x + width + 10)
                self.assertEqual(len(colours), 2, colours)
                velmora.app.stop()
