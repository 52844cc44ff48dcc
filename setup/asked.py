#!/usr/bin/env python3
"""Looks in the routines that ask the database (src/platform/data/asked.h) for what the compiler lets pass:
what the header says to keep to. Prints FILE:LINE: what is wrong, and ends with 1 where it finds something.

    setup/asked.py            all sources
    setup/asked.py FILE...    those
"""
import re
import subprocess
import sys
from pathlib import Path

TOKEN = re.compile(r"""(?P<drop>//[^\n]*|/\*.*?\*/|\#[^\n]*(?:\\\n[^\n]*)*|\s+)
  |(?P<text>(?:u8|u|U|L)?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|(?:u8|u|U|L)?"(?:[^"\\]|\\.)*"|'(?:[^'\\]|\\.)+')
  |(?P<word>[A-Za-z_]\w*)|(?P<number>\d[\w.']*)|(?P<sign>->|::|<<|&&|.)""", re.S | re.X)
OPEN, CLOSE = "([{", ")]}"
CONTROL = {"if", "for", "while", "switch", "catch", "constexpr"}
AFTER_PARAMETERS = {"const", "noexcept", "override", "final", "mutable"}
VIEWS = {"QStringView", "QLatin1StringView", "QByteArrayView", "QAnyStringView", "string_view", "span", "initializer_list"}
OUTSIDE = {"files", "QFile", "QFileInfo", "QDir", "QSaveFile", "celulaFoto", "LocalizaImagemProduto",
           "LocalizaImagemPrototipo", "carregaFigura", "avisa", "pergunta", "msgBox", "inputBox", "WaitPointer"}


class Source:
    def __init__(self, text):
        self.tokens, self.lines = [], []
        for match in TOKEN.finditer(text):
            if match["drop"] is None:
                self.tokens.append('""' if match["text"] else match[0])
                self.lines.append(text.count("\n", 0, match.start()) + 1)
        self.partner, self.parent, stack = {}, [], []
        for at, token in enumerate(self.tokens):
            if token in CLOSE and stack:
                opened = stack.pop()
                self.partner[opened], self.partner[at] = at, opened
            self.parent.append(stack[-1] if stack else None)
            if token in OPEN:
                stack.append(at)

    def parameters(self, brace):
        """Where the "(" of a routine's parameters stands whose body begins at `brace`: -1 for a lambda without
        any, None where the brace opens no routine."""
        at = brace - 1
        arrow = at
        while arrow > 0 and self.tokens[arrow] not in ";{}=":
            if self.tokens[arrow] == "->" and self.tokens[arrow - 1] in {")", *AFTER_PARAMETERS}:
                at = arrow - 1
                break
            arrow = self.partner.get(arrow, arrow) - 1 if self.tokens[arrow] in CLOSE else arrow - 1
        while at > 0 and self.tokens[at] in AFTER_PARAMETERS:
            at -= 1
        if self.tokens[at] == "]":
            return -1
        opened = self.partner.get(at) if self.tokens[at] == ")" else None
        return None if opened is None or self.tokens[opened - 1] in CONTROL else opened

    def is_block(self, brace):
        """Whether a brace holds statements, as against values."""
        if self.parameters(brace) is not None or self.tokens[brace - 1] in {")", "else", "do", "try", ";", "}", ":"}:
            return True
        return self.tokens[brace - 1] == "{" and self.is_block(brace - 1)

    def routine_of(self, at):
        while (at := self.parent[at]) is not None:
            if self.tokens[at] == "{" and self.parameters(at) is not None:
                return at
        return None

    def statement(self, at):
        """The places of the statement around a token."""
        def ends(place):
            return self.tokens[place] == ";" or (self.tokens[place] in "{}" and self.is_block(
                place if self.tokens[place] == "{" else self.partner.get(place, place)))
        first = last = at
        while first > 0 and not ends(first - 1):
            first -= 1
        while last + 1 < len(self.tokens) and not ends(last + 1):
            last += 1
        return range(first, last + 1)


def parameter_faults(source, opened):
    depth = 0
    for at in range(opened + 1, source.partner[opened]):
        token = source.tokens[at]
        depth += (token in "<([{") - (token in ">)]}")
        if depth == 0 and token in {"&", "&&", "*"}:
            yield "takes a reference or a pointer: by value, for it goes on when its caller's have changed"
        if depth == 0 and token in VIEWS:
            yield "takes a view: a QString by value, or a Literal"


def faults(text):
    source = Source(text)
    routines = {}
    for at, token in enumerate(source.tokens):
        if token in {"co_await", "co_return"} and (routine := source.routine_of(at)) is not None:
            routines.setdefault(routine, []).append(at)
    for routine, places in routines.items():
        opened = source.parameters(routine)
        bracket = routine - 1 if opened == -1 else opened - 1
        if source.tokens[bracket] == "]" and bracket - source.partner[bracket] > 1:
            yield source.lines[routine], "is a lambda with captures, which are gone when it goes on"
        for fault in parameter_faults(source, opened) if opened >= 0 else ():
            yield source.lines[opened], fault
        for at in range(routine, source.partner[routine]):
            token = source.tokens[at]
            if source.routine_of(at) != routine:
                continue
            if token == "waitFor":
                yield source.lines[at], "waits by waitFor, each time for a request of its own: co_await it"
            if token in OUTSIDE or (token == "form" and source.tokens[at - 2:at] == ["forms", "::"]):
                yield source.lines[at], f"touches a file or a screen ({token}): who takes the answers does"
        for at in (place for place in places if source.tokens[place] == "co_await"):
            statement = [source.tokens[place] for place in source.statement(at)]
            if "?" in statement:
                yield source.lines[at], "awaits beside ?:, whose texts are freed twice: name the answer"
            if "<<" in statement:
                yield source.lines[at], "awaits in a chain of <<: name the answer"
            if "{" in statement:
                yield source.lines[at], "awaits beside braces of values: name the answer"


def main():
    root = Path(__file__).resolve().parent.parent
    names = sys.argv[1:] or subprocess.run(
        ["git", "-C", root, "ls-files", "src/*.cpp", "tests/*.cpp", "tools/*.cpp", "bench/*.cpp"],
        capture_output=True, text=True, check=True).stdout.split()
    found = [f"{name}:{line}: {fault}" for name in names for line, fault in sorted(set(faults((root / name).read_text())))]
    print("\n".join(found), end="\n" if found else "")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
