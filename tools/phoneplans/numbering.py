# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""What python3-phonenumbers knows of a calling code, as trees over the digits of a number.

A tree is a class where all numbers below are of one, or a Node with ten subtrees. Class 0 is no number;
the others are positions in Numbering.layouts.
"""

import re

from phonenumbers import PhoneMetadata
from phonenumbers.data import _COUNTRY_CODE_TO_REGION_CODE

from automaton import DIGITS, Automaton, expand

TYPES = (
    "fixed_line mobile toll_free premium_rate shared_cost voip personal_number pager uan voicemail"
).split()
# More prefixes for calls abroad than this are those of carriers that nobody types.
MOST_ACCESS_CODES = 40


def calling_codes():
    """Those of countries and territories; what belongs to none is left out."""
    return sorted(
        code for code, regions in _COUNTRY_CODE_TO_REGION_CODE.items() if regions != ("001",)
    )


class Node:
    __slots__ = ("children", "masses")

    def __init__(self, children):
        self.children = children
        self.masses = None


def masses(tree):
    """What part of the numbers below is of each class."""
    if isinstance(tree, int):
        return {tree: 1.0}
    if tree.masses is None:
        tree.masses = {}
        for child in tree.children:
            for number_class, mass in masses(child).items():
                tree.masses[number_class] = tree.masses.get(number_class, 0) + mass / 10
    return tree.masses


class _Trees:
    """Makes equal trees one object."""

    def __init__(self):
        self._known = {}

    def node(self, children):
        children = tuple(children)
        if all(isinstance(child, int) and child == children[0] for child in children):
            return children[0]
        return self._known.setdefault(children, Node(children))


class Layout:
    """How one class of numbers is written inside its country and abroad.

    written_with tells which trunk prefix the national form begins with. If moved is set, the digits of
    the national form are not those of the number: moved(prefix) gives the national ones for a
    prefix of the number, or None while that is too short.
    """

    def __init__(self, national, international, written_with, moved):
        self.national = national
        self.international = international
        self.written_with = written_with
        self.moved = moved

    @property
    def patterns(self):
        return self.national, self.international

    def behind(self, trunk):
        """The national form of a number that begins with the digits of a trunk prefix but is not
        written with one: what is typed is taken for the prefix and the rest."""
        pattern = "n" + self.national.replace("#", "", len(trunk))

        def moved(prefix):
            return prefix[len(trunk) :] if prefix.startswith(trunk) else None

        return Layout(pattern, self.international, trunk, moved)

    @property
    def is_single(self):
        """Whether the national pattern serves both."""
        return not self.moved and re.sub("n ?", "", self.national) == self.international


class Numbering:
    def __init__(self, code):
        self.code = str(code)
        self.regions = _COUNTRY_CODE_TO_REGION_CODE[code]
        self._metadata = [PhoneMetadata.metadata_for_region(region) for region in self.regions]
        self._main = self._metadata[0]
        self._national_formats = list(self._main.number_format)
        self._international_formats = list(self._main.intl_number_format) or self._national_formats
        self._leading = {}
        self._class_of_layout = {}
        self.layouts = [None]
        self.lengths = sorted(
            {length for data in self._metadata for kind in TYPES for length in _lengths(data, kind)}
        )
        self.trees = {length: self._tree(length) for length in self.lengths}
        self._add_completed()

    @property
    def countries(self):
        return sorted(region.lower() for region in self.regions)

    @property
    def trunk_prefixes(self):
        """First those that layouts write, then the one that the plan names."""
        written = [layout.written_with for layout in self.layouts[1:] if layout.written_with]
        named = self._main.national_prefix
        if named and named != self.code and not self._begins_number_without_trunk(named):
            written.append(named)
        return sorted(dict.fromkeys(written), key=lambda prefix: -len(prefix))

    @property
    def access_codes(self):
        preferred = (self._main.preferred_international_prefix or "").replace("~", "")
        codes = [
            text
            for text in expand(self._main.international_prefix, MOST_ACCESS_CODES)
            if len(text) <= max(5, len(preferred))
            and (text == preferred or len(text) < 4 or not self._begins_number_without_trunk(text))
        ]
        if not codes:
            codes = [preferred or "00"]
        if preferred and preferred not in codes:
            codes.append(preferred)
        return codes

    def _begins_number_without_trunk(self, prefix):
        def reaches(tree, rest):
            if isinstance(tree, int) or not rest:
                return any(
                    number_class and not self.layouts[number_class].written_with
                    for number_class in masses(tree)
                )
            return reaches(tree.children[int(rest[0])], rest[1:])

        return any(reaches(tree, prefix) for tree in self.trees.values())

    def _add_completed(self):
        """Numbers without the digits that every one of their kind begins with are numbers too."""
        rule = re.fullmatch(r"(\d+)\\1", self._main.national_prefix_transform_rule or "")
        short = re.search(r"\(([^()]+)\)\$$", self._main.national_prefix_for_parsing or "")
        if not rule or not short:
            return
        left_out = rule.group(1)
        for length, tree in list(self.trees.items()):
            for digit in left_out:
                tree = tree if isinstance(tree, int) else tree.children[int(digit)]
            whole = length - len(left_out)
            if whole in self.trees or not tree:
                continue
            valid = [(Automaton([short.group(1)]), Automaton([f"\\d{{{whole}}}"]))]
            layouts = (
                self._formats(self._national_formats, whole),
                self._formats(self._international_formats, whole),
            )
            shortened = self._walk(
                whole, valid, *layouts, lambda *formats: self._class(whole, *formats)
            )
            for longer in (other for other in self.lengths if other > whole):
                shortened = self._like_longer(shortened, self.trees[longer], whole, _Trees())
            self.trees[whole] = shortened
            self.lengths = sorted(self.trees)

    def _like_longer(self, tree, longer, length, trees):
        """The tree laid out like what longer numbers with the same digits are as far as they go, so
        that the layout does not jump as the number grows."""
        if not tree or not longer:
            return tree
        if isinstance(longer, int) and isinstance(tree, int):
            known = self.layouts[longer]
            layout = Layout(
                truncated(known.national, length),
                truncated(known.international, length),
                known.written_with,
                None,
            )
            return self._class_of(layout)
        return trees.node(
            self._like_longer(child, other, length, trees)
            for child, other in zip(_children(tree), _children(longer))
        )

    def type_tree(self, region, kind, length):
        """Class 1 for the numbers of one type and country, of one length."""
        data = PhoneMetadata.metadata_for_region(region)
        return self._walk(
            length, self._validity([data], [kind], length), [], [], lambda *_: 1
        )

    @staticmethod
    def _validity(metadata, kinds, length):
        result = []
        for data in metadata:
            expressions = [
                getattr(data, kind).national_number_pattern
                for kind in kinds
                if length in _lengths(data, kind)
            ]
            if expressions:
                general = Automaton([data.general_desc.national_number_pattern])
                result.append((general, Automaton(expressions)))
        return result

    def _tree(self, length):
        return self._walk(
            length,
            self._validity(self._metadata, TYPES, length),
            self._formats(self._national_formats, length),
            self._formats(self._international_formats, length),
            lambda national, international: self._class(length, national, international),
        )

    def _formats(self, formats, length):
        """The formats for that length, each with the automaton of its leading digits."""
        result = []
        for number_format in formats:
            if re.fullmatch(number_format.pattern, "1" * length):
                leading = (number_format.leading_digits_pattern or [""])[-1]
                if leading not in self._leading:
                    self._leading[leading] = Automaton([leading], by_prefix=True)
                result.append((number_format, self._leading[leading]))
        return result

    @staticmethod
    def _walk(length, validity, national, international, classify):
        trees = _Trees()
        known = {}

        def decided(formats, states):
            """The states without those that no longer matter, since a format before them fits."""
            result = []
            for (_, automaton), state in zip(formats, states):
                result.append(state)
                if automaton.accepts(state):
                    break
            return tuple(result + [frozenset()] * (len(states) - len(result)))

        def chosen(formats, states):
            for (number_format, automaton), state in zip(formats, states):
                if automaton.accepts(state):
                    return number_format
            return None

        def walk(valid_states, national_states, international_states, left):
            if not any(general and typed for general, typed in valid_states):
                return 0
            key = (valid_states, national_states, international_states, left)
            if key in known:
                return known[key]
            if left:
                result = trees.node(
                    walk(
                        tuple(
                            (general.step(one, digit), typed.step(other, digit))
                            for (general, typed), (one, other) in zip(validity, valid_states)
                        ),
                        decided(national, _stepped(national, national_states, digit)),
                        decided(
                            international, _stepped(international, international_states, digit)
                        ),
                        left - 1,
                    )
                    for digit in DIGITS
                )
            elif any(
                general.accepts(one) and typed.accepts(other)
                for (general, typed), (one, other) in zip(validity, valid_states)
            ):
                result = classify(
                    chosen(national, national_states), chosen(international, international_states)
                )
            else:
                result = 0
            known[key] = result
            return result

        return walk(
            tuple((general.start, typed.start) for general, typed in validity),
            tuple(automaton.start for _, automaton in national),
            tuple(automaton.start for _, automaton in international),
            length,
        )

    def _class(self, length, national, international):
        return self._class_of(self._layout(length, national, international))

    def _class_of(self, layout):
        key = (layout.patterns, layout.written_with, bool(layout.moved))
        if key not in self._class_of_layout:
            self._class_of_layout[key] = len(self.layouts)
            self.layouts.append(layout)
        return self._class_of_layout[key]

    def _layout(self, length, national, international):
        plain = "#" * length
        abroad = plain
        if international:
            groups = _group_lengths(international.pattern, length)
            template = international.format
            if "1" not in re.findall(r"\\(\d)", template):
                # A layout can put no digit aside.
                template = r"\1 " + template
            abroad = _with_groups(template, groups)
        if not national:
            return Layout(plain, abroad, None, None)
        groups = _group_lengths(national.pattern, length)
        template = national.format
        rule = national.national_prefix_formatting_rule
        if rule:
            template = re.sub(
                r"\\\d", lambda found: rule.replace(r"\1", found.group()), template, count=1
            )
        template, trunk = self._with_trunk_mark(template)
        at_home = _with_groups(template, groups)
        moved = _mover(template, groups)
        at_home = re.sub(r"\d", "#", at_home)
        if at_home.startswith("n#"):
            at_home = at_home[1:]
        return Layout(at_home, abroad, trunk, moved)

    def _with_trunk_mark(self, template):
        """The template with "n" for the trunk prefix at its front, and that prefix."""
        front = re.match(r"\(?(\d+)", template)
        if not front:
            return template, None
        trunk = front.group(1)
        named = self._main.national_prefix
        if named and trunk.startswith(named):
            trunk = named
        return template.replace(trunk, "n", 1), trunk


def truncated(pattern, length):
    """What the pattern makes of a number of fewer digits."""
    place = -1
    for _ in range(length):
        place = pattern.index("#", place + 1)
    return pattern[: place + 1] + (")" if pattern[place + 1 : place + 2] == ")" else "")


def _children(tree):
    return [tree] * 10 if isinstance(tree, int) else tree.children


def _stepped(formats, states, digit):
    return tuple(
        automaton.step(state, digit) for (_, automaton), state in zip(formats, states)
    )


def _lengths(data, kind):
    description = getattr(data, kind)
    if not description or not description.national_number_pattern:
        return []
    general = data.general_desc.possible_length
    return [length for length in description.possible_length if length in general]


def _group_lengths(pattern, length):
    return [len(group) for group in re.fullmatch(pattern, "1" * length).groups()]


def _with_groups(template, lengths):
    return re.sub(r"\\(\d)", lambda found: "#" * lengths[int(found.group(1)) - 1], template)


def _mover(template, lengths):
    """How the digits of a number move in the template, or None where they stay as they are."""
    pieces = re.findall(r"\\\d|\d+", template)
    starts = [sum(lengths[:group]) for group in range(len(lengths))]
    if pieces == [f"\\{group + 1}" for group in range(len(lengths))]:
        return None
    # Before this many digits it is not certain what the last literal stands behind.
    needed = 0
    for before, piece in zip(pieces, pieces[1:]):
        if piece[0] != "\\" and before[0] == "\\":
            group = int(before[1:]) - 1
            needed = max(needed, starts[group] + lengths[group])
    needed = max(needed, 1)

    def moved(prefix):
        if len(prefix) < needed:
            return None
        result = ""
        for piece in pieces:
            if piece[0] == "\\":
                group = int(piece[1:]) - 1
                result += prefix[starts[group] : starts[group] + lengths[group]]
            else:
                result += piece
        return result

    return moved
