// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A big round button: filled in the tint, or white with a coloured text.
ButtonBase {
    id: root

    property bool filled: true
    // Stands in the middle, for a button without text.
    property alias picture: glyph.image
    property alias pictureTint: glyph.tint
    property color textColor: root.filled ? Theme.inkOnTint : Appearance.tint

    implicitHeight: 50
    implicitWidth: label.implicitWidth + 48
    scale: root.pressed ? 0.97 : 1
    ring.radius: height / 2 + 2

    background: Item {
        ShadowItem {
            anchors.fill: parent
            anchors.topMargin: root.pressed ? 1 : 3
            anchors.bottomMargin: root.pressed ? -1 : -3
            radius: height / 2
            blur: 8
            opacity: 0.22
        }

        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: root.filled ? (root.pressed ? Qt.darker(Appearance.tint, 1.1) : Appearance.tint)
                               : (root.pressed ? Theme.pressed : Theme.card)
        }
    }

    contentItem: Item {
        implicitWidth: label.implicitWidth

        PlainText {
            id: label
            anchors.fill: parent
            text: root.text
            Accessible.ignored: true
            points: Theme.bodySize
            bold: true
            color: root.textColor
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }

        PictureItem {
            id: glyph
            anchors.centerIn: parent
            width: 28
            height: 28
            fits: true
        }
    }

    Behavior on scale {
        NumberAnimation { duration: Theme.pressDuration }
    }
}
