#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Refuses a wrong arrow between the folders of the tree.

    tools/check-arrows.py BUILD-FOLDER [TOP-FOLDER]

What each object really included stands in the dependency log of a build by Ninja, what each target
declares in BUILD-FOLDER/targets.json. A target reads the headers of its own folder and of the
folders that it links, directly or through others, and links no floor above its own. What the files
of a folder include or import themselves, their own targets link themselves, and nothing else; tests
need not.
"""

import collections
import functools
import json
import os
import re
import subprocess
import sys

# Bottom to top. A folder stands on the floor of the longest name that leads to it.
FLOORS = (
    "platform",
    "platform/services",
    "platform/fakes",
    "platform/qt",
    "layout",
    "toolkit/view",
    "toolkit/collection",
    "toolkit/controllers",
    "toolkit/quick",
    "toolkit/hosts",
    "photos",
    "model",
    "phoneformat",
    "effects/keyframes",
    "effects/scratch",
    "effects/springy",
    "effects/qt",
    "alerts/helpers",
    "alerts/card",
    "alerts/legacy",
    "alerts/qt",
    "app",
    "screens/shared",
    "screens/picker",
    "screens/invite",
    "screens/newchallenge",
    "screens/badges",
    "screens/create",
    "screens/inprogress",
    "screens/challenges",
    "gallery",
    "main",
)
# Tests of the floors below this one link nothing of it or above it.
THE_APP = "app"

# All of the project that these may link besides themselves.
ONLY = {
    "platform": (),
    "layout": (),
    "toolkit": ("platform", "layout"),
    "photos": ("platform", "toolkit"),
    "model": ("platform",),
    "phoneformat": (),
    "effects": ("platform", "toolkit"),
    "alerts": ("platform", "toolkit", "effects/keyframes", "effects/qt"),
    "gallery": ("platform", "toolkit", "phoneformat", "effects", "alerts", "app"),
}
# What these link for those who use them as components, though their own files do not need it.
BRING_ALONG = {"effects/qt": ("effects/springy",)}
# They stand in for a phone in tests.
FAKES = ("platform/fakes",)

# Modules of Qt that these may not link, not even through others. The longest name counts.
NO_QT = re.compile(r"Qt6::")
NO_QT_QUICK = re.compile(r"Qt6::Quick")
ANY = re.compile(r"(?!)")
BANNED = {
    "platform": NO_QT,
    "platform/qt": NO_QT_QUICK,
    "layout": NO_QT,
    "toolkit/view": NO_QT,
    "toolkit/collection": NO_QT,
    "toolkit/controllers": NO_QT_QUICK,
    "model": NO_QT,
    "phoneformat": NO_QT,
    "effects": NO_QT,
    "effects/qt": ANY,
    "alerts": NO_QT,
    "alerts/qt": ANY,
}

# They stand beside the house: they link what they want, and nobody in it links them.
BESIDE = ("tests", "benchmarks", "fuzz", "packaging")

# The entry point is read by its own tests alone.
MAIN = "main"
READS_MAIN = ("main", "tests")

# Flags and precompiled headers of libraries, which belong to no folder.
NO_FOLDER = re.compile(r"kindora_(options|headers_\w+)$")


def longest(names, path):
    """The longest of the names that is the path or leads to it, or None."""
    fitting = (name for name in names if path == name or path.startswith(name + "/"))
    return max(fitting, key=len, default=None)


class Targets:
    """What the targets declare."""

    def __init__(self, written):
        self._external = written["external"]
        self.folder = {
            target["name"]: target["folder"]
            for target in written["targets"]
            if not NO_FOLDER.match(target["name"])
        }
        self.links = {
            target["name"]: [
                link
                for link in target["links"]
                if link.startswith("Qt6::") or link in self.folder
            ]
            for target in written["targets"]
            if target["name"] in self.folder
        }
        self.in_folder = collections.defaultdict(list)
        for name, folder in self.folder.items():
            self.in_folder[folder].append(name)

    @functools.cache
    def closure(self, name):
        """All that the target links, directly or through others, and itself."""
        found, left = set(), [name]
        while left:
            link = left.pop()
            if link not in found:
                found.add(link)
                left += self.links.get(link, self._external.get(link, ()))
        return found

    @functools.cache
    def folders(self, name):
        """The folders whose headers the target may read."""
        return {self.folder[link] for link in self.closure(name) if link in self.folder}

    @functools.cache
    def linked_by(self, folder):
        """The folders that the folder's own targets name, and itself."""
        linked = (self.folder.get(link) for name in self.in_folder[folder] for link in self.links[name])
        return {folder, *linked}

    @functools.cache
    def owner(self, path):
        """The folder with a target that the file belongs to, or None."""
        return longest(self.in_folder, os.path.dirname(path))


class Tree:
    """Where files lie, by the names that the dependency log has for them."""

    def __init__(self, top, build):
        self._top = os.path.realpath(top)
        self._build = os.path.realpath(build)

    @functools.cache
    def path(self, name):
        """The path from the top folder; None for generated files; absolute if it is foreign."""
        whole = os.path.realpath(os.path.join(self._build, name))
        if whole.startswith(self._build + os.sep):
            return None
        if whole.startswith(self._top + os.sep):
            return os.path.relpath(whole, self._top)
        return whole

    @functools.cache
    def included(self, path):
        """The names in the include directives of a file of the project."""
        with open(os.path.join(self._top, path), encoding="utf-8", errors="replace") as file:
            return re.findall(r'^\s*#\s*include\s*[<"]([^>"]+)[>"]', file.read(), re.MULTILINE)


    @functools.cache
    def included_files(self, path):
        """The files of the project in the include directives of one of them, from the top folder or
        from the file's own.
        """
        found = []
        for name in self.included(path):
            for start in ("", os.path.dirname(path)):
                file = os.path.normpath(os.path.join(start, name))
                if os.path.isfile(os.path.join(self._top, file)):
                    found.append(file)
                    break
        return found

    @functools.cache
    def imported(self, path):
        """The modules of the project that a QML file imports."""
        with open(os.path.join(self._top, path), encoding="utf-8") as file:
            return re.findall(r"^\s*import\s+(Kindora(?:\.\w+)+)", file.read(), re.MULTILINE)

    @functools.cache
    def modules(self, path):
        """The modules of the project that a file names, which in CMake are those that it passes on."""
        with open(os.path.join(self._top, path), encoding="utf-8") as file:
            return re.findall(r"\bKindora(?:\.\w+)+", file.read())

    def files(self, folder, kinds=(".h", ".cpp")):
        """The files of these kinds that lie in the folder itself."""
        names = sorted(os.listdir(os.path.join(self._top, folder)))
        return [f"{folder}/{name}" for name in names if name.endswith(kinds)]


Record = collections.namedtuple("Record", "object target source read")


def sources_of(stem, read):
    """The sources that the object of that name was made from: its own, or those joined in it."""
    if re.fullmatch(r"unity_\w+\.cxx", stem):
        return [file for file in read if file.endswith(".cpp")]
    return [file for file in read if os.path.basename(file) == stem][:1]


def records(log, tree):
    """What the log, as `ninja -t deps` prints it, tells of objects made from tracked sources; a record
    for each source.
    """
    for block in re.split(r"\n(?=\S)", log):
        heading, *names = block.rstrip("\n").split("\n")
        made = re.match(r"(.*CMakeFiles/([^/]+)\.dir/.*): #deps \d+, .*\(VALID\)$", heading)
        if not made:
            continue
        paths = [tree.path(name[4:]) for name in names if name.startswith("    ")]
        read = [file for file in paths if file]
        for source in sources_of(os.path.basename(made[1]).removesuffix(".o"), read):
            if not os.path.isabs(source):
                yield Record(made[1], made[2], source, read)


def module_folder(uri):
    """Where a QML module of the project lies: Kindora.Toolkit.Hosts in toolkit/hosts."""
    folder = uri.removeprefix("Kindora.").replace(".", "/").lower()
    return folder + "/qt" if folder in ("alerts", "effects") else folder


def qt_module(path):
    """The target of the Qt module that a foreign header belongs to, or None."""
    found = re.search(r".*/Qt([A-Z]\w*)(?:\.framework)?/", path)
    if found:
        return "Qt6::" + found[1]
    return "Qt6::Core" if re.search(r"/qt\d*/", path, re.IGNORECASE) else None


def cycles(targets):
    """Each circle of declared links once, as the names along it."""
    done, path = set(), []

    def visit(name):
        if name in path:
            yield [*path[path.index(name) :], name]
        elif name not in done:
            path.append(name)
            for link in targets.links.get(name, ()):
                yield from visit(link)
            path.pop()
            done.add(name)

    for name in sorted(targets.links):
        yield from visit(name)


def link_error(folder, linked):
    """What is wrong with a link from one folder to another, or None."""
    floor, above = longest(FLOORS, folder), longest(FLOORS, linked)
    if longest(BESIDE, linked):
        return "stands beside the house"
    if longest(FAKES, linked) and not longest(FAKES, folder):
        return "is for what stands beside the house"
    if above and FLOORS.index(above) > FLOORS.index(floor):
        return f"lies in {linked}, above it"
    room = longest(ONLY, folder)
    if room and not longest((room, *ONLY[room]), linked):
        return f"lies in {linked}, and {room} may link {' and '.join(ONLY[room]) or 'nothing'}"
    return None


def declared_errors(targets):
    """What is wrong in the declarations alone."""
    for circle in cycles(targets):
        yield f"{' -> '.join(circle)}: a circle of links"
    for name, folder in sorted(targets.folder.items()):
        if longest(BESIDE, folder):
            yield from test_errors(targets, name, folder)
            continue
        if not longest(FLOORS, folder):
            yield f"{folder}/CMakeLists.txt: {name} lies on no floor of the table"
            continue
        for link in targets.links[name]:
            wrong = link in targets.folder and link_error(folder, targets.folder[link])
            if wrong:
                yield f"{folder}/CMakeLists.txt: {name} links {link}, which {wrong}"
        banned = BANNED.get(longest(BANNED, folder), ANY)
        for link in sorted(targets.closure(name)):
            if banned.match(link):
                yield f"{folder}/CMakeLists.txt: {name} links {link}, which {folder} must not know"


def test_errors(targets, name, folder):
    tested = longest(FLOORS, folder.removeprefix("tests/"))
    roof = FLOORS.index(THE_APP)
    if not tested or FLOORS.index(tested) >= roof:
        return
    for linked in sorted(targets.folders(name)):
        floor = longest(FLOORS, linked)
        if floor and FLOORS.index(floor) >= roof:
            yield f"{folder}/CMakeLists.txt: {name} links {linked}, above what it tests"


def includer(record, fits, tree):
    """The first file of the project that the object read and that includes what fits."""
    for path in record.read:
        if not os.path.isabs(path) and any(map(fits, tree.included(path))):
            return path
    return record.source


def lacks_link(path, header, targets):
    folder, wanted = targets.owner(path), min(targets.in_folder[targets.owner(header)], key=len)
    return f"{path}: includes {header}, but {folder} does not link {wanted}"


def written_errors(targets, tree):
    """What is wrong with the includes and imports that stand in the files of the house, whether an
    object has read them or not.
    """
    for folder in sorted(targets.in_folder):
        if longest(BESIDE, folder):
            continue
        linked = targets.linked_by(folder)
        for path in tree.files(folder):
            for name in tree.included_files(path):
                if targets.owner(name) not in (None, *linked):
                    yield lacks_link(path, name, targets)
        through = {room for name in targets.in_folder[folder] for room in targets.folders(name)}
        for path in tree.files(folder, (".qml",)):
            for uri in tree.imported(path):
                if module_folder(uri) not in through:
                    yield f"{path}: imports {uri}, but {folder} does not link it"


def unused_errors(targets, tree):
    """Links of the house that no file of their folder has a use for, and that would license arrows."""
    for name, folder in sorted(targets.folder.items()):
        if longest(BESIDE, folder):
            continue
        used = {targets.owner(file) for path in tree.files(folder) for file in tree.included_files(path)}
        described = tree.files(folder, (".qml", "CMakeLists.txt"))
        used |= {module_folder(uri) for path in described for uri in tree.modules(path)}
        for link in targets.links[name]:
            linked = targets.folder.get(link, folder)
            if linked not in (folder, *used, *BRING_ALONG.get(folder, ())):
                yield f"{folder}/CMakeLists.txt: {name} links {link}, which no file there uses"


def header_error(record, header, folders, targets, tree):
    """What is wrong with a header of the project that an object read, or None."""
    owner = targets.owner(header)
    beside = longest(BESIDE, record.source)
    to_main = owner == MAIN and not longest(READS_MAIN, record.source)
    shared = beside and longest(BESIDE, header)
    if (owner in folders or shared) and not to_main:
        return None
    by = includer(record, header.endswith, tree)
    if owner is None:
        return f"{by}: includes {header}, which no target owns"
    if to_main:
        return f"{by}: includes {header}, which only tests may"
    return lacks_link(by, header, targets)


def read_errors(record, targets, tree):
    """What is wrong with what an object read."""
    if record.target not in targets.folder:
        yield f"{record.source}: {record.target} does not stand in targets.json"
        return
    closure, folders = targets.closure(record.target), targets.folders(record.target)
    modules = collections.defaultdict(list)
    for header in record.read:
        if os.path.isabs(header):
            modules[qt_module(header)].append(header)
            continue
        wrong = header_error(record, header, folders, targets, tree)
        if wrong:
            yield wrong
    for module, headers in modules.items():
        if module and module not in closure and module + "Private" not in closure:
            names = {os.path.basename(header) for header in headers}
            by = includer(record, lambda name: os.path.basename(name) in names, tree)
            what = f"{os.path.basename(headers[0])} of Qt"
            yield f"{by}: includes {what}, but {targets.owner(by)} does not link {module}"


def unrecorded(objects, log):
    """Those of the objects that the build should have made but has no valid record of."""
    valid = set(re.findall(r"^(\S.*): #deps \d+, .*\(VALID\)$", log, re.MULTILINE))
    return [name for name in objects if name not in valid]


def run_ninja(build, *arguments):
    command = ["ninja", "-C", build, "-t", *arguments]
    return subprocess.run(command, check=True, capture_output=True, encoding="utf-8").stdout


def main(arguments):
    if len(arguments) not in (2, 3):
        print(__doc__, file=sys.stderr)
        return 2
    build = arguments[1]
    top = arguments[2] if len(arguments) == 3 else os.path.join(os.path.dirname(__file__), "..")
    with open(os.path.join(build, "targets.json"), encoding="utf-8") as file:
        targets = Targets(json.load(file))
    log = run_ninja(build, "deps")
    objects = re.findall(r"^(.*CMakeFiles/.*\.dir/.*\.o)$", run_ninja(build, "inputs", "all"), re.M)
    missing = unrecorded(objects, log)
    if not objects or missing:
        what = f"{len(missing)} objects, {missing[0]} among them" if missing else "any object"
        print(f"error: {build} has no record of {what}; build all of it first", file=sys.stderr)
        return 1
    tree = Tree(top, build)
    known = list(records(log, tree))
    errors = dict.fromkeys(declared_errors(targets))
    errors.update(dict.fromkeys(written_errors(targets, tree)))
    errors.update(dict.fromkeys(unused_errors(targets, tree)))
    for record in known:
        errors.update(dict.fromkeys(read_errors(record, targets, tree)))
    if not known:
        errors["no object was made from a source of the project"] = None
    print(*errors, sep="\n", end="\n" if errors else "")
    if not errors:
        print(f"{len(known)} sources of {len(targets.folder)} targets know only what they declare.")
    return 1 if errors else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
