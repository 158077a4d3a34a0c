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
    // Whether it waits a moment: what is soon over needs no words.
    property bool late: false

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

    SequentialAnimation on opacity {
        running: root.late && root.visible

        PropertyAction { value: 0 }
        PauseAnimation { duration: 400 }
        NumberAnimation { to: 1; duration: Theme.fadeDuration }
    }
}
