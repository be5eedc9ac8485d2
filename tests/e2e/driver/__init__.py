"""Controls a desktop program from outside: with its own X server, window manager and session bus, keys and pointer
through XTest, screenshots and the accessibility tree. The program needs no support for it. Runs with the system's
python3, its standard library and gi.
"""
from .a11y import A11y, Node
from .app import App
from .session import Session
from .waiting import DriverError, median, wait_until

__all__ = ["A11y", "App", "DriverError", "Node", "Session", "median", "wait_until"]
