"""Finds the bodies of the functions of a C++ or Objective-C++ source, without compiling it.

It follows the braces of the source. What stands before a brace tells whether it opens a namespace or a class, the body
of a function or of a lambda, or something else: an initialiser, a member initialiser, an enumeration.
"""
import collections
import re

Function = collections.namedtuple("Function", "name first_line lines")

# Comments, literals and directives; whichever begins first hides what the others would match inside of it.
TEXT = re.compile(r"""
    //(?:\\\n|[^\n])*
  | /\*.*?\*/
  | (?<![A-Za-z0-9_])(?:u8|u|U|L)?R"(?P<mark>[^()\\\s]{0,16})\(.*?\)(?P=mark)"
  | "(?:\\.|[^"\\\n])*"
  | (?<![A-Za-z0-9_])(?:u8|u|U|L)?'(?:\\.|[^'\\\n])*'
  | ^[ \t]*\#(?:\\\n|//[^\n]*|/\*.*?\*/|[^\n])*
""", re.VERBOSE | re.DOTALL | re.MULTILINE)
TOKEN = re.compile(r"[A-Za-z_]\w*|\d[\w'.]*|::|->|&&|\[\[|\]\]|[^\s\w]")
MACRO = re.compile(r"Q_\w+$|[A-Z][A-Z0-9_]+$")
TAKES_BRACKETS = {"decltype", "alignas", "explicit", "noexcept"}
BRACKETS = {"(": ")", "[": "]", "[[": "]]"}
ACCESS = {"public", "protected", "private", "signals", "slots", "Q_SIGNALS", "Q_SLOTS"}
# What may stand between the parameters of a function and its body, beside a return type.
SPECIFIERS = {"const", "volatile", "noexcept", "override", "final", "mutable", "constexpr", "consteval", "static", "try",
              "&", "&&"}
SCOPE, BODY, OTHER = "scope", "body", "other"


def without_text(source):
    """The source without comments, literals and directives; the lines of the rest stay as they are numbered."""
    return TEXT.sub(lambda found: (" " if found.group().lstrip()[0] in "/#" else '""') + "\n" * found.group().count("\n"),
                    source)


def tokens(source):
    """(token, number of its line) one after the other."""
    line, at = 1, 0
    code = without_text(source)
    for found in TOKEN.finditer(code):
        line += code.count("\n", at, found.start())
        at = found.start()
        yield found.group(), line


def closing_index(head, opening):
    """The place in the head of the bracket that closes the one at the place `opening`."""
    depth = 0
    for at in range(opening, len(head)):
        depth += (head[at] in BRACKETS) - (head[at] in BRACKETS.values())
        if depth == 0:
            return at
    return len(head) - 1


def opening_index(head, closing):
    """The place in the head of the bracket that the one at the place `closing` closes; -1 where there is none."""
    depth = 0
    for at in range(closing, -1, -1):
        depth += (head[at] in BRACKETS.values()) - (head[at] in BRACKETS)
        if depth == 0:
            return at
    return -1


def without_macros(head):
    """The head without what stands before a declaration and has brackets of its own: MACRO(...), decltype(...)."""
    kept, at = [], 0
    while at < len(head):
        end = closing_index(head, at + 1) if head[at + 1:at + 2] == ["("] else at
        is_followed = end > at and re.match(r"[A-Za-z_~]|\[\[", "".join(head[end + 1:end + 2])) is not None \
            and head[end + 1] not in SPECIFIERS
        if head[at] in TAKES_BRACKETS and end > at:
            kept.append(head[at])
            at = end
        elif MACRO.match(head[at]) and is_followed:
            at = end
        else:
            kept.append(head[at])
        at += 1
    return kept


def without_brackets(head):
    """The words of the head that stand in no brackets, `()` in the place of what stood in round ones."""
    outer, depth = [], 0
    for token in head:
        depth -= token in BRACKETS.values()
        if depth == 0 and token not in BRACKETS and token not in ("]", "]]"):
            outer.append("()" if token == ")" else token)
        depth += token in BRACKETS
    return outer


def without_template(words):
    """The words without `template <...>` before them."""
    while words[:1] == ["template"]:
        depth = 0
        for at, word in enumerate(words):
            depth += (word == "<") - (word == ">")
            if word == ">" and depth == 0:
                break
        words = words[at + 1:]
    return words


def is_lambda(head):
    """Whether a brace after this head opens the body of a lambda: [...] or [...](...), specifiers, a return type."""
    at = len(head) - 1
    for result in (place for place, token in enumerate(head) if token == "->" and place > 0):
        if head[result - 1] == ")" or head[result - 1] in SPECIFIERS:
            at = result - 1
    while at >= 0 and head[at] in SPECIFIERS:
        at -= 1
    if at >= 0 and head[at] == ")":
        at = opening_index(head, at) - 1
    if at >= 0 and head[at] == ">":
        while at >= 0 and head[at] != "]":
            at -= 1
    if at < 0 or head[at] != "]":
        return False
    start = opening_index(head, at)
    before = head[start - 1] if start > 0 else ""
    return not re.match(r"[A-Za-z_)\]]", before) or before in ("return", "co_return", "co_await")


def kind_of_brace(head, is_in_brackets):
    """What a brace in a scope opens, after the tokens since the end of the declaration before it."""
    if is_lambda(head):
        return BODY
    words = without_template(without_brackets(head))
    if is_in_brackets or not words or "enum" in words or words[-1] in ("requires", ","):
        return OTHER
    if words[0] == "namespace" or words[:2] == ["inline", "namespace"] or words[0] == "extern" and len(words) == 3:
        return SCOPE
    if is_function(words):
        return BODY
    return SCOPE if {"class", "struct", "union"} & set(words) and "=" not in words else OTHER


def is_function(words):
    """Whether a brace after these words opens the body of a function, and not one of its member initialisers."""
    if "=" not in words and any(pair in (("-", "()"), ("+", "()")) for pair in zip(words, words[1:])):
        return True    # a method of Objective-C
    if "operator" in words:
        after = words.index("operator") + 1
        words = words[:after] + words[max(at for at in range(len(words)) if words[at] == "()"):]
    if "()" not in words or "=" in words or {"concept", "requires"} & set(words[-2:]):
        return False
    tail = words[words.index("()") + 1:]
    if ":" in tail:
        return words[-1] in ("()", "{}", "try")
    return "->" in tail or all(word in SPECIFIERS or word == "()" for word in tail) or "requires" in words


def name_of(head):
    """The name that the head of a function gives it."""
    if is_lambda(head):
        return "a lambda"
    text = " ".join(head)
    test = re.search(r"(TEST\w*) \( (\w+) , (\w+)", text)
    if test:
        return "%s(%s, %s)" % test.groups()
    named = re.search(r"((?:[\w~]+ (?:< [^()]* > )?:: )*(?:operator .*?|~ \w+|\w+)) \((?! \) \()", text)
    return named.group(1).replace(" :: ", "::").replace("~ ", "~") if named else text


class Reader:
    """Follows the tokens of a source and collects its functions."""

    def __init__(self):
        self.functions = []
        self.scopes = []    # of each open scope: the head before its brace
        self.head = []      # the tokens since the last declaration ended
        self.brackets = 0   # how many brackets of the head are open

    def read(self, stream):
        for token, line in stream:
            if token == "{":
                self.open(stream, line)
            elif token == "}":
                self.start_declaration()
            elif token == ";" and self.brackets == 0:
                self.start_declaration()
            elif token == ":" and self.head and self.head[-1] in ACCESS:
                self.start_declaration()
            else:
                self.brackets += (token in BRACKETS) - (token in BRACKETS.values())
                self.head.append(token)
        return self.functions

    def start_declaration(self):
        self.head, self.brackets = [], 0

    def open(self, stream, first_line):
        self.head = without_macros(self.head)
        kind = kind_of_brace(self.head, self.brackets > 0)
        if kind == SCOPE:
            self.start_declaration()
            return
        inner = self.inner_of(stream, first_line, kind == BODY)
        if kind == BODY:
            name = name_of(self.head)
            self.functions.append(Function(name, first_line, inner - first_line + 1))
        if kind == BODY and self.brackets == 0 and name != "a lambda":
            self.start_declaration()
        else:
            self.head.append("{}")

    def inner_of(self, stream, line, is_body):
        """Reads up to the brace that closes the one just opened; the number of its line."""
        nested = Reader()
        for token, line in stream:
            if token == "}":
                break
            if token == "{":
                if not is_body and is_lambda(nested.head):
                    nested.open(stream, line)
                else:
                    nested.inner_of(stream, line, is_body)
                    nested.head.append("{}")
            else:
                nested.head.append(token)
        if not is_body:
            self.functions += nested.functions
        return line


def functions(source):
    """The functions of a source that stand in no other function. `lines` counts those of both braces too."""
    return Reader().read(tokens(source))
