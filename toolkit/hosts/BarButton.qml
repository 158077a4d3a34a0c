// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A button of the navigation bar: a glyph when it has one, else its text.
ButtonBase {
    id: root

    property string imageName

    implicitWidth: Math.max(48, label.visible ? label.implicitWidth + 24 : 0)
    implicitHeight: 44
    opacity: !root.enabled ? 0.45 : root.pressed ? 0.5 : 1
    ring.anchors.margins: 2
    ring.border.color: Appearance.barForeground
    ring.radius: 10

    contentItem: Item {
        PictureItem {
            anchors.centerIn: parent
            width: 24
            height: 24
            visible: root.imageName !== ""
            imageName: root.imageName
            tint: Appearance.barForeground
        }

        PlainText {
            id: label
            anchors.centerIn: parent
            visible: root.imageName === ""
            text: root.text
            points: Theme.bodySize
            scales: false
            color: Appearance.barForeground
            Accessible.ignored: true
        }
    }
}
