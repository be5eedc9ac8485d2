"""Converts names of keys into keysym names of X."""

MODIFIERS = {"ctrl": "Control_L", "shift": "Shift_L", "alt": "Alt_L", "super": "Super_L", "meta": "Super_L"}
_KEYS = {"enter": "Return", "return": "Return", "esc": "Escape", "escape": "Escape", "tab": "Tab", "space": "space",
         "up": "Up", "down": "Down", "left": "Left", "right": "Right", "backspace": "BackSpace", "delete": "Delete",
         "home": "Home", "end": "End", "pageup": "Prior", "pagedown": "Next", ",": "comma", ".": "period",
         "-": "minus", "+": "plus", "/": "slash", "kp_enter": "KP_Enter", "menu": "Menu"}


def keysyms(combo):
    """'ctrl+shift+k' -> the X keysym names, modifiers first."""
    parts = combo.split("+") if combo != "+" else ["+"]
    return [MODIFIERS.get(p.lower()) or _KEYS.get(p.lower()) or p for p in parts]
