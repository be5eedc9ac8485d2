#!/usr/bin/env python3
"""Prepares the fonts of assets/fonts, which are compiled into the program.

usage: make-fonts.py <folder with the Inter OTF files> <folder with the JetBrains Mono TTF files> <output folder>

Each font is cut down to the alphabets and signs that an issue tracker's texts use (a missing character comes from the
system's fonts) and to the features that are always on. Hinting is dropped: the program draws unhinted. The families get
names of their own: a machine that has Inter itself would draw with that, alternates and all. Needs fontTools. On Debian
the sources are the packages fonts-inter and fonts-jetbrains-mono; the fonts in the repository were made from versions
4.0~beta7 and 2.242 of them.
"""
import importlib.util
import os
import sys

from fontTools import subset
from fontTools.ttLib import TTFont

# Latin, combining marks, Greek, Cyrillic; then punctuation, currencies, arrows, mathematics and symbols.
CHARACTERS = [
    (0x20, 0x24F), (0x2B0, 0x36F), (0x370, 0x52F), (0x1E00, 0x1EFF), (0x2000, 0x20CF), (0x2100, 0x22FF),
    (0x2300, 0x23FF), (0x2460, 0x24FF), (0x2500, 0x27BF), (0x2900, 0x297F), (0x2B00, 0x2BFF), (0xFB00, 0xFB06),
]
EVERYTHING = [code for first, last in CHARACTERS for code in range(first, last + 1)]
# No contextual alternates and ligatures, so that texts such as "3x1" and "->" are shown as written.
FEATURES = ["kern", "mark", "mkmk", "ccmp", "locl"]

# The name of the source and the characters that are kept.
INTER = [
    ("Inter-Regular", EVERYTHING), ("Inter-Medium", EVERYTHING), ("Inter-SemiBold", EVERYTHING),
    ("Inter-Bold", EVERYTHING), ("InterDisplay-SemiBold", EVERYTHING), ("InterDisplay-Bold", EVERYTHING),
    # Used only for the exclamation mark of the urgent priority.
    ("Inter-Black", [ord("!")]),
]
TABULAR = ["Inter-Regular", "Inter-Medium", "Inter-SemiBold"]
# Qt rounds a font's size to whole pixels. For the two half sizes of the type scale there are families with smaller glyphs,
# which compensate for the rounding: name of the family, style, intended size, requested size.
HALVES = [
    ("Inter Eleven Half", "Regular", 11.5, 12), ("Inter Eleven Half", "Medium", 11.5, 12),
    ("Inter Ten Half", "Medium", 10.5, 11), ("Inter Ten Half", "SemiBold", 10.5, 11),
]
# Dates, counts, keys and hints in French.
SHORT = [code for first, last in [(0x20, 0x17F), (0x2010, 0x2027), (0x2030, 0x203A), (0x2190, 0x2199), (0x21A9, 0x21AA),
                                  (0x20AC, 0x20AC), (0x2318, 0x2318), (0x21E7, 0x21E7), (0x2325, 0x2325)]
         for code in range(first, last + 1)]
MONO = ["JetBrainsMono-Regular"]


def tabular():
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "tabular-font.py")
    spec = importlib.util.spec_from_file_location("tabular_font", path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def cut(font, characters):
    options = subset.Options()
    options.layout_features = FEATURES
    options.hinting = False
    options.notdef_outline = True
    options.name_IDs = ["*"]
    cutter = subset.Subsetter(options)
    cutter.populate(unicodes=characters)
    cutter.subset(font)


def rename(font, family):
    for name in font["name"].names:
        if name.nameID in (1, 3, 4, 6, 16):
            old, new = ("InterTabular", family.replace(" ", "")) if name.nameID == 6 else ("Inter Tabular", family)
            name.string = name.toUnicode().replace(old, new, 1)


def shrink(font, wanted, asked):
    """Enlarges the em so that a text requested at one size has the other size."""
    em = round(font["head"].unitsPerEm * asked / wanted)
    font["head"].unitsPerEm = em
    font["CFF "].cff.topDictIndex[0].FontMatrix = [1 / em, 0, 0, 1 / em, 0, 0]


def own_name(name):
    for theirs, ours in (("JetBrains Mono", "Velmora Mono"), ("JetBrainsMono", "VelmoraMono"), ("Inter", "Velmora")):
        if theirs in name:
            return name.replace(theirs, ours, 1)
    return name


def take_own_names(font):
    for name in font["name"].names:
        if name.nameID in (1, 3, 4, 6, 16):
            name.string = own_name(name.toUnicode())
    if "CFF " in font:
        outlines = font["CFF "].cff
        outlines.fontNames[0] = own_name(outlines.fontNames[0])
        for entry in ("FamilyName", "FullName"):
            if hasattr(outlines.topDictIndex[0], entry):
                setattr(outlines.topDictIndex[0], entry, own_name(getattr(outlines.topDictIndex[0], entry)))


def write(font, folder, name):
    take_own_names(font)
    # No time stamp, so that the same input gives the same bytes.
    font.recalcTimestamp = False
    font.save(os.path.join(folder, name))


def main(inter, mono, out):
    os.makedirs(out, exist_ok=True)
    make_tabular = tabular().make_tabular
    for name, characters in INTER:
        font = TTFont(os.path.join(inter, name + ".otf"))
        cut(font, characters)
        write(font, out, name + ".otf")
    for name in TABULAR:
        font = TTFont(os.path.join(inter, name + ".otf"))
        make_tabular(font)
        cut(font, EVERYTHING)
        write(font, out, name.replace("Inter", "InterTabular") + ".otf")
    for family, style, wanted, asked in HALVES:
        font = TTFont(os.path.join(inter, "Inter-" + style + ".otf"))
        make_tabular(font)
        cut(font, SHORT)
        rename(font, family)
        shrink(font, wanted, asked)
        write(font, out, family.replace(" ", "") + "-" + style + ".otf")
    for name in MONO:
        font = TTFont(os.path.join(mono, name + ".ttf"))
        cut(font, EVERYTHING)
        write(font, out, name + ".ttf")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
