// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Platform
import Kindora.Screens

// The badge shelf, empty as yet.
Rectangle {
    id: root

    required property BadgesViewController controller

    color: Qt.rgba(0.96, 0.96, 0.96, 1)

    Column {
        anchors.centerIn: parent
        width: parent.width - 64
        spacing: 24

        PictureItem {
            width: 240
            height: 180
            anchors.horizontalCenter: parent.horizontalCenter
            imageName: "emptyBadges"
        }

        PlainText {
            width: parent.width
            text: "No badges yet.\nComplete or create a challenge to earn one!"
            color: Qt.rgba(0.45, 0.45, 0.45, 1)
            wrapMode: Text.Wrap
            lineHeight: 1.2
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
