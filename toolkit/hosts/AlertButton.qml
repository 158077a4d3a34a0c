// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// An action of an alert or a sheet.
ButtonBase {
    id: root

    required property UIAlertController controller
    required property int index
    required property string modelData
    required property real points
    readonly property bool last: root.index === root.controller.actionTitles.length - 1
    readonly property bool cancels: root.index === root.controller.cancelIndex
    readonly property bool destroys: root.controller.isDestructive(root.index)

    text: root.modelData
    onClicked: root.controller.choose(root.index)

    contentItem: PlainText {
        text: root.text
        Accessible.ignored: true
        points: root.points
        bold: root.cancels
        color: root.destroys ? Theme.danger : Appearance.tintedText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
