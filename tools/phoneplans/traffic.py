# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Which numbers people type, and which wrong ones they are likely to: valid ones with a digit too few, one too many, or the
first two wrong. Ranges that few of them fall into need not be told from valid ones."""

import bisect
import random

from automaton import DIGITS
from numbering import masses

KINDS = ("fixed_line", "mobile", "toll_free")
SAMPLES_PER_KIND = 3000
# How much one wrong verdict counts, by how rare it is to be.
WEIGHT_SHORT = 1 / 0.0025
WEIGHT_LONG = 1 / 0.0020
WEIGHT_FIRST_DIGITS = 1 / 0.01


class Traffic:
    """Weights of ranges of leading digits, a sorted list of sample numbers for each length."""

    def __init__(self, numbering, depth):
        self._depth = depth
        self._samples = {}
        self._good = {}
        source = random.Random(numbering.code)
        samples = 0
        for region in numbering.regions:
            for kind in KINDS:
                for number in _numbers(numbering, region, kind, source):
                    samples += 1
                    self._good.setdefault(len(number), []).append(self._place(number))
                    self._add(number[:-1], WEIGHT_SHORT)
                    self._add(number + str(source.randrange(10)), WEIGHT_LONG)
                    self._add(f"{source.randrange(100):02}{number[2:]}", WEIGHT_FIRST_DIGITS)
        # Every country counts the same, however many kinds of number it has.
        scale = len(numbering.regions) / samples if samples else 0
        self._sums = {}
        for length, found in self._samples.items():
            found.sort()
            sums = [0.0]
            for _, weight in found:
                sums.append(sums[-1] + weight * scale)
            self._sums[length] = sums
        self._scale = scale
        for found in self._good.values():
            found.sort()

    def weight(self, length, low, high):
        """Of the numbers of that length from low to before high."""
        found = self._samples.get(length, [])
        first = bisect.bisect_left(found, (low, 0))
        last = bisect.bisect_left(found, (high, 0))
        return self._sums[length][last] - self._sums[length][first] if found else 0

    def share(self, length, low, high):
        """Of the right numbers of all lengths, those of that one from low to before high."""
        found = self._good.get(length, [])
        return (bisect.bisect_left(found, high) - bisect.bisect_left(found, low)) * self._scale

    def _add(self, number, weight):
        self._samples.setdefault(len(number), []).append((self._place(number), weight))

    def _place(self, number):
        return int(number[: self._depth].ljust(self._depth, "0"))


def _numbers(numbering, region, kind, source):
    trees = {
        length: tree
        for length in numbering.lengths
        if (tree := numbering.type_tree(region, kind, length))
    }
    if not trees:
        return
    lengths = sorted(trees)
    for _ in range(SAMPLES_PER_KIND):
        length = source.choice([lengths[-1], source.choice(lengths)])
        yield _number(trees[length], length, source, by_mass=source.random() < 0.5)


def _number(tree, length, source, by_mass):
    number = ""
    while len(number) < length:
        if isinstance(tree, int):
            digit = source.randrange(10)
        else:
            live = [digit for digit in DIGITS if _live(tree.children[digit])]
            weights = [masses(tree.children[digit])[1] if by_mass else 1 for digit in live]
            digit = source.choices(live, weights)[0]
            tree = tree.children[digit]
        number += str(digit)
    return number


def _live(tree):
    return masses(tree).get(1, 0) > 0
