#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0
"""Plants wrong arrows in a tiny tree and sees tools/check-arrows.py refuse each one."""

import contextlib
import importlib.util
import io
import json
import os
import subprocess
import tempfile
import unittest

TOOL = os.path.join(os.path.dirname(__file__), "..", "..", "tools", "check-arrows.py")
_spec = importlib.util.spec_from_file_location("check_arrows", TOOL)
arrows = importlib.util.module_from_spec(_spec)
_spec.loader.exec_module(arrows)

QT = "/usr/include/qt6"
EXTERNAL = {
    "Qt6::Core": [],
    "Qt6::Gui": ["Qt6::Core"],
    "Qt6::Qml": ["Qt6::Core"],
    "Qt6::Quick": ["Qt6::Gui", "Qt6::Qml"],
}
LINKS = {
    "platform": [],
    "platform/services": ["kindora_platform"],
    "layout": [],
    "toolkit/view": ["kindora_layout", "kindora_platform"],
    "toolkit/controllers": ["kindora_toolkit_view", "Qt6::Qml"],
    "toolkit/quick": ["kindora_toolkit_controllers", "Qt6::QuickPrivate", "Qt6::Quick"],
    "model": ["kindora_platform_services"],
    "app": ["kindora_model", "kindora_toolkit_quick"],
    "screens/picker": ["kindora_app"],
    "screens/badges": ["kindora_app", "kindora_screens_picker"],
    "gallery": ["kindora_app"],
    "main": ["kindora_app", "kindora_screens_badges"],
    "tests/toolkit/view": ["kindora_toolkit_view"],
    "tests/main": ["kindora_main"],
}


def target_in(folder):
    return "kindora_" + folder.replace("/", "_")


class Tiny:
    """A tree with a source in each of a few folders, and what a build would have written of it."""

    def __init__(self, top):
        self.top = top
        self.build = os.path.join(top, "build")
        self.links = {folder: list(links) for folder, links in LINKS.items()}
        self.read = {}
        os.makedirs(self.build)
        for folder in LINKS:
            self.write(f"{folder}/A.h", "#pragma once\n")
            self.write(f"{folder}/A.cpp", f'#include "{folder}/A.h"\n')
            self.read[folder] = [f"{folder}/A.cpp", f"{folder}/A.h"]

    def write(self, path, text):
        os.makedirs(os.path.dirname(os.path.join(self.top, path)), exist_ok=True)
        with open(os.path.join(self.top, path), "w", encoding="utf-8") as file:
            file.write(text)

    def include(self, folder, *names, through=()):
        """Writes includes into a folder's source; what is read besides are the named and through."""
        text = "".join(f'#include "{name}"\n' for name in names)
        self.write(f"{folder}/A.cpp", f'#include "{folder}/A.h"\n{text}')
        self.read[folder] += [*names, *through]

    def targets(self):
        targets = [
            {"name": target_in(folder), "type": "STATIC_LIBRARY", "folder": folder, "links": links}
            for folder, links in self.links.items()
        ]
        return {"targets": targets, "external": EXTERNAL}

    def log(self):
        lines = []
        for folder, read in self.read.items():
            name = f"{folder}/CMakeFiles/{target_in(folder)}.dir/A.cpp.o"
            lines.append(f"{name}: #deps {len(read)}, deps mtime 1 (VALID)")
            lines += [f"    {os.path.join('..', path)}" for path in read]
            lines.append("")
        return "\n".join(lines) + "\n"

    def unused(self):
        """What is said of links that nobody uses; only these links there are."""
        targets = arrows.Targets(self.targets())
        return sorted(arrows.unused_errors(targets, arrows.Tree(self.top, self.build)))

    def errors(self):
        targets = arrows.Targets(self.targets())
        tree = arrows.Tree(self.top, self.build)
        found = list(arrows.declared_errors(targets))
        found += arrows.written_errors(targets, tree)
        for record in arrows.records(self.log(), tree):
            found += arrows.read_errors(record, targets, tree)
        return sorted(set(found))


class ArrowsTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="Arrows of ä tree ")
        self.addCleanup(folder.cleanup)
        self.tiny = Tiny(folder.name)

    def assert_refused(self, *errors):
        self.assertEqual(self.tiny.errors(), sorted(errors))

    def test_accepts_what_is_declared(self):
        self.tiny.include("toolkit/view", "platform/A.h", "layout/A.h")
        self.tiny.include("toolkit/controllers", "toolkit/view/A.h", through=["platform/A.h"])
        self.tiny.include("tests/toolkit/view", "toolkit/view/A.h", "platform/A.h")
        self.tiny.include("toolkit/quick", f"{QT}/QtQuick/6.4.2/QtQuick/private/qquickitem_p.h")
        self.tiny.include("tests/main", "main/A.h")
        self.assert_refused()

    def test_refuses_an_arrow_up(self):
        self.tiny.include("platform", "toolkit/view/A.h")
        self.assert_refused(
            "platform/A.cpp: includes toolkit/view/A.h, but platform does not link "
            "kindora_toolkit_view"
        )

    def test_names_the_header_that_includes(self):
        self.tiny.write("layout/A.h", '#pragma once\n#include "model/A.h"\n')
        self.tiny.read["layout"].append("model/A.h")
        self.tiny.include("toolkit/view", "layout/A.h", through=["model/A.h"])
        self.assert_refused(
            "layout/A.h: includes model/A.h, but layout does not link kindora_model"
        )

    def test_refuses_what_only_others_declare(self):
        self.tiny.include("toolkit/controllers", "platform/A.h")
        self.assert_refused(
            "toolkit/controllers/A.cpp: includes platform/A.h, but toolkit/controllers does not "
            "link kindora_platform"
        )

    def test_sees_an_include_that_no_directive_names(self):
        self.tiny.include("toolkit/view", through=["model/A.h"])
        self.assert_refused(
            "toolkit/view/A.cpp: includes model/A.h, but toolkit/view does not link kindora_model"
        )

    def test_refuses_a_header_without_an_owner(self):
        self.tiny.write("screens/Shelf.h", "")
        self.tiny.include("main", "screens/Shelf.h")
        self.assert_refused("main/A.cpp: includes screens/Shelf.h, which no target owns")

    def test_refuses_an_undeclared_header_in_a_test(self):
        self.tiny.include("tests/toolkit/view", "model/A.h")
        self.assert_refused(
            "tests/toolkit/view/A.cpp: includes model/A.h, but tests/toolkit/view does not link "
            "kindora_model"
        )

    def test_refuses_qt_below_the_line(self):
        self.tiny.include("toolkit/view", f"{QT}/QtCore/qobject.h")
        self.assert_refused(
            "toolkit/view/A.cpp: includes qobject.h of Qt, but toolkit/view does not link Qt6::Core"
        )

    def test_refuses_qt_declared_below_the_line(self):
        self.tiny.links["model"].append("Qt6::Core")
        self.assert_refused(
            "model/CMakeLists.txt: kindora_model links Qt6::Core, which model must not know"
        )

    def test_refuses_qt_quick_in_controllers(self):
        self.tiny.include(
            "toolkit/controllers", f"{QT}/QtQuick/QQuickItem", through=[f"{QT}/QtGui/qwindow.h"]
        )
        self.assert_refused(
            "toolkit/controllers/A.cpp: includes QQuickItem of Qt, but toolkit/controllers does "
            "not link Qt6::Quick",
            "toolkit/controllers/A.cpp: includes qwindow.h of Qt, but toolkit/controllers does "
            "not link Qt6::Gui",
        )

    def test_refuses_qt_quick_that_controllers_declare(self):
        self.tiny.links["toolkit/controllers"].append("Qt6::QuickPrivate")
        self.assert_refused(
            "toolkit/controllers/CMakeLists.txt: kindora_toolkit_controllers links "
            "Qt6::QuickPrivate, which toolkit/controllers must not know"
        )

    def test_refuses_a_circle(self):
        self.tiny.links["screens/picker"].append("kindora_screens_badges")
        self.assert_refused(
            "kindora_screens_badges -> kindora_screens_picker -> kindora_screens_badges: "
            "a circle of links",
            "screens/picker/CMakeLists.txt: kindora_screens_picker links kindora_screens_badges, "
            "which lies in screens/badges, above it",
        )

    def test_refuses_a_link_up(self):
        self.tiny.links["toolkit/view"].append("kindora_model")
        self.assert_refused(
            "toolkit/view/CMakeLists.txt: kindora_toolkit_view links kindora_model, which lies in "
            "model, above it"
        )

    def test_refuses_a_link_down_that_is_not_for_this_room(self):
        self.tiny.links["model"].append("kindora_layout")
        self.assert_refused(
            "model/CMakeLists.txt: kindora_model links kindora_layout, which lies in layout, and "
            "model may link platform"
        )

    def test_refuses_a_link_to_tests(self):
        self.tiny.links["app"].append("kindora_tests_toolkit_view")
        self.assert_refused(
            "app/CMakeLists.txt: kindora_app links kindora_tests_toolkit_view, which stands beside "
            "the house"
        )

    def test_refuses_a_folder_without_a_floor(self):
        self.tiny.links["attic"] = []
        os.makedirs(os.path.join(self.tiny.top, "attic"))
        self.assert_refused("attic/CMakeLists.txt: kindora_attic lies on no floor of the table")

    def test_refuses_the_app_in_tests_of_the_toolkit(self):
        self.tiny.links["tests/toolkit/view"].append("kindora_app")
        self.assert_refused(
            "tests/toolkit/view/CMakeLists.txt: kindora_tests_toolkit_view links app, above what "
            "it tests"
        )

    def test_refuses_an_include_of_main(self):
        self.tiny.links["benchmarks"] = ["kindora_main"]
        self.tiny.write("benchmarks/A.h", "")
        self.tiny.read["benchmarks"] = ["benchmarks/A.cpp"]
        self.tiny.include("benchmarks", "main/A.h")
        self.assert_refused("benchmarks/A.cpp: includes main/A.h, which only tests may")

    def test_refuses_what_a_header_includes_that_only_others_read(self):
        self.tiny.write("toolkit/view/Apart.h", '#pragma once\n#include "model/A.h"\n')
        self.assert_refused(
            "toolkit/view/Apart.h: includes model/A.h, but toolkit/view does not link kindora_model"
        )

    def test_refuses_an_include_by_way_of_the_folders(self):
        self.tiny.write("toolkit/view/A.h", '#include "../../model/A.h"\n')
        self.assert_refused(
            "toolkit/view/A.h: includes model/A.h, but toolkit/view does not link kindora_model"
        )

    def test_refuses_an_import_of_what_is_not_linked(self):
        self.tiny.write("toolkit/quick/A.qml", "import QtQuick\nimport Kindora.Gallery\nItem {}\n")
        self.tiny.write("gallery/A.qml", "import Kindora.Gallery\n")
        self.assert_refused(
            "toolkit/quick/A.qml: imports Kindora.Gallery, but toolkit/quick does not link it"
        )

    def test_refuses_a_link_that_no_file_uses(self):
        self.tiny.links = {"platform": [], "model": ["kindora_platform"], "tests/main": []}
        self.tiny.links["tests/main"] = ["kindora_model"]
        self.assertEqual(
            self.tiny.unused(),
            ["model/CMakeLists.txt: kindora_model links kindora_platform, which no file there uses"],
        )
        self.tiny.include("model", "platform/A.h")
        self.assertEqual(self.tiny.unused(), [])

    def test_accepts_a_link_that_is_brought_along(self):
        self.tiny.links = {"effects/springy": [], "effects/qt": ["kindora_effects_springy"]}
        for folder in self.tiny.links:
            self.tiny.write(f"{folder}/A.h", "#pragma once\n")
        self.assertEqual(self.tiny.unused(), [])

    def test_accepts_a_link_to_a_module_that_is_imported_or_passed_on(self):
        self.tiny.links = {"toolkit/quick": [], "gallery": ["kindora_toolkit_quick"]}
        self.assertEqual(len(self.tiny.unused()), 1)
        self.tiny.write("gallery/A.qml", "import Kindora.Toolkit.Quick\n")
        self.assertEqual(self.tiny.unused(), [])
        self.tiny.write("gallery/A.qml", "import QtQuick\n")
        self.tiny.write("gallery/CMakeLists.txt", "kindora_qml_module(g IMPORTS Kindora.Toolkit.Quick)\n")
        self.assertEqual(self.tiny.unused(), [])

    def test_refuses_fakes_in_the_house(self):
        self.tiny.links["platform/fakes"] = ["kindora_platform"]
        self.tiny.links["model"].append("kindora_platform_fakes")
        self.tiny.links["tests/main"].append("kindora_platform_fakes")
        os.makedirs(os.path.join(self.tiny.top, "platform/fakes"))
        self.assert_refused(
            "model/CMakeLists.txt: kindora_model links kindora_platform_fakes, which is for what "
            "stands beside the house"
        )

    def test_leaves_generated_code_aside(self):
        generated = "build/platform/kindora_platform_autogen/moc_A.cpp"
        log = (
            "platform/CMakeFiles/kindora_platform.dir/kindora_platform_autogen/moc_A.cpp.o: "
            f"#deps 2, deps mtime 1 (VALID)\n    ../{generated}\n    ../model/A.h\n"
        )
        tree = arrows.Tree(self.tiny.top, self.tiny.build)
        self.assertEqual(list(arrows.records(log, tree)), [])

    def test_sees_each_source_of_a_joined_object(self):
        self.tiny.include("layout", "model/A.h")
        self.tiny.write("layout/B.cpp", "")
        log = (
            "layout/CMakeFiles/kindora_layout.dir/Unity/unity_0_cxx.cxx.o: #deps 4, deps mtime 1 (VALID)"
            "\n    layout/CMakeFiles/kindora_layout.dir/Unity/unity_0_cxx.cxx"
            "\n    ../layout/B.cpp\n    ../layout/A.cpp\n    ../model/A.h\n"
        )
        tree = arrows.Tree(self.tiny.top, self.tiny.build)
        records = list(arrows.records(log, tree))
        self.assertEqual([record.source for record in records], ["layout/B.cpp", "layout/A.cpp"])
        targets = arrows.Targets(self.tiny.targets())
        for record in records:
            self.assertEqual(
                set(arrows.read_errors(record, targets, tree)),
                {"layout/A.cpp: includes model/A.h, but layout does not link kindora_model"},
            )

    def test_refuses_a_target_that_nothing_describes(self):
        del self.tiny.links["gallery"]
        self.assert_refused("gallery/A.cpp: kindora_gallery does not stand in targets.json")


MAKE = """\
rule cxx
  command = g++ -MMD -MF $out.d -I.. -c $in -o $out
  depfile = $out.d
  deps = gcc
rule archive
  command = ar qc $out $in
build platform/CMakeFiles/kindora_platform.dir/A.cpp.o: cxx ../platform/A.cpp
build model/CMakeFiles/kindora_model.dir/A.cpp.o: cxx ../model/A.cpp
build model/libmodel.a: archive $
  platform/CMakeFiles/kindora_platform.dir/A.cpp.o model/CMakeFiles/kindora_model.dir/A.cpp.o
build all: phony model/libmodel.a
"""


class BuiltTreeTest(unittest.TestCase):
    """The same of a tree that is really compiled."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="Arrows of ä tree ")
        self.addCleanup(folder.cleanup)
        self.tiny = Tiny(folder.name)
        for other in set(LINKS) - {"platform", "model"}:
            del self.tiny.links[other]
        self.tiny.links["model"] = ["kindora_platform"]
        self.tiny.write("build/build.ninja", MAKE)
        self.tiny.write("build/targets.json", json.dumps(self.tiny.targets()))

    def compile(self):
        command = ["ninja", "-C", self.tiny.build]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)

    def check(self):
        """The tool's exit status and all that it says."""
        said = io.StringIO()
        with contextlib.redirect_stdout(said), contextlib.redirect_stderr(said):
            status = arrows.main([TOOL, self.tiny.build, self.tiny.top])
        return status, said.getvalue()

    def test_accepts_what_is_declared(self):
        self.tiny.include("model", "platform/A.h")
        self.compile()
        self.assertEqual(
            self.check(), (0, "2 sources of 2 targets know only what they declare.\n")
        )

    def test_refuses_what_the_compiler_read(self):
        self.tiny.links["model"] = []
        self.tiny.write("build/targets.json", json.dumps(self.tiny.targets()))
        self.tiny.write("platform/Name.h", '#define NAME "model/A.h"\n')
        self.tiny.write("platform/A.cpp", '#include "platform/Name.h"\n#include NAME\n')
        self.compile()
        self.assertEqual(
            self.check(),
            (
                1,
                "platform/A.cpp: includes model/A.h, but platform does not link kindora_model\n",
            ),
        )

    def test_refuses_a_tree_that_is_not_built(self):
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn("has no record of 2 objects", said)

    def test_refuses_a_tree_that_builds_nothing(self):
        self.tiny.write("build/build.ninja", "build all: phony\n")
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn("has no record of any object", said)


if __name__ == "__main__":
    unittest.main()
