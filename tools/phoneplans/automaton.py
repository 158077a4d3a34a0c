# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Regular expressions over digits as lazily built automata."""

import re._constants as constants
import re._parser as parser

DIGITS = range(10)


class _Graph:
    """A nondeterministic automaton, built from Python's own parse of an expression."""

    def __init__(self):
        self.empty_steps = []
        self.digit_steps = []

    def add_state(self):
        self.empty_steps.append([])
        self.digit_steps.append([])
        return len(self.empty_steps) - 1

    def add_sequence(self, items, state):
        for operation, argument in items:
            state = self._add_item(operation, argument, state)
        return state

    def _add_item(self, operation, argument, state):
        if operation is constants.LITERAL:
            return self._add_digits({argument - ord("0")}, state)
        if operation is constants.IN:
            return self._add_digits(_digits_of_class(argument), state)
        if operation is constants.SUBPATTERN:
            return self.add_sequence(argument[3], state)
        if operation is constants.BRANCH:
            end = self.add_state()
            for branch in argument[1]:
                start = self.add_state()
                self.empty_steps[state].append(start)
                self.empty_steps[self.add_sequence(branch, start)].append(end)
            return end
        if operation is constants.MAX_REPEAT:
            least, most, body = argument
            for _ in range(least):
                state = self.add_sequence(body, state)
            end = self.add_state()
            self.empty_steps[state].append(end)
            for _ in range(int(most) - least):
                state = self.add_sequence(body, state)
                self.empty_steps[state].append(end)
            return end
        raise ValueError(f"{operation} does not occur in numbering plans")

    def _add_digits(self, digits, state):
        end = self.add_state()
        self.digit_steps[state] += [(digit, end) for digit in digits]
        return end


def _digits_of_class(items):
    digits = set()
    for operation, argument in items:
        if operation is constants.LITERAL:
            digits.add(argument - ord("0"))
        elif operation is constants.RANGE:
            digits.update(range(argument[0] - ord("0"), argument[1] - ord("0") + 1))
        elif operation is constants.CATEGORY:
            digits.update(DIGITS)
        else:
            raise ValueError(f"{operation} does not occur in numbering plans")
    return digits


class Automaton:
    """Deterministic states of the union of some expressions.

    With by_prefix whatever begins with a match is a match. A dead state is empty, hence false.
    """

    def __init__(self, expressions, by_prefix=False):
        self._graph = _Graph()
        self._by_prefix = by_prefix
        self._known_steps = {}
        start = self._graph.add_state()
        self._final = self._graph.add_state()
        for expression in expressions:
            end = self._graph.add_sequence(parser.parse(expression), start)
            self._graph.empty_steps[end].append(self._final)
        if by_prefix:
            self._graph.digit_steps[self._final] += [(digit, self._final) for digit in DIGITS]
        self.start = self._closed({start})

    def step(self, state, digit):
        known = self._known_steps.get((state, digit))
        if known is None:
            targets = {
                target
                for source in state
                for step_digit, target in self._graph.digit_steps[source]
                if step_digit == digit
            }
            known = self._known_steps[state, digit] = self._closed(targets)
        return known

    def accepts(self, state):
        return self._final in state

    def _closed(self, states):
        seen = set(states)
        waiting = list(states)
        while waiting:
            for target in self._graph.empty_steps[waiting.pop()]:
                if target not in seen:
                    seen.add(target)
                    waiting.append(target)
        if self._by_prefix and self._final in seen:
            return frozenset({self._final})
        return frozenset(seen)


def expand(expression, most):
    """All texts that the expression matches, longest first; none if they are more than most."""
    automaton = Automaton([expression])
    found = []
    waiting = [("", automaton.start)]
    while waiting:
        text, state = waiting.pop()
        if automaton.accepts(state):
            found.append(text)
        for digit in DIGITS:
            following = automaton.step(state, digit)
            if following:
                waiting.append((text + str(digit), following))
        if len(found) + len(waiting) > most * 10:
            return []
    return sorted(found, key=lambda text: (-len(text), text)) if len(found) <= most else []
