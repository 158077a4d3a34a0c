# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Few rules that lay out many ranges.

A stretch is (low, high, layout) with all numbers from low to before high, as leading digits of one
fixed depth. A rule may lie on top of a wider one, which then goes on behind it.
"""

from functools import lru_cache

# Above this many stretches the best cover is searched for step by step only.
MOST_SEARCHED = 40


def cover(stretches, cost):
    """Rules as stretches, each before those it lies on, that lay out touching stretches.

    cost(layout) is what a rule of that layout takes. A layout of None may be laid out in any way.
    """
    known = [stretch for stretch in stretches if stretch[2] is not None]
    if not known:
        return None
    # What may be laid out in any way goes with the stretch before it.
    joined = []
    for low, high, layout in known:
        if joined and joined[-1][2] == layout:
            joined[-1] = (joined[-1][0], high, layout)
        else:
            low = joined[-1][1] if joined else stretches[0][0]
            joined.append((low, high, layout))
    low, _, layout = joined[-1]
    joined[-1] = (low, stretches[-1][1], layout)
    for i in range(len(joined) - 1):
        joined[i] = (joined[i][0], joined[i + 1][0], joined[i][2])
    return _cover(joined, cost)


def _cover(stretches, cost):
    if not stretches:
        return []
    if len(stretches) <= MOST_SEARCHED:
        return _best_cover(stretches, cost)
    counts = {}
    for _, _, layout in stretches:
        counts[layout] = counts.get(layout, 0) + cost(layout)
    base = max(sorted(counts), key=counts.get)
    places = [i for i, stretch in enumerate(stretches) if stretch[2] == base]
    inner = []
    for start, end in zip([-1] + places, places + [len(stretches)]):
        inner += _cover(stretches[start + 1 : end], cost)
    return inner + [(stretches[places[0]][0], stretches[places[-1]][1], base)]


def _best_cover(stretches, cost):
    layouts = [stretch[2] for stretch in stretches]

    @lru_cache(maxsize=None)
    def best(first, end):
        """Cost of the stretches from first to before end, and where the first one's rule goes on."""
        if first == end:
            return 0, None
        least = cost(layouts[first]) + best(first + 1, end)[0]
        following = None
        for other in range(first + 1, end):
            if layouts[other] == layouts[first]:
                total = best(first + 1, other)[0] + best(other, end)[0]
                if total < least:
                    least, following = total, other
        return least, following

    rules = []

    def collect(first, end, rule_low):
        if first == end:
            return
        following = best(first, end)[1]
        low = stretches[first][0] if rule_low is None else rule_low
        if following is None:
            collect(first + 1, end, None)
            rules.append((low, stretches[first][1], layouts[first]))
        else:
            collect(first + 1, following, None)
            collect(following, end, low)

    collect(0, len(stretches), None)
    # Narrow ones first: a rule lies on none that is narrower.
    return sorted(rules, key=lambda rule: rule[1] - rule[0])
