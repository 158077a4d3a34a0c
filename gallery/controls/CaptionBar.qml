// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A line at the bottom of a page that tells what happened last.
Rectangle {
    id: root

    required property string text

    anchors.bottom: parent.bottom
    width: parent.width
    height: 48
    color: Theme.card

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.hairline
    }

    PlainText {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        text: root.text
        color: Theme.softInk
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
