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
    color: "white"

    Rectangle {
        width: parent.width
        height: 1
        color: Qt.rgba(0.88, 0.88, 0.88, 1)
    }

    PlainText {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        text: root.text
        color: Qt.rgba(0.45, 0.45, 0.45, 1)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
