# SPDX-FileCopyrightText: 2026 The Kindora developers
# SPDX-License-Identifier: Apache-2.0

# How cmake-format is to write our own functions and those that it does not know.
with section("parse"):
    additional_commands = {
        "kindora_component": {
            "pargs": 1,
            "kwargs": {"NEEDS": "+", "PACKAGES": "+", "TARGETS": "+", "WITHOUT": "+"},
        },
        "kindora_library": {"pargs": 1, "kwargs": {"LINKS": "+", "SOURCES": "+"}},
        "kindora_qml_module": {
            "pargs": 1,
            "kwargs": {"IMPORTS": "+", "LINKS": "+", "QML": "+", "SOURCES": "+", "URI": 1},
        },
        "kindora_test": {"pargs": 1, "kwargs": {"LINKS": "+", "SOURCES": "+"}},
        "qt_add_qml_module": {
            "pargs": "1+",
            "kwargs": {
                "DEPENDENCIES": "+",
                "IMPORTS": "+",
                "IMPORT_PATH": 1,
                "OUTPUT_DIRECTORY": 1,
                "OUTPUT_TARGETS": 1,
                "QML_FILES": "+",
                "RESOURCE_PREFIX": 1,
                "SOURCES": "+",
                "URI": 1,
                "VERSION": 1,
            },
        },
    }
with section("format"):
    line_width = 100
    layout_passes = {"KwargGroupNode": [(0, False), (5, True)]}
with section("markup"):
    enable_markup = False
