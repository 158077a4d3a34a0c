# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""What is put right by hand in the sources: for a calling code what stands there, once, and what is to
stand in its place."""

CORRECTIONS = {
    "1": (
        """\
set 3
  310  both  "###-####"
""",
        """\
# A number of one's own area is typed without the area code. The rule for 310, which is called from
# abroad too, keeps the other from counting for numbers with the calling code.
set 3
  310  both  "###-####"
  200-999  trunk  "###-####"
""",
    ),
}


def corrected(code, text):
    if code not in CORRECTIONS:
        return text
    old, new = CORRECTIONS[code]
    if text.count(old) != 1:
        raise ValueError(f"calling code {code}: the correction has no place")
    return text.replace(old, new)
