#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""tools/check-theme.py [FOLDER]

Fails when a tracked QML file that ships names a colour itself: "#102030", "white", Qt.rgba(...). Its
place is toolkit/view/Palette.cpp, under the name of what it is for. "transparent" is none, and what
is made of another colour, as Qt.alpha(Theme.ink, 0.5), is welcome. Fails, too, when a page has a
number where toolkit/view/ThemeValues.h has a name for it: a radius, a size of text, a duration.
"""

import pathlib
import re
import subprocess
import sys

LITERAL = re.compile(
    r"""Qt\.(?:rgba|rgb|hsla|hsva|color)\(           # a colour by its components
    | "\#[0-9a-fA-F]{3,8}"                         # by its number
    | \b\w*(?:[cC]olor|[tT]int|[gG]round|[sS]hade)  # by its name, where a colour is told
      \s*:[^"]*"(?!transparent")[a-z]+"
    """,
    re.VERBOSE,
)

NAMED = re.compile(r"constexpr (?:int|double) k(\w+?(Radius|Size|Duration)) = (\d+);")
NUMBER = {
    "Radius": r"(?<![.\w])radius: {}\b",
    "Size": r"(?:[pP]oints: |[fF]ont\(){}\b",
    "Duration": r"\bduration: {}\b",
}


def named_numbers(root):
    header = root / "toolkit/view/ThemeValues.h"
    for name, kind, value in NAMED.findall(header.read_text(encoding="utf-8")):
        yield name[0].lower() + name[1:], re.compile(NUMBER[kind].format(value))


def complaints(root, files):
    named = list(named_numbers(root))
    for file in files:
        lines = (root / file).read_text(encoding="utf-8").splitlines()
        for number, line in enumerate(lines, start=1):
            code = line.partition("//")[0]
            if found := LITERAL.search(code):
                yield f"{file}:{number}: {found.group()}"
            for name, pattern in named:
                if found := pattern.search(code):
                    yield f"{file}:{number}: {found.group()} is Theme.{name}"


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__).resolve()
    if root.is_file():
        root = root.parent.parent
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "-z", "--", "*.qml", ":!tests"],
        check=True, capture_output=True, text=True,
    )
    files = [name for name in listed.stdout.split("\0") if name]
    found = list(complaints(root, files))
    for complaint in found:
        print(complaint)
    if not files:
        print("error: no QML file is tracked here", file=sys.stderr)
    elif not found:
        print(f"{len(files)} QML files take colours, radii, sizes and durations from the theme.")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main())
