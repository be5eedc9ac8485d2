"""Remembers what has passed a check, by fingerprints that all clones of a user share."""
import hashlib
import os
import time

ROOT = os.path.realpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", ".."))
CACHE = os.path.join(os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "velmora")
DAYS_KEPT = 60


class Prints:
    """Fingerprints of files: by content in the repository, by size and time outside it."""

    def __init__(self, build):
        self.build, self.known = build, {}

    def of(self, path):
        if path not in self.known:
            self.known[path] = self._read(path)
        return self.known[path]

    def _read(self, path):
        if path.endswith(".pch"):
            return ""    # determined by the headers that it was made from, which have fingerprints themselves
        try:
            if not path.startswith(ROOT + os.sep):
                return "%d %d" % (os.path.getsize(path), os.path.getmtime(path))
            with open(path, encoding="utf-8", errors="replace") as file:
                return hashlib.sha256(self.portable(file.read()).encode()).hexdigest()
        except FileNotFoundError:
            return "gone"

    def portable(self, text):
        """The same text for every folder that the clone and its build may be in."""
        return text.replace(self.build, "<build>").replace(ROOT, "<root>")

    def key(self, tool, words, files):
        """The fingerprint of a check: of its tool (a text), of a compile command and of the files that it reads."""
        lines = [tool, self.portable(" ".join(words))]
        lines += sorted("%s %s" % (self.portable(path), self.of(path)) for path in files)
        return hashlib.sha256("\n".join(lines).encode()).hexdigest()


class Memory:
    """The keys of one check that have passed, as empty files in the user's cache folder."""

    def __init__(self, name):
        self.folder = os.path.join(CACHE, name)
        os.makedirs(self.folder, exist_ok=True)
        self._forget_old()

    def has(self, key):
        """Whether this key has passed. What is asked for is kept longer."""
        try:
            os.utime(os.path.join(self.folder, key))
        except FileNotFoundError:
            return False
        return True

    def add(self, key):
        open(os.path.join(self.folder, key), "w").close()

    def _forget_old(self):
        for entry in os.scandir(self.folder):
            if entry.is_file() and entry.stat().st_mtime < time.time() - DAYS_KEPT * 86400:
                os.remove(entry.path)
