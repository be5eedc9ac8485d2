"""Counts lengths in QML that are written as numbers, and not as tokens of the theme.

A binding of a size (width, height, x, y, margin, padding, spacing, radius, offset, implicit sizes) should name what its
length means: a token (`Metrics.rowGap`), or a named property of the component for a length that only this component
has. The numbers 0 and 1 and the factor or divisor 2 carry no length of their own and do not count.
"""
import os
import re

# In the folders that are listed here there is at most one number for so many tokens.
TOKENS_FOR_ONE_NUMBER = 10
FOLDERS = ("src/screens/issues",)

SIDE = "(?:left|right|top|bottom|horizontal|vertical)?"
SIZE = re.compile(rf"(?:\w+\s*\.\s*)?(?:x|y|width|height|(?:implicit|minimum|maximum|content)(?:Width|Height)"
                  rf"|{SIDE}[pP]adding|{SIDE}[mM]argins?|(?:horizontal|vertical)CenterOffset|(?:row|column|line)?[sS]pacing"
                  rf"|radius)\s*:")
TOKEN = re.compile(r"\bMetrics\s*\.\s*\w+")
NUMBER = re.compile(r"(?<![\w.])\d+(?:\.\d+)?(?![\w.])")


def numbers_in(expression):
    """The numbers of an expression that are lengths."""
    for found in NUMBER.finditer(expression):
        before, after = expression[:found.start()].rstrip(), expression[found.end():].lstrip()
        is_half_or_double = found.group() == "2" and (before.endswith(("/", "*")) or after.startswith("*"))
        if found.group() not in ("0", "1") and not is_half_or_double:
            yield found


def sizes_in(code, parts, binding):
    """Where the expressions of all size bindings begin, and their texts; nested objects included."""
    for part in parts:
        head = SIZE.match(code, part.start, part.end) if part.kind == binding else None
        if head and not part.bodies:
            yield head.end(), code[head.end():part.end]
        for body in part.bodies:
            yield from sizes_in(code, body, binding)


class LengthCount:
    """The tokens and numbers in the files of one folder."""

    def __init__(self, folder):
        self.folder, self.tokens, self.numbers = folder, 0, []

    def add(self, path, code, parts, binding):
        if not path.startswith(self.folder + "/"):
            return
        for start, expression in sizes_in(code, parts, binding):
            self.tokens += len(TOKEN.findall(expression))
            self.numbers += [f"{path}:{code.count(chr(10), 0, start + found.start()) + 1}"
                             for found in numbers_in(expression)]

    def faults(self):
        if len(self.numbers) * TOKENS_FOR_ONE_NUMBER > self.tokens:
            yield (f"{self.folder}: {len(self.numbers)} lengths are numbers and {self.tokens} are tokens, but one number "
                   f"for {TOKENS_FOR_ONE_NUMBER} tokens is the limit: {', '.join(self.numbers)}")
