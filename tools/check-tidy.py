#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Runs clang-tidy over the sources that ship and that a configured tree compiles.

    tools/check-tidy.py BUILD-FOLDER [FILE...]

Nearly all of clang-tidy's time goes into the headers of Qt and of the standard library, which it
walks anew for each source. So sources are joined in units that include many of them; what cannot
stand in one unit with the others, for a name that both keep to themselves, goes into the next one.
Named FILEs are looked at each by itself.
"""

import collections
import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile

TOP = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SHIPPED = (
    "alerts", "app", "effects", "gallery", "layout", "main", "model", "phoneformat", "photos",
    "platform", "screens", "toolkit",
)
FLAG = re.compile(r"-(D|I|std=|f(?!sanitize|no-sanitize|no-omit|lto))")
PLACE = re.compile(r"^(.+?):\d+:\d+: (?:fatal )?error: ")
# What clang-tidy says of what it left out of foreign headers tells nothing of this project.
CHATTER = re.compile(r"^\d+ (warnings?|errors?).* generated\.$|^Suppressed |^Use -header-filter")


def flags_of(command):
    """The flags that say how a source is read. Headers precompiled by another compiler are no use."""
    words = shlex.split(command["command"])
    flags = []
    for word, after in zip(words, words[1:] + [""]):
        if word in ("-isystem", "-I"):
            flags.append(word + after if word == "-I" else "-isystem" + after)
        elif FLAG.match(word) and word != "-I":
            flags.append(word)
    return flags


def sources_of(compiled):
    """What is compiled with that file: itself, or the sources that the build has joined in it."""
    if not re.fullmatch(r"unity_\w+\.cxx", os.path.basename(compiled)):
        return [compiled]
    with open(compiled, encoding="utf-8") as file:
        return re.findall(r'^#include "(.+)"$', file.read(), re.MULTILINE)


def commands(build):
    """By path from the top folder, in the order of the paths: the flags of each shipped source."""
    tracked = subprocess.run(
        ["git", "ls-files", "-z", "--", *(folder + "/*.cpp" for folder in SHIPPED)],
        cwd=TOP, check=True, capture_output=True, text=True).stdout.split("\0")
    with open(os.path.join(build, "compile_commands.json"), encoding="utf-8") as file:
        read = {os.path.relpath(path, TOP): each for each in json.load(file)
                for path in sources_of(each["file"])}
    return {path: flags_of(read[path]) for path in sorted(tracked) if path in read}


def level(flags):
    """Sources with other foreign headers are no company for each other."""
    for macro in ("QT_QUICK_LIB", "QT_CORE_LIB"):
        if "-D" + macro in flags:
            return macro
    return ""


def joined(flags_by_file, files):
    return list(dict.fromkeys(flag for file in files for flag in flags_by_file[file]))


def write_unit(folder, files):
    handle, path = tempfile.mkstemp(suffix=".cpp", dir=folder)
    with os.fdopen(handle, "w", encoding="utf-8") as file:
        file.writelines(f'#include "{os.path.join(TOP, each)}"\n' for each in files)
    return path


def part(folder, flags_by_file, files):
    """The files that can stand in one unit, and those that must wait for the next."""
    waiting = []
    while len(files) > 1:
        unit = write_unit(folder, files)
        done = subprocess.run(
            ["clang++", "-fsyntax-only", "-w", "-ferror-limit=0", "-fno-caret-diagnostics",
             *joined(flags_by_file, files), unit], cwd=TOP, capture_output=True, text=True)
        if done.returncode == 0:
            break
        places = (PLACE.match(line) for line in done.stderr.splitlines())
        guilty = {os.path.relpath(os.path.join(TOP, place[1]), TOP) for place in places if place}
        guilty = [file for file in files if file in guilty]
        if not guilty:
            sys.exit(done.stderr.strip())
        if len(guilty) == len(files):
            guilty = guilty[1:]
        waiting += guilty
        files = [file for file in files if file not in guilty]
    return files, waiting


def units(folder, flags_by_file, files):
    found = []
    while files:
        unit, files = part(folder, flags_by_file, files)
        found.append(unit)
    return found


def tidy(folder, flags_by_file, files):
    """What clang-tidy says of the files, and whether it is content."""
    unit = write_unit(folder, files)
    done = subprocess.run(
        ["clang-tidy", "--quiet", "--config-file=" + os.path.join(TOP, ".clang-tidy"),
         "--checks=-bugprone-suspicious-include",  # of sources, which is what a unit is made of
         unit, "--", *joined(flags_by_file, files)], cwd=TOP, capture_output=True, text=True)
    said = [line for line in (done.stdout + done.stderr).splitlines() if not CHATTER.match(line)]
    return done.returncode == 0, "\n".join(said).strip()


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__.split("\n\n")[1].strip())
    flags_by_file = commands(os.path.abspath(sys.argv[1]))
    named = sys.argv[2:]
    for file in named:
        if file not in flags_by_file:
            sys.exit(f"error: {sys.argv[1]} compiles no shipped source {file}")
    if not flags_by_file:
        sys.exit(f"error: {sys.argv[1]} compiles no tracked source")

    content = True
    with tempfile.TemporaryDirectory() as folder, \
            concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        if named:
            parts = [[[file] for file in named]]
        else:
            levels = collections.defaultdict(list)
            for file, flags in flags_by_file.items():
                levels[level(flags)].append(file)
            # Halves, so that two processors have work.
            groups = [files[start::2] for files in levels.values() for start in (0, 1)]
            parts = pool.map(lambda files: units(folder, flags_by_file, files), groups)
        work = [unit for found in parts for unit in found]
        for good, said in pool.map(lambda files: tidy(folder, flags_by_file, files), work):
            content = content and good
            if not good:
                print(said)
    if not content:
        sys.exit(1)
    print(f"clang-tidy has nothing to say about {sum(map(len, work))} files in {len(work)} units.")


if __name__ == "__main__":
    main()
