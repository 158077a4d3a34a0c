// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.Badges
import Kindora.Screens.Shared

// A badge's page: the stamped card, what the user did with it, and the way to pass it on.
Rectangle {
    id: root

    required property BadgeInfoViewController controller

    readonly property real side: Math.max(120, Math.min(width - 48, 220, height - 300))

    color: Theme.ground

    ScrollArea {
        anchors.fill: parent
        focus: true
        contentHeight: Math.max(height, info.y + info.height + 24 + kindora.height + 24)

        PictureCard {
            id: picture
            owner: root.controller
            width: root.side
            height: root.side
            anchors.horizontalCenter: parent.horizontalCenter
            y: 32

            ShadowItem {
                z: -1
                anchors.fill: parent
                anchors.topMargin: 3
                anchors.bottomMargin: -3
                radius: Theme.cardRadius
                blur: 8
                opacity: 0.5
            }
        }

        PictureOutlet {
            owner: root.controller
            outlet: "stampImageView"
            anchors.fill: picture
        }

        FadingLabel {
            id: name
            owner: root.controller
            outlet: "challengeNameLabel"
            anchors.top: picture.bottom
            anchors.topMargin: 20
            x: 24
            width: root.width - 48
            points: 24
        }

        FadingLabel {
            id: description
            owner: root.controller
            outlet: "challengeDescriptionLabel"
            anchors.top: name.bottom
            anchors.topMargin: 8
            x: 24
            width: root.width - 48
            color: Theme.softInk
        }

        FadingLabel {
            id: info
            owner: root.controller
            outlet: "infoLabel"
            anchors.top: description.bottom
            anchors.topMargin: 24
            x: 24
            width: root.width - 48
            points: 17
            color: Appearance.tintedText
        }

        PillButton {
            id: kindora
            objectName: "kindoraButton"
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            width: 272
            text: qsTr("Kindora!")
            onClicked: root.controller.kindoraTapped()
        }
    }
}
