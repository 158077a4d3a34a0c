# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Writes a calling code's rules as the text from which the data file is made."""

from corrections import corrected
from rules import ANY, BOTH, INTL, TRUNK
from stretches import DEPTH


def source_text(numbering, strokes):
    lines = [f"code {numbering.code}", "countries " + " ".join(numbering.countries)]
    if numbering.trunk_prefixes:
        lines.append("trunk " + " ".join(numbering.trunk_prefixes))
    lines.append("access " + " ".join(numbering.access_codes))
    used = [numbering.layouts[stroke.layout] for stroke in strokes]
    flagged = not all(layout.is_single for layout in used)
    for (match, _, _), group in _sets(strokes):
        lines.append(f"set {match}")
        for stroke in group:
            layout = numbering.layouts[stroke.layout]
            for prefix, pattern in _patterns(layout, stroke.moved, flagged):
                lines.append(f"  {_range(stroke, match)}  {prefix}  \"{pattern}\"")
        if any(stroke.moved for stroke in group):
            # No number has this range; without such a rule those for trunk prefixes would count
            # for numbers with the calling code too.
            lines.append(f"  {10**match}  {BOTH}  \"{numbering.layouts[group[0].layout].national}\"")
    return corrected(numbering.code, "\n".join(lines) + "\n")


def _sets(strokes):
    """Strokes that follow each other with the same digits compared and the same length."""
    result = []
    for stroke in strokes:
        key = (stroke.match, stroke.length, stroke.moved)
        if not result or result[-1][0] != key:
            result.append((key, []))
        result[-1][1].append(stroke)
    for _, group in result:
        group.sort(key=lambda stroke: (stroke.high - stroke.low, stroke.low))
        if _disjoint(group):
            group.sort(key=lambda stroke: stroke.low)
    return result


def _disjoint(group):
    ordered = sorted(group, key=lambda stroke: stroke.low)
    return all(one.high <= other.low for one, other in zip(ordered, ordered[1:]))


def _patterns(layout, moved, flagged):
    if moved:
        return [(TRUNK, layout.national)]
    if layout.moved:
        return [(INTL, layout.international)]
    if layout.is_single:
        return [(BOTH if flagged else ANY, layout.national)]
    return [(TRUNK, layout.national), (INTL, layout.international)]


def _range(stroke, match):
    size = 10 ** (DEPTH - match)
    low, last = stroke.low // size, stroke.high // size - 1
    return f"{low:0{match}}" if low == last else f"{low:0{match}}-{last:0{match}}"
