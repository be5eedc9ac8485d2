"""The focus and the filter are controlled by keyboard."""
import demo_lists
from support import WindowCase

PATH = [key for _, keys in demo_lists.mine() for key in keys]


class Walking(WindowCase):
    renderers = ("software",)

    def test_j_and_k_walk_the_list_across_its_groups(self):
        velmora = self.open_demo()
        for key in PATH[:6]:
            self.session.key("j")
            velmora.wait_focus(key)
        self.session.key("k")
        velmora.wait_focus(PATH[4])

    def test_the_arrow_keys_move_the_focus_as_j_and_k_do(self):
        velmora = self.open_demo()
        self.session.key("Down", "Down")
        velmora.wait_focus(PATH[1])
        self.session.key("Up")
        velmora.wait_focus(PATH[0])

    def test_up_without_a_focus_begins_at_the_last_row(self):
        velmora = self.open_demo()
        self.session.key("Up")
        velmora.wait_focus(PATH[-1])

    def test_the_ends_of_the_list_hold_the_focus(self):
        velmora = self.open_demo()
        self.session.key("j", "k", "k")
        velmora.wait_focus(PATH[0])
        self.session.key(*["Down"] * (len(PATH) + 3))
        velmora.wait_focus(PATH[-1])

    def test_a_folded_group_is_stepped_over(self):
        velmora = self.open_demo()
        velmora.header("En cours").click()
        velmora.wait_listed([(title, [] if title == "En cours" else keys) for title, keys in demo_lists.mine()], "folded")
        self.session.key("j", "j")
        velmora.wait_focus(dict(demo_lists.mine())["À faire"][0])

    def test_a_low_window_scrolls_to_keep_the_focus_in_sight(self):
        velmora = self.open_demo(size=(1320, 580))
        self.session.key(*["j"] * len(PATH))
        velmora.wait_focus(PATH[-1])
        left, top, width, height = velmora.row(PATH[-1]).rect
        window = velmora.app.window("Velmora")
        self.session.settle()
        self.assertLessEqual(velmora.row(PATH[-1]).rect[1] + height, window.y + window.height)

    def test_another_list_has_no_focus_at_first(self):
        velmora = self.open_demo()
        self.session.key("j")
        velmora.wait_focus(PATH[0])
        velmora.scope("Créés par moi").click()
        velmora.wait_listed(demo_lists.reported(), "Créés par moi")
        self.assertIsNone(velmora.focused_key())


class Filtering(WindowCase):
    renderers = ("software",)

    def type_into_filter(self, velmora, text):
        velmora.search_field().click()
        self.session.type(text)

    def test_a_text_keeps_what_holds_it_whatever_its_case_and_accents(self):
        velmora = self.open_demo()
        for typed in ("TIMELINE", "recherche", "éxport"):
            with self.subTest(typed=typed):
                self.type_into_filter(velmora, typed)
                velmora.wait_listed(demo_lists.matching(demo_lists.mine(), demo_lists.fold(typed)), typed)
                self.session.key("ctrl+a", "BackSpace")
                velmora.wait_listed(demo_lists.mine(), "with the filter emptied")

    def test_letters_that_are_commands_are_text_in_the_field(self):
        velmora = self.open_demo()
        self.type_into_filter(velmora, "jk12")
        velmora.app.find(role="text", text="^jk12$")
        velmora.wait_listed([], "jk12")
        self.assertIsNone(velmora.focused_key())

    def test_escape_leaves_the_field_and_then_empties_the_filter(self):
        velmora = self.open_demo()
        self.type_into_filter(velmora, "tokens")
        velmora.wait_listed(demo_lists.matching(demo_lists.mine(), "tokens"), "tokens")
        self.session.key("Escape", "Escape")
        velmora.wait_listed(demo_lists.mine(), "after Escape")

    def test_a_filter_without_a_match_says_so_and_offers_a_way_back(self):
        velmora = self.open_demo()
        self.type_into_filter(velmora, "introuvable")
        velmora.wait_listed([], "introuvable")
        velmora.app.find(role="push button", name="^Effacer les filtres$").click()
        velmora.wait_listed(demo_lists.mine(), "with the filters taken away")


class Menus(WindowCase):
    renderers = ("software",)

    def test_the_menu_key_and_shift_f10_open_the_menu_of_the_focused_issue(self):
        velmora = self.open_demo()
        self.session.key("j")
        velmora.wait_focus(PATH[0])
        for key, layout in (("Menu", "1"), ("shift+F10", "1"), ("Menu", "2"), ("shift+F10", "2")):
            with self.subTest(key=key, layout=layout):
                self.session.key(layout)
                velmora.row(PATH[0])
                self.session.settle()
                self.session.key(key)
                velmora.app.find(role="menu item", name="^Copier la clé$")
                self.session.settle()
                self.session.key("Escape")
                velmora.app.gone(role="menu item", name="^Copier la clé$")

    def test_a_project_becomes_a_favourite_by_keyboard_alone(self):
        velmora = self.open_demo()
        velmora.tab_to("tickets ouverts$")
        self.session.key(*["Down"] * 5)
        velmora.app.find(role="list item", name="^Tickets", states=("selected",))
        self.session.key("Menu")
        velmora.app.find(role="menu item", name="^Ajouter aux favoris$")
        self.session.settle()
        self.session.key("Down", "Return")
        velmora.app.find(role="heading", name="^Favoris$")
        self.session.key("Up")
        velmora.app.find(role="list item", name="^Semaine dernière", states=("selected",))

    def test_the_menus_and_the_palette_take_each_others_place(self):
        velmora = self.open_demo()
        self.session.key("j", "ctrl+k")
        velmora.app.find(role="text", name="^Rechercher un ticket")
        self.session.key("F10")
        velmora.app.find(role="menu item", name="^Quitter")
        velmora.app.gone(role="text", name="^Rechercher un ticket")
        self.session.key("ctrl+k")
        velmora.app.find(role="text", name="^Rechercher un ticket")
        velmora.app.gone(role="menu item", name="^Quitter")
        self.session.key("Escape", "j")
        velmora.wait_focus(PATH[1])
