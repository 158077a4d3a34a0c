// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// What an alert controller draws lies on this: the window below it is dimmed and cannot be touched.
FocusScope {
    id: root

    required property UIAlertController controller
    readonly property real progress: root.controller.presentationProgress

    // A press beside what lies on it.
    signal clickedBeside

    Rectangle {
        anchors.fill: parent
        color: Theme.dim
        opacity: 0.4 * root.progress
    }

    UntouchableArea {
        onClicked: mouse => {
            if (mouse.button === Qt.LeftButton)
                root.clickedBeside();
        }
    }
}
