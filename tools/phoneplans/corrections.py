# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""What is put right by hand in the sources: for a calling code what stands there, once, and what is to
stand in its place, and what is to stand behind all the rest."""

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

# No number has so many digits, so that a rule for them lays out what is typed but vouches for nothing.
_NEVER_REACHED = 47
_GREATEST = 2**31 - 1


def _unassigned(low, high, *layouts):
    """Sets that lay numbers of prefixes that are not assigned, from low to high, out like the others
    and leave what is longer than these as it is. Each layout is a prefix and a pattern."""
    length = layouts[0][1].count("#")
    prefix = layouts[0][0] if len(layouts) == 1 else "both"
    lines = [
        "# What begins like no number is laid out like the others, and longer than those it stays bare.",
        "# No number has as many digits as these rules, so that they make none whole.",
        f"set {length + 1}",
        f"  0-{_GREATEST}  {prefix}  \"{'#' * _NEVER_REACHED}\"",
        f"set {len(str(low))}",
    ]
    for kind, pattern in layouts:
        lines.append(f"  {low}-{high}  {kind}  \"{pattern}{'#' * (_NEVER_REACHED - length)}\"")
    return "\n".join(lines) + "\n"


ADDITIONS = {
    "1": _unassigned(200, 999, ("trunk", "(###) ###-####"), ("intl", "###-###-####")),
    "7": _unassigned(1000, 9999, ("trunk", "n (###) ###-##-##"), ("intl", "### ###-##-##")),
    "34": _unassigned(100, 999, ("any", "### ## ## ##")),
    "41": _unassigned(100, 999, ("any", "## ### ## ##")),
    "45": _unassigned(10, 99, ("any", "## ## ## ##")),
    "52": _unassigned(1000, 9999, ("both", "### ### ####")),
    "61": _unassigned(1000, 9999, ("trunk", "(n#) #### ####"), ("intl", "# #### ####")),
    "65": _unassigned(1000, 9999, ("any", "#### ####")),
    "90": _unassigned(100, 999, ("trunk", "(n###) ### ## ##"), ("intl", "### ### ## ##")),
    "351": _unassigned(1000, 9999, ("any", "### ### ###")),
}


def corrected(code, text):
    if code in CORRECTIONS:
        old, new = CORRECTIONS[code]
        if text.count(old) != 1:
            raise ValueError(f"calling code {code}: the correction has no place")
        text = text.replace(old, new)
    return text + ADDITIONS.get(code, "")
