// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws any controller with the QML file that its page names.
Loader {
    id: root

    required property UIViewController controller
    property url page: root.controller.page

    Component.onCompleted: root.setSource(root.page, { "controller": root.controller })
    // The keyboard goes on to what is loaded, if that hands it on.
    onLoaded: {
        const scope = item as FocusScope;
        if (scope)
            scope.focus = true;
    }
}
