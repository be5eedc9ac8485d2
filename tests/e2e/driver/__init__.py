"""Drives a desktop program from outside, as a person would: an X server, a window manager and a session bus of its own,
keys and pointer by XTest, pictures of the screen, and the accessible tree to see with. It needs no hook in the program.
Runs with the system's python3, its standard library and gi.
"""
from .a11y import A11y, Node
from .app import App
from .session import Session
from .waiting import DriverError, median, wait_until

__all__ = ["A11y", "App", "DriverError", "Node", "Session", "median", "wait_until"]
