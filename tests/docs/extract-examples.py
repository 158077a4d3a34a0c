# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Takes the examples out of headers and documents, for the sources beside this file to include.

    extract-examples.py PROJECT-FOLDER OUTPUT-FOLDER FILE...

An example of a header is what its comments indent by three blanks or more behind an empty line; one
of a document is a block fenced as cpp or qml. The n-th example of FILE becomes OUTPUT-FOLDER/FILE.n,
in which `{ ... }`, code that is left out, is `{}`, and OUTPUT-FOLDER/FILE.n.text, which is the same
as a string literal. OUTPUT-FOLDER/all has them all, for the build to know whether any has changed.
An example that no source includes is an error.
"""

import pathlib
import re
import sys
import textwrap

COMMENT = re.compile(r"\s*///?(?: (.*))?$")
FENCE = re.compile(r"```(\w*)$")
INCLUDE = re.compile(r'^#include "examples/(.+\.\d+)(?:\.text)?"$', re.MULTILINE)


def in_header(lines):
    """Yields number of the first line and lines of each example, as indented."""
    first, found, after_empty = 0, [], False
    for number, line in enumerate([*lines, ""], 1):
        comment = COMMENT.match(line)
        text = comment and (comment[1] or "")
        if comment and (text.startswith("  ") or found and not text):
            if not found and after_empty:
                first, found = number, [text]
            elif found:
                found.append(text)
        elif found:
            yield first, found
            found = []
        after_empty = comment and not text


def in_document(lines):
    language, first, found = None, 0, []
    for number, line in enumerate(lines, 1):
        fence = FENCE.match(line)
        if fence and language is None:
            language, first, found = fence[1], number + 1, []
        elif fence:
            if language in ("cpp", "qml"):
                yield first, found
            language = None
        else:
            found.append(line)


def write(path, text):
    """Leaves a file alone that says so already, so that nothing is compiled anew for it."""
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


def main(project, output, *files):
    project, output = pathlib.Path(project), pathlib.Path(output)
    sources = pathlib.Path(__file__).parent.glob("*.cpp")
    included = {name for source in sources for name in INCLUDE.findall(source.read_text("utf-8"))}
    missed = 0
    together = ""
    for file in files:
        lines = (project / file).read_text(encoding="utf-8").splitlines()
        examples = in_header(lines) if file.endswith(".h") else in_document(lines)
        for index, (first, found) in enumerate(examples, 1):
            name = f"{file}.{index}"
            if name not in included:
                print(f"{file}:{first}: no source of tests/docs includes this example, examples/{name}")
                missed += 1
            example = textwrap.dedent("\n".join(found)).strip() + "\n"
            place = f"// {file}:{first}\n"
            together += place + example
            write(output / name, place + example.replace("{ ... }", "{}"))
            write(output / f"{name}.text", f'{place}R"example({example.rstrip()})example"\n')
    if missed:
        return 1
    write(output / "all", together)
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
