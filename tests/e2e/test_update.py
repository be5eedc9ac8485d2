"""A program in a bundle replaces itself by the next release, and refuses a damaged one."""
from driver import wait_until
from release_case import ReleaseCase, can_mount

# The program looks for updates six seconds after its start.
CHECKED = 40
READY = "^Velmora 1\\.5 prête, Redémarrer pour installer$"
UNTRUSTED = "le certificat du serveur vient d'une autorité inconnue"
SHEET = "^Nouveautés de Velmora 1\\.5$"


def flip_byte(path):
    """Changes one byte in the middle of a file."""
    with open(path, "r+b") as file:
        file.seek(0, 2)
        middle = file.tell() // 2
        file.seek(middle)
        byte = file.read(1)[0]
        file.seek(middle)
        file.write(bytes([byte ^ 1]))


class Update(ReleaseCase):
    def restart_by_badge(self, app):
        app.find(role="push button", name=READY, timeout=CHECKED).click()
        wait_until(lambda: not app.running, 10, 0.05, "end of the old version")
        updated = self.session.adopt(self.program, timeout=30)
        self.watch(updated)
        updated.wait_window("Velmora")
        return updated

    def test_a_release_is_offered_installed_and_announced_once(self):
        self.offer("1.5", "150")
        if not can_mount():
            # Where the program cannot be made to trust the server, it must not take anything from it.
            return self.assert_refused(UNTRUSTED)
        app = self.open_demo_installed()
        updated = self.restart_by_badge(app)
        updated.find(role="heading", name=SHEET, timeout=20)
        updated.find(name="^L'app a été mise à jour, ta connexion Jira est conservée\\.$")
        updated.find(name="Les listes sont plus rapides\\.")
        self.session.key("Return")
        updated.gone(role="heading", name=SHEET)
        self.wait_list(updated)
        self.assertIn(b"\nbuild 150\n", self.installed_files()["MANIFEST"])
        updated.stop()
        again = self.start_installed()
        self.session.settle()
        self.assertFalse(again.all(role="heading", name=SHEET))
        self.assertFalse(again.all(role="push button", name=READY))

    def assert_refused(self, words):
        before = self.installed_files()
        app = self.open_demo_installed()
        self.session.key("ctrl+comma")
        app.wait_window("Réglages")
        app.find(role="page tab", name="Mises à jour").click()
        app.find(name=words, timeout=CHECKED)
        app.find(role="push button", name="^Rechercher maintenant$")
        self.assertFalse(app.all(role="push button", name=READY))
        self.assertEqual(self.installed_files(), before)
        self.session.key("Escape")
        app.wait_no_window("Réglages")
        self.wait_list(app)

    def test_an_archive_with_a_changed_byte_is_refused(self):
        flip_byte(self.offer("1.5", "150"))
        self.assert_refused(UNTRUSTED if not can_mount() else "^Le fichier téléchargé est corrompu \\(empreinte SHA-256 différente\\)\\.$")

    def test_a_program_changed_after_the_signature_is_refused(self):
        self.offer("1.5", "150", spoil_bundle=lambda bundle: flip_byte(bundle + "/bin/velmora"))
        self.assert_refused(UNTRUSTED if not can_mount() else "^Signature refusée : le fichier « bin/velmora » a été modifié\\. "
                            "La mise à jour ne vient pas du même développeur\\.$")
