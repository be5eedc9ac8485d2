"""The light and the dark appearance of the window."""
from driver import wait_until
from gi.repository import GLib
from support import WindowCase

COLOR_SCHEME = ("org.freedesktop.appearance", "color-scheme")
DARK, LIGHT = GLib.Variant("u", 1), GLib.Variant("u", 2)


class Appearance(WindowCase):
    def luminance_of_the_list(self, velmora):
        """The brightness below the last row of the list, from 0 to 255."""
        window = velmora.app.window("Velmora")
        self.session.settle()
        red, green, blue = self.session.pixel(window.x + window.width - 60, window.y + window.height - 60)
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue

    def test_a_stored_dark_appearance_makes_the_window_dark(self):
        self.assertLess(self.luminance_of_the_list(self.open_demo(appearance="dark")), 60)

    def test_a_stored_light_appearance_makes_the_window_light(self):
        self.assertGreater(self.luminance_of_the_list(self.open_demo(appearance="light")), 220)

    def test_an_appearance_that_nobody_knows_is_that_of_the_system(self):
        unknown = self.luminance_of_the_list(self.open_demo(appearance="mauve"))
        self.assertTrue(unknown < 60 or unknown > 220, unknown)

    def test_the_desktops_appearance_is_followed_while_the_window_is_open(self):
        portal = self.session.start_portal({COLOR_SCHEME: DARK})
        self.addCleanup(portal.stop)
        velmora = self.open_demo(appearance="system")
        wait_until(lambda: self.luminance_of_the_list(velmora) < 60, 5, 0.1, "a dark window")
        portal.change(*COLOR_SCHEME, LIGHT)
        wait_until(lambda: self.luminance_of_the_list(velmora) > 220, 5, 0.1, "a light window")
        portal.change(*COLOR_SCHEME, DARK)
        wait_until(lambda: self.luminance_of_the_list(velmora) < 60, 5, 0.1, "a dark window again")

    def test_a_chosen_appearance_stands_against_the_desktops(self):
        portal = self.session.start_portal({COLOR_SCHEME: LIGHT})
        self.addCleanup(portal.stop)
        velmora = self.open_demo(appearance="light")
        portal.change(*COLOR_SCHEME, DARK)
        self.assertGreater(self.luminance_of_the_list(velmora), 220)
