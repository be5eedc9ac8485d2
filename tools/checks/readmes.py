"""Compares the READMEs of folders with what stands in the folders."""
import functools
import os
import re

MOST_LINES = 15
SOURCES = (".cpp", ".h", ".mm", ".qml", ".py", ".txt")
NAMED = re.compile(r"`([^`\n]+)`")
FILE = re.compile(r"[\w.…-]*(/[\w.…-]*)+|[\w-]+\.(cpp|h|mm|qml|py|txt|md|tsv|json|inc|dict)")


def read(root, path):
    with open(os.path.join(root, path), encoding="utf-8") as file:
        return file.read()


def without_comments(path, text):
    """The text of a source without its comments."""
    mark = "#" if path.endswith((".py", ".txt")) else "//"
    return re.sub(mark + r"[^\n]*", "", re.sub(r"/\*.*?\*/", "", text, flags=re.DOTALL))


def names(text):
    """What a README names in backticks, without addresses, commands and options."""
    return [name for name in dict.fromkeys(NAMED.findall(text)) if not re.search(r"://| |^-", name)]


class Readmes:
    """The READMEs below a root, out of the paths of all files there."""

    def __init__(self, root, files):
        self.root, self.files = root, files
        self.folders = {folder for path in files for folder in parents(path)}

    def faults(self):
        for folder in self.needing():
            if folder + "/README.md" not in self.files:
                yield f"{folder}: has no README.md"
        for path in (path for path in self.files if os.path.basename(path) == "README.md"):
            text = read(self.root, path)
            if path.startswith("src/"):
                if (lines := text.count("\n")) > MOST_LINES:
                    yield f"{path}: {lines} lines, at most {MOST_LINES}"
                yield from self.unnamed(path, text)
                yield from self.unknown_words(path, text)
            yield from self.missing_files(path, text)

    def needing(self):
        """The folders of src with a target of their own."""
        return sorted({os.path.dirname(path) for path in self.files
                       if path.startswith("src/") and os.path.basename(path) == "CMakeLists.txt"} - {"src"})

    def unnamed(self, path, text):
        """The subfolders that a README does not name."""
        words = {word.rstrip("/") for word in NAMED.findall(text)}
        folder = os.path.dirname(path)
        for inner in sorted(self.folders):
            if os.path.dirname(inner) == folder and os.path.basename(inner) not in words:
                yield f"{path}: does not name the folder `{os.path.basename(inner)}/`"

    def missing_files(self, path, text):
        """The files and folders that a README names in backticks although they do not exist."""
        for name in names(text):
            if FILE.fullmatch(name) and not self.has_file(os.path.dirname(path), name):
                yield f"{path}: names `{name}`, which does not exist"

    def unknown_words(self, path, text):
        """The types and functions that a README names in backticks although nothing is called so."""
        for name in names(text):
            if not FILE.fullmatch(name):
                for word in re.findall(r"[^\W\d]\w*", name):
                    if word not in self.words:
                        yield f"{path}: names `{name}`, but nothing is called {word}"

    def has_file(self, folder, name):
        """Whether a name is that of a file or folder, seen from the README's folder, from src or from the root."""
        seen_from = (os.path.normpath(os.path.join(start, name)) for start in (folder, "src", "tests", ""))
        return any(path in self.files or path in self.folders or os.path.exists(os.path.join(self.root, path))
                   for path in seen_from)

    @functools.cached_property
    def words(self):
        """Every word of the code outside comments, and the names of its files and folders."""
        found = {os.path.splitext(part)[0] for path in self.files for part in path.split("/")}
        for path in self.files:
            if path.endswith(SOURCES):
                found.update(re.findall(r"[^\W\d]\w*", without_comments(path, read(self.root, path))))
        return found


def parents(path):
    while path := os.path.dirname(path):
        yield path
