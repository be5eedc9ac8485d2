"""A minimal Debian 12 in a folder, and virtual desktops on which its programs show their windows."""
import os
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(ROOT, "tests/e2e"))

from driver import Session  # noqa: E402
from support import ISSUE, write_preferences  # noqa: E402

MIRROR = "http://deb.debian.org/debian"
# Where dpkg and apt remember what they did, and the virtual desktop.
RECORDS = re.compile(r"^/var/(log|cache/apt|lib/apt|lib/dpkg/(status|available)[^/]*$)|^/tmp/velmora-e2e-")


def enter_own_mounts():
    """Starts this program again as one whose mounts no other process sees."""
    if os.environ.get("VELMORA_MOUNTS") != "own":
        os.execvpe("unshare", ["unshare", "--mount", "--propagation", "private", sys.executable, *sys.argv],
                   {**os.environ, "VELMORA_MOUNTS": "own"})


def say(text):
    print(text, flush=True)


def expect(is_true, text):
    if not is_true:
        sys.exit("FAILED: " + text)
    say("ok: " + text)


class Machine:
    """A minimal Debian 12 in a folder."""

    def __init__(self, base):
        self.root = tempfile.mkdtemp(prefix="velmora-root-")
        if base:
            subprocess.run(["cp", "--archive", base + "/.", self.root], check=True)
        else:
            subprocess.run(["debootstrap", "--variant=minbase", "bookworm", self.root, MIRROR], check=True,
                           stdout=subprocess.DEVNULL)
        shutil.copy("/etc/resolv.conf", self.inside("/etc/resolv.conf"))
        self.mount("-t", "proc", "proc", to="/proc")
        self.mount("--bind", "/tmp/.X11-unix", to="/tmp/.X11-unix")

    def inside(self, path):
        return self.root + path

    def mount(self, *what, to):
        os.makedirs(self.inside(to), exist_ok=True)
        subprocess.run(["mount", *what, self.inside(to)], check=True)

    def run(self, *words):
        """Runs a command in the machine; its output."""
        done = subprocess.run(["chroot", self.root, "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL=C",
                               "DEBIAN_FRONTEND=noninteractive", *words], stdin=subprocess.DEVNULL,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if done.returncode:
            sys.exit(f"FAILED: {' '.join(words)}\n{done.stdout[-3000:]}")
        return done.stdout

    def install(self, package):
        shutil.copy(package, self.inside("/root"))
        self.run("apt-get", "--yes", "--no-install-recommends", "install", "/root/" + os.path.basename(package))
        os.remove(self.inside("/root/" + os.path.basename(package)))

    def version(self):
        return self.run("dpkg-query", "--show", "--showformat=${db:Status-Status} ${Version}", "velmora")

    def files(self):
        """The paths of all files, without the virtual desktop and the records of dpkg and apt."""
        found = subprocess.run(["find", self.root, "-xdev", "-not", "-type", "d", "-printf", "/%P\n"], check=True,
                               stdout=subprocess.PIPE, text=True).stdout.splitlines()
        return {path for path in found if not RECORDS.match(path)}

    def remove(self):
        """Unmounts first, so that nothing of this machine is deleted."""
        with open("/proc/self/mounts") as file:
            mounted = [line.split()[1] for line in file]
        for path in sorted((path for path in mounted if path.startswith(self.root + "/")), reverse=True):
            subprocess.run(["umount", path], check=True)
        shutil.rmtree(self.root)


class Desktop:
    """A virtual desktop on which programs of the machine show their windows."""

    def __init__(self, machine, program, renderer):
        self.machine, self.path, self.session = machine, program, Session(size=(1400, 900), renderer=renderer)
        machine.mount("--bind", self.session.dir, to=self.session.dir)
        write_preferences(self.session, demoMode="true")
        self.program = None

    def start(self):
        """Starts the program and waits for the list of the demo."""
        self.program = self.session.launch(["/usr/sbin/chroot", self.machine.root, self.path], name="velmora")
        self.program.wait_window("Velmora", timeout=60)
        return self.issues()

    def issues(self):
        self.program.find(role="list item", name=ISSUE.pattern, timeout=60)
        return len(self.program.all(role="list item", name=ISSUE.pattern))

    def window_class(self):
        said = self.session.run(["xprop", "-id", str(self.program.window("Velmora").id), "WM_CLASS"]).stdout
        return re.findall(r'"([^"]*)"', said)

    def preferences(self):
        with open(os.path.join(self.session.env["XDG_CONFIG_HOME"], "Velmora/Velmora.ini")) as file:
            return file.read()

    def stop(self):
        said = self.program.log()
        self.program.stop()
        expect(not said, "the program wrote no warnings" + (":\n" + said if said else ""))
