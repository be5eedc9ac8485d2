"""Releases of the program under test, a feed on a server with TLS, and a program installed as a bundle."""
import functools
import http.server
import os
import shutil
import ssl
import subprocess
import threading

from support import ISSUE, RUN, WindowCase, write_preferences

CERTIFICATES = os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "simulator", "certificates")
SECRET_KEY = "17" * 32
NOTES = "Les listes sont **plus rapides**."
# Lets one program, and those that it starts, trust the authority of the tests: only they see what is mounted.
OWN_MOUNTS = ["unshare", "--user", "--map-current-user", "--keep-caps", "--mount"]
TRUSTING = [*OWN_MOUNTS, "sh", "-c", 'mount --bind "$0" /etc/ssl/certs && exec "$@"']


def can_mount():
    """Whether this machine lets users mount in a namespace of their own."""
    return subprocess.run([*OWN_MOUNTS, "true"], stderr=subprocess.DEVNULL).returncode == 0


class QuietHandler(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *words):
        pass


class Feed:
    """A server with TLS that sends the files of a folder."""

    def __init__(self, folder):
        self.folder = folder
        os.mkdir(folder)
        handler = functools.partial(QuietHandler, directory=folder)
        self._server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
        context.load_cert_chain(os.path.join(CERTIFICATES, "site.pem"), os.path.join(CERTIFICATES, "key.pem"))
        self._server.socket = context.wrap_socket(self._server.socket, server_side=True)
        self.address = "https://localhost:%d/latest.json" % self._server.server_address[1]
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)
        self._thread.start()

    def stop(self):
        self._server.shutdown()
        self._server.server_close()
        self._thread.join()


class ReleaseCase(WindowCase):
    """A test with version 1.4 (build 140) installed in the user's home. The bundles have no libraries: the program finds
    those of the system, as in its build folder."""
    renderers = ("software",)
    is_long = True

    def setUp(self):
        super().setUp()
        self.feed = Feed(os.path.join(self.session.dir, "feed"))
        self.addCleanup(self.feed.stop)
        self.trusted = os.path.join(self.session.dir, "trusted")
        os.mkdir(self.trusted)
        shutil.copy(os.path.join(CERTIFICATES, "authority.pem"), self.trusted)
        self.bundle = os.path.join(self.session.home, "Velmora.app")
        self.write_bundle(self.bundle, "1.4", "140")
        self.program = os.path.join(self.bundle, "bin", "velmora")

    # releases
    def tool(self, *words):
        build = os.path.dirname(os.path.dirname(os.path.dirname(RUN.program)))
        subprocess.run([os.path.join(build, "src/update/tool/velmora-release"), *words], input=SECRET_KEY, text=True,
                       check=True)

    def write_bundle(self, folder, version, build):
        """Writes a signed bundle with the program under test."""
        programs = os.path.join(folder, "bin")
        os.makedirs(programs)
        subprocess.run(["strip", "--strip-unneeded", "-o", os.path.join(programs, "velmora"), RUN.program], check=True)
        shutil.copy(os.path.join(os.path.dirname(RUN.program), "../platform/bundles/velmora-swap"), programs)
        self.tool("manifest", "--release-version", version, "--build", build, "--feed-address", self.feed.address, folder)

    def offer(self, version, build, spoil_bundle=lambda bundle: None):
        """Publishes a release. `spoil_bundle` changes the signed bundle before it is packed. Returns the archive."""
        bundle = os.path.join(self.session.dir, "made", "Velmora.app")
        self.write_bundle(bundle, version, build)
        spoil_bundle(bundle)
        archive = os.path.join(self.feed.folder, "Velmora-%s.zip" % version)
        names = ["--release-version", version, "--build", build, "--feed-address", self.feed.address]
        self.tool("archive", *names, bundle, archive)
        notes = os.path.join(self.session.dir, "notes")
        with open(notes, "w") as file:
            file.write(NOTES)
        self.tool("feed", *names, "--minimum", "2.0", archive, notes, os.path.join(self.feed.folder, "latest.json"))
        return archive

    # the installed program
    def start_installed(self):
        """Starts the installed program and waits for its list."""
        trusting = [*TRUSTING, self.trusted] if can_mount() else []
        app = self.session.launch([*trusting, self.program], name="velmora")
        self.watch(app)
        app.wait_window("Velmora")
        self.wait_list(app)
        return app

    def open_demo_installed(self):
        write_preferences(self.session, demoMode="true")
        return self.start_installed()

    def wait_list(self, app):
        app.find(role="list item", name=ISSUE.pattern, timeout=20)

    def installed_files(self):
        """{path: content} of the installed bundle."""
        found = {}
        for place, _, names in os.walk(self.bundle):
            for name in names:
                path = os.path.join(place, name)
                with open(path, "rb") as file:
                    found[os.path.relpath(path, self.bundle)] = file.read()
        return found

    def watch(self, app):
        """Lets the test fail if the program writes anything, and keeps what it shows if the test fails."""
        self.programs.append(Watched(app))


class Watched:
    """A program as `WindowCase` knows it."""

    def __init__(self, app):
        self.app = app
