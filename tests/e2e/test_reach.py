"""A long session in the demo that reaches every feature by keyboard only."""
import demo_lists
from driver import Session, wait_until
from support import RUN, WindowCase

MINE = [key for _, keys in demo_lists.mine() for key in keys]


class ByKeyboardAlone(WindowCase):
    is_long = True

    def setUp(self):
        self.session = Session(size=(1000, 700), renderer=RUN.renderer, tray=True)
        self.addCleanup(self.session.stop)
        self.programs = []

    # actions of the user
    def command(self, velmora, text, row):
        """Searches a row of the palette by its title and activates it with Return; it must be the highlighted one."""
        self.session.key("ctrl+k")
        self.session.type(text)
        velmora.app.find(role="list item", name=row, states=("focused",))
        self.session.key("Return")

    def label(self, velmora, text, row):
        """Activates a row of the label picker, which stays open."""
        self.session.type(text)
        velmora.app.find(role="list item", name=row, states=("focused",))
        self.session.key("Return")

    # what the user sees
    def wait_word(self, velmora, key, word):
        velmora.app.find(role="list item", name="^%s, .*%s" % (key, word))

    def luminance(self, velmora):
        window = velmora.app.window("Velmora")
        red, green, blue = self.session.pixel(window.x + window.width // 2, window.y + window.height - 4)
        return 0.2126 * red + 0.7152 * green + 0.0722 * blue

    def test_from_a_cold_start_to_the_status_item_and_back(self):
        velmora = self.open_demo(size=(940, 580), appearance="light")

        self.command(velmora, "jet", "jeton")
        velmora.app.find(role="heading", name="^Connexion avec Apple")
        velmora.wait_focus("MOB-101")
        self.session.key("s")
        velmora.app.find(role="list item", name="^En revue$")
        self.session.key("4")
        self.wait_word(velmora, "MOB-101", "En revue")
        self.session.key("Escape")
        velmora.app.gone(role="heading", name="^Connexion avec Apple")

        self.assign_three(velmora)
        self.label_three(velmora)
        self.session.key("Escape")
        velmora.app.gone(name="sélectionnés$")

        self.command(velmora, "mobile · sprint", "^App mobile · Sprint actif$")
        wait_until(lambda: velmora.title() == "App mobile · Sprint actif", 5, 0.1, "the sprint")
        wait_until(velmora.keys, 5, 0.1, "its issues")
        self.session.key("j")
        focused = wait_until(velmora.focused_key, 5, 0.1, "a focused row")
        self.command(velmora, "apparence", "^Changer l'apparence \\(Clair\\)$")
        wait_until(lambda: self.luminance(velmora) < 60, 5, 0.1, "a dark window")
        self.session.key("2")
        velmora.app.find(role="list", name="^En cours, \\d+ tickets?$")
        velmora.wait_focus(focused)
        self.session.key("ctrl+shift+period")
        wait_until(lambda: (self.session.clipboard() or "").startswith("feature/%s-" % focused), 5, 0.1, "its branch")

        self.session.key("ctrl+Return")
        velmora.app.wait_window("^" + focused)
        self.session.settle()
        self.session.key("ctrl+w")
        velmora.app.wait_no_window("^" + focused)
        self.session.settle()
        self.session.key("ctrl+w")
        velmora.app.wait_no_window("Velmora")
        self.session.tray().choose("^Ouvrir Velmora$")
        velmora.app.wait_window("Velmora")
        velmora.wait_focus(focused)

    def assign_three(self, velmora):
        self.session.key("Escape", "Escape", *["k"] * len(MINE))
        self.session.key("x", "j", "x", "j", "x")
        velmora.app.find(name="^3 sélectionnés$")
        self.three = [row.name.split(",")[0] for row in
                      velmora.app.all(role="list item", name=r"^[A-Z]+-\d+, ", states=("selected",))]
        self.session.key("a")
        velmora.app.find(role="list item", name="^Non assigné$")
        self.session.type("maud")
        self.session.key("Return")
        for key in self.three:
            self.wait_word(velmora, key, "assigné à Maud Ferrand")

    def label_three(self, velmora):
        self.session.key("l")
        velmora.app.find(role="list item", name="^auth$")
        self.label(velmora, "urgence client", "^Créer l'étiquette « urgence-client »$")
        self.label(velmora, "urgence", "^urgence-client$")
        self.session.key("ctrl+a")
        self.session.type("urgence-client")
        velmora.app.find(role="list item", name="^Créer l'étiquette « urgence-client »$")
        self.session.key("Escape", "Escape", "Escape")
