// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws the text field of an outlet.
ViewItem {
    id: root

    property alias label: input.label
    readonly property alias inputFocus: input.inputFocus

    implicitHeight: input.implicitHeight

    TextField {
        id: input
        objectName: root.outlet
        anchors.fill: parent
        record: root.shownView
    }
}
