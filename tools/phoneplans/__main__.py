#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Writes the numbering plans that python3-phonenumbers knows as sources of the phone format file.

    /usr/bin/python3 tools/phoneplans FOLDER [PRICE]

One text file a calling code. PRICE says how many wrong verdicts are worth a rule: the greater, the
smaller the data file. What stands in the folder's files of those names is lost.
"""

import pathlib
import sys

from numbering import Numbering, calling_codes
from rules import Planner
from source_text import source_text
from stretches import DEPTH
from traffic import Traffic

USUAL_PRICE = 0.06
HEADING = """\
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""


def main(arguments):
    if not 1 <= len(arguments) <= 2:
        print(__doc__.strip(), file=sys.stderr)
        return 2
    folder = pathlib.Path(arguments[0])
    price = float(arguments[1]) if len(arguments) == 2 else USUAL_PRICE
    folder.mkdir(parents=True, exist_ok=True)
    for code in calling_codes():
        numbering = Numbering(code)
        strokes = Planner(numbering, Traffic(numbering, DEPTH), price).strokes()
        text = HEADING + source_text(numbering, strokes)
        (folder / f"{code}.txt").write_text(text, encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
