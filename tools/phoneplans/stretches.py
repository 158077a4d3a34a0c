# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Ranges of leading digits: (low, high, layout), from low to before high, as numbers of DEPTH digits."""

from numbering import masses

DEPTH = 7
ALL = 10**DEPTH


def of_tree(tree):
    """Where the tree's numbers lie, ascending; a range holds only one layout or is 1 wide."""
    result = []

    def walk(tree, low, size):
        if not isinstance(tree, int) and size > 1:
            for digit, child in enumerate(tree.children):
                walk(child, low + digit * size // 10, size // 10)
            return
        counts = {number_class: mass for number_class, mass in masses(tree).items() if number_class}
        if counts:
            add(result, low, low + size, max(sorted(counts), key=counts.get))

    walk(tree, 0, ALL)
    return result


def add(stretches, low, high, layout):
    """Appends a stretch, joined with the one before where that goes on."""
    if stretches and stretches[-1][1] == low and stretches[-1][2] == layout:
        stretches[-1] = (stretches[-1][0], high, layout)
    else:
        stretches.append((low, high, layout))


def runs(stretches):
    """Lists of stretches that touch."""
    result = []
    for stretch in stretches:
        if result and result[-1][-1][1] == stretch[0]:
            result[-1].append(stretch)
        else:
            result.append([stretch])
    return result


def digits_needed(low, high):
    """How many leading digits tell whether a number lies in the range."""
    needed = DEPTH
    while needed > 1 and low % 10 == 0 and high % 10 == 0:
        low, high, needed = low // 10, high // 10, needed - 1
    return needed


def prefixes(low, high):
    """The fewest leading digits that make up the range."""
    result = []
    while low < high:
        size = 1
        while size < ALL and low % (size * 10) == 0 and low + size * 10 <= high:
            size *= 10
        result.append(f"{low:0{DEPTH}}"[: DEPTH - len(str(size)) + 1])
        low += size
    return result


def range_of(prefix):
    """The range of the numbers that begin with the prefix, or with as much of it as counts."""
    prefix = prefix[:DEPTH]
    size = 10 ** (DEPTH - len(prefix))
    return int(prefix or "0") * size, (int(prefix or "0") + 1) * size
