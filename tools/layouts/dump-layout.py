#!/usr/bin/env python3
"""Writes what the keys of one keyboard layout produce, from the xkb data of the system, as a table.

Usage: dump-layout.py LAYOUT [VARIANT] > tests/commands/layouts/NAME.tsv

One row per key of a PC keyboard: the scan code (evdev's plus 8, as the window system reports it), the key's xkb name, and
for the key alone and for the key with Shift the key symbol's name and the character it stands for (U+XXXX, or - for
none). Needs libxkbcommon and xkb-data; nothing else reads them, so that the tests run without.
"""
import ctypes
import sys

LEVELS = 2
BUFFER = 64


class RuleNames(ctypes.Structure):
    _fields_ = [(name, ctypes.c_char_p) for name in ("rules", "model", "layout", "variant", "options")]


def load_library():
    library = ctypes.CDLL("libxkbcommon.so.0")
    for name in ("xkb_context_new", "xkb_keymap_new_from_names", "xkb_keymap_key_get_name"):
        getattr(library, name).restype = ctypes.c_void_p
    library.xkb_keysym_to_utf32.restype = ctypes.c_uint32
    return library


def compile_keymap(library, layout, variant):
    context = ctypes.c_void_p(library.xkb_context_new(0))
    names = RuleNames(b"evdev", b"pc105", layout.encode(), variant.encode(), b"")
    keymap = library.xkb_keymap_new_from_names(context, ctypes.byref(names), 0)
    if not keymap:
        sys.exit(f"no such layout: {layout} {variant}")
    return ctypes.c_void_p(keymap)


def symbol(library, keymap, code, level):
    symbols = ctypes.POINTER(ctypes.c_uint32)()
    count = library.xkb_keymap_key_get_syms_by_level(keymap, code, 0, level, ctypes.byref(symbols))
    return symbols[0] if count == 1 else 0


def describe(library, keysym):
    if not keysym:
        return "-", "-"
    buffer = ctypes.create_string_buffer(BUFFER)
    library.xkb_keysym_get_name(keysym, buffer, BUFFER)
    point = library.xkb_keysym_to_utf32(keysym)
    return buffer.value.decode(), f"U+{point:04X}" if point else "-"


def rows(library, keymap):
    for code in range(library.xkb_keymap_min_keycode(keymap), library.xkb_keymap_max_keycode(keymap) + 1):
        name = library.xkb_keymap_key_get_name(keymap, code)
        # The keys of the typing block, the arrows and the keypad; not the many keys that only laptops have.
        if not name or code > 119:
            continue
        cells = [cell for level in range(LEVELS) for cell in describe(library, symbol(library, keymap, code, level))]
        if cells[0] != "-":
            yield [str(code), ctypes.string_at(name).decode(), *cells]


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    library = load_library()
    keymap = compile_keymap(library, sys.argv[1], sys.argv[2] if len(sys.argv) == 3 else "")
    print("scan\tkey\talone\talone text\tshift\tshift text")
    for row in rows(library, keymap):
        print("\t".join(row))


main()
