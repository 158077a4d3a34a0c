// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A page that has nothing to show says so, and may offer another way.
Column {
    id: root

    property alias imageName: picture.imageName
    property alias message: label.text
    // What the button says; there is none without it.
    property string action

    signal pressed

    spacing: 24

    PictureItem {
        id: picture
        anchors.horizontalCenter: parent.horizontalCenter
        width: 72
        height: 72
        tint: Theme.faintGlyph
    }

    PlainText {
        id: label
        width: parent.width
        color: Theme.softInk
        wrapMode: Text.Wrap
        lineHeight: 1.2
        horizontalAlignment: Text.AlignHCenter
    }

    PillButton {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.action !== ""
        text: root.action
        onClicked: root.pressed()
    }
}
