"""What a build folder knows of the sources: how they are compiled, and which files they include."""
import json
import os
import subprocess

from checks.memory import ROOT

COMPILER = "clang++-19"


def commands(build):
    """{source: compile command as words} for the sources of ours, without those that the build has generated."""
    with open(os.path.join(build, "compile_commands.json")) as file:
        entries = json.load(file)
    return {entry["file"]: entry["command"].split() for entry in entries
            if entry["file"].startswith(ROOT + os.sep) and not entry["file"].startswith(build + os.sep)}


def dependencies(build):
    """{output: the files that it was made from}, as ninja remembers them, with absolute paths."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], stdout=subprocess.PIPE, text=True, check=True).stdout
    found, current = {}, []
    for line in listing.split("\n"):
        if line.startswith("    "):
            current.append(os.path.normpath(os.path.join(build, line.strip())))
        elif ": #deps" in line:
            current = found[os.path.normpath(os.path.join(build, line.split(": #deps")[0]))] = []
    return found


def all_files(output, made_from):
    """The files that an output was made from, directly or through a precompiled header."""
    files, waiting = set(), [output]
    while waiting:
        for path in made_from.get(waiting.pop(), []):
            if path not in files:
                files.add(path)
                waiting.append(path)
    return files


def output_of(words, build):
    return os.path.normpath(os.path.join(build, words[words.index("-o") + 1]))


def flags(words):
    """A compile command without the names of its files: the same for all sources of one target."""
    start = next(at for at, word in enumerate(words) if word.endswith(COMPILER))
    kept, rest = [], iter(words[start + 1:])
    for word in rest:
        if word in ("-o", "-c", "-MT", "-MF"):
            next(rest)
        elif word != "-MD":
            kept.append(word.replace('\\"', '"'))
    return kept
