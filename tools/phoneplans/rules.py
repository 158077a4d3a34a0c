# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""The rules of a calling code, as few as its byte price asks for."""

import bisect
from dataclasses import dataclass

from cover import cover
from numbering import truncated
from stretches import DEPTH, add, digits_needed, of_tree, prefixes, range_of, runs

ANY, TRUNK, INTL, BOTH = "any", "trunk", "intl", "both"
# A rule that shows a layout earlier is worth it from this many keys for each number of the country.
LEAST_GAIN = 0.02
# Runs of more stretches are compared by their ends only.
MOST_COMPARED = 24


@dataclass
class Stroke:
    """One layout over one range, for numbers of one length."""

    length: int
    low: int
    high: int
    layout: object
    match: int
    moved: bool = False


class Planner:
    def __init__(self, numbering, traffic, price):
        """price is the weight of wrong verdicts that is worth one rule."""
        self._numbering = numbering
        self._traffic = traffic
        self._price = price
        self._layouts_behind = {}
        self._stretches = {
            length: of_tree(tree) for length, tree in numbering.trees.items() if tree
        }

    def strokes(self):
        """In the order in which they are to be tried."""
        ascending = self._ascending()
        descending = self._descending()
        best = min((ascending, descending), key=self._cost_of)
        return best + self._moved()

    def _cost_of(self, strokes):
        return sum(self._cost(stroke.layout) for stroke in strokes)

    def _cost(self, layout):
        entry = self._numbering.layouts[layout]
        return 1 if entry.is_single or entry.moved else 2

    def _ascending(self):
        """Each length by itself, shorter ones first."""
        result = []
        for length in sorted(self._stretches):
            result += self._covered(length, self._stretches[length])
        return result

    def _descending(self):
        """Longer ones first: where their layout suits shorter ones too, those need none of their
        own. Where it does not, the shorter ones stand before all."""
        before = []
        result = []
        for length in sorted(self._stretches, reverse=True):
            wanted = []
            apart = []
            formatted = _Coverage(before, result)
            for low, high, layout in self._stretches[length]:
                for start, end, other in formatted.parts(low, high):
                    if other is None:
                        add(wanted, start, end, layout)
                        continue
                    add(wanted, start, end, None)
                    if not self._suits(other, layout, length):
                        add(apart, start, end, layout)
            result += self._covered(length, wanted)
            before = self._covered(length, apart, fills=False) + before
        return before + result

    def _suits(self, longer, layout, length):
        shown = self._numbering.layouts[longer]
        wanted = self._numbering.layouts[layout]
        return bool(shown.moved) == bool(wanted.moved) and all(
            truncated(one, length) == other
            for one, other in zip(shown.patterns, wanted.patterns)
            if one.count("#") >= length
        )

    def _covered(self, length, stretches, fills=True):
        joined = runs(stretches)
        if fills:
            joined = self._filled(length, joined)
        result = []
        for run in joined:
            rules = cover(run, self._cost)
            if rules is None:
                rules = [(run[0][0], run[-1][1], self._usual(length, run))]
            result += self._with_matches(length, rules)
        result += [early for stroke in result for early in self._early(stroke)]
        return sorted(result, key=lambda stroke: (-stroke.match, stroke.high - stroke.low))

    def _early(self, stroke):
        """A stroke below the given one that needs fewer digits, if it shows the layout of many
        numbers sooner."""
        pattern = self._numbering.layouts[stroke.layout].international
        first_group = len(pattern) - len(pattern.lstrip("#"))
        best = None
        best_gain = LEAST_GAIN
        for match in range(1, stroke.match):
            size = 10 ** (DEPTH - match)
            low, high = -(-stroke.low // size) * size, stroke.high // size * size
            keys = stroke.match - max(match, first_group + 1)
            if low >= high or keys < 1 or match < self._in_brackets(stroke.layout, stroke.length):
                continue
            gain = keys * self._traffic.share(stroke.length, low, high)
            if gain > best_gain:
                best = Stroke(stroke.length, low, high, stroke.layout, match)
                best_gain = gain
        return [best] if best else []

    def _usual(self, length, run):
        """The layout of the greatest part of the run."""
        sizes = {}
        for low, high, layout in self._stretches[length]:
            overlap = min(high, run[-1][1]) - max(low, run[0][0])
            if overlap > 0:
                sizes[layout] = sizes.get(layout, 0) + overlap
        return max(sorted(sizes), key=sizes.get)

    def _in_brackets(self, layout, length):
        """Digits up to the closing bracket. With fewer it would already be closed, behind blanks."""
        pattern = self._numbering.layouts[layout].national
        return min(pattern.partition(")")[0].count("#"), length, DEPTH) if ")" in pattern else 0

    def _with_matches(self, length, rules):
        """Strokes that compare enough digits; one that lies on another no fewer than that."""
        result = []
        for low, high, layout in sorted(rules, key=lambda rule: rule[0] - rule[1]):
            match = max(digits_needed(low, high), self._in_brackets(layout, length))
            for below in result:
                if below.low <= low and high <= below.high:
                    match = max(match, below.match)
            result.append(Stroke(length, low, high, layout, match))
        return result

    def _filled(self, length, joined):
        """Joins runs where the numbers between them are too rarely typed to be told apart."""
        gaps = []
        for i in range(len(joined) - 1):
            low, high = joined[i][-1][1], joined[i + 1][0][0]
            gaps.append((self._traffic.weight(length, low, high), i))
        owner = list(range(len(joined)))
        content = dict(enumerate(joined))

        def root(i):
            while owner[i] != i:
                owner[i] = owner[owner[i]]
                i = owner[i]
            return i

        for weight, i in sorted(gaps):
            if weight > 2 * self._price:
                break
            left, right = root(i), i + 1
            together = (
                content[left]
                + [(content[left][-1][1], content[right][0][0], None)]
                + content[right]
            )
            saved = self._saved(content[left], content[right], together)
            if saved > 0 and weight <= saved * self._price:
                owner[right] = left
                content[left] = together
                del content[right]
        return [content[i] for i in sorted(content)]

    def _saved(self, left, right, together):
        if len(together) > MOST_COMPARED:
            one, other = left[-1][2], right[0][2]
            if one is None or other is None:
                return 1
            return self._cost(one) if one == other else 0
        return (
            self._price_of_cover(left)
            + self._price_of_cover(right)
            - self._price_of_cover(together)
        )

    def _price_of_cover(self, run):
        rules = cover(run, self._cost)
        return 1 if rules is None else sum(self._cost(rule[2]) for rule in rules)

    def _moved(self):
        """The national forms whose digits are not those of the number."""
        found = {}
        for length, stretches in self._stretches.items():
            for low, high, layout in stretches:
                for moving in self._moving(low, high, layout):
                    entry = self._numbering.layouts[moving]
                    for prefix in prefixes(low, high):
                        for national in _moved_prefixes(entry.moved, prefix, length):
                            place = range_of(national)
                            found.setdefault(entry.national.count("#"), {})[place] = moving
        result = []
        for length in sorted(found):
            places = self._not_laid_out(length, found[length])
            stretches = []
            for (low, high), layout in sorted(places.items()):
                if stretches and low < stretches[-1][1]:
                    continue
                add(stretches, low, high, layout)
            for stroke in self._covered_moved(length, stretches):
                result.append(stroke)
        return result

    def _moving(self, low, high, layout):
        """The layouts that numbers of a stretch have in the country if they are typed there with
        other digits."""
        entry = self._numbering.layouts[layout]
        if entry.moved:
            return [layout]
        result = []
        if not entry.written_with:
            for trunk in self._numbering.trunk_prefixes:
                start, end = range_of(trunk)
                if start < high and low < end:
                    result.append(self._behind(layout, trunk))
        return result

    def _behind(self, layout, trunk):
        key = (layout, trunk)
        if key not in self._layouts_behind:
            self._layouts_behind[key] = len(self._numbering.layouts)
            self._numbering.layouts.append(self._numbering.layouts[layout].behind(trunk))
        return self._layouts_behind[key]

    def _covered_moved(self, length, stretches):
        result = []
        for run in runs(stretches):
            for stroke in self._with_matches(length, cover(run, lambda layout: 1)):
                stroke.moved = True
                result.append(stroke)
        return sorted(result, key=lambda stroke: (-stroke.match, stroke.high - stroke.low))

    def _not_laid_out(self, length, places):
        """Those that numbers which do not move are not laid out like anyway."""
        known = [
            stretch
            for stretch in self._stretches.get(length, [])
            if not self._numbering.layouts[stretch[2]].moved
        ]
        lows = [stretch[0] for stretch in known]
        result = {}
        for (low, high), layout in places.items():
            i = bisect.bisect_right(lows, low) - 1
            pattern = self._numbering.layouts[layout].national
            if (
                i >= 0
                and high <= known[i][1]
                and (
                    self._numbering.layouts[known[i][2]].national == pattern
                    or self._numbering.layouts[known[i][2]].written_with
                )
            ):
                continue
            result[low, high] = layout
        return result


def _moved_prefixes(moved, prefix, length):
    """The national prefixes that the numbers with the prefix have."""
    national = moved(prefix)
    if national is not None:
        return [national]
    if len(prefix) >= length or len(prefix) >= DEPTH:
        return []
    return [
        found for digit in "0123456789" for found in _moved_prefixes(moved, prefix + digit, length)
    ]


class _Coverage:
    """What strokes in their order make of numbers that are no longer than any of them."""

    def __init__(self, *groups):
        strokes = [stroke for group in groups for stroke in group]
        self._bounds = sorted({bound for stroke in strokes for bound in (stroke.low, stroke.high)})
        self._layouts = [None] * len(self._bounds)
        for stroke in reversed(strokes):
            first = bisect.bisect_left(self._bounds, stroke.low)
            last = bisect.bisect_left(self._bounds, stroke.high)
            self._layouts[first:last] = [stroke.layout] * (last - first)

    def parts(self, low, high):
        """The parts of a range with the layout of each, None where there is none."""
        i = bisect.bisect_right(self._bounds, low)
        while low < high:
            end = min(high, self._bounds[i]) if i < len(self._bounds) else high
            yield low, end, self._layouts[i - 1] if i else None
            low = end
            i += 1
