#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""tools/check-tests.py [FOLDER]

Fails when a tracked test does not lie where its subject lies: tests/model/UserTest.cpp belongs to
model/User. A test is named after its subject, to which it may add what it looks at, as
UserPhotoTest does; the longest name of a source that fits counts. A test of no single source lies in
the folder that mirrors one of sources.
"""

import collections
import pathlib
import re
import subprocess
import sys

SOURCES = {".cpp", ".h", ".qml"}
# Folders at the top whose sources are no test's subject.
APART = {"benchmarks", "cmake", "docs", "fuzz", "packaging", "resources", "tests", "tools"}


def tracked(root):
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "-z"], check=True, capture_output=True, text=True
    )
    return [pathlib.PurePosixPath(name) for name in listed.stdout.split("\0") if name]


def subject_of(claim, stems):
    """The longest stem with which the claim begins, as a word of its own; None without one."""
    ends = [match.start() for match in re.finditer(r"[A-Z0-9]|$", claim)]
    return next((claim[:end] for end in reversed(ends) if claim[:end] in stems), None)


def misplaced(files):
    """A line for each test that lies elsewhere than it should; and how many tests there are."""
    stems = collections.defaultdict(set)
    folders = set()
    for file in files:
        if file.suffix in SOURCES and len(file.parts) > 1 and file.parts[0] not in APART:
            stems[file.stem].add(file.parent)
            folders.add(file.parent)
    tests = [file for file in files if file.parts[0] == "tests" and file.name.endswith("Test.cpp")]
    complaints = []
    for test in tests:
        mirrored = test.parent.relative_to("tests")
        subject = subject_of(test.name.removesuffix("Test.cpp"), stems)
        if mirrored not in folders:
            complaints.append(f"{test}: there are no sources in {mirrored}")
        elif subject and mirrored not in stems[subject]:
            places = " or ".join(sorted(str(place) for place in stems[subject]))
            complaints.append(f"{test}: {subject} lies in {places}")
    return complaints, len(tests)


def main():
    root = sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent
    complaints, count = misplaced(tracked(root))
    for complaint in complaints:
        print(complaint)
    if count == 0:
        print("error: no test is tracked here", file=sys.stderr)
    if complaints or count == 0:
        sys.exit(1)
    print(f"{count} tests lie where their subjects lie.")


if __name__ == "__main__":
    main()
