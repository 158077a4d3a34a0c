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

    color: Theme.ground

    ChallengeColumns {
        id: shape
        page: Qt.size(root.width, root.height)
        textHeight: 300
        smallestSide: 120
        largestSide: sideBySide ? 320 : 220
    }

    ScrollArea {
        anchors.fill: parent
        focus: true
        contentHeight: Math.max(height, picture.y + picture.height + 16,
                                info.y + info.height + 24 + kindora.height + 24)

        PictureCard {
            id: picture
            owner: root.controller
            x: shape.pictureX
            y: shape.sideBySide ? shape.pictureY : 32
            width: shape.side
            height: shape.side

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
            columns: shape
            y: picture.y + (shape.sideBySide ? 0 : picture.height + 20)
            points: Theme.title1Size
        }

        FadingLabel {
            id: description
            owner: root.controller
            outlet: "challengeDescriptionLabel"
            anchors.top: name.bottom
            columns: shape
            anchors.topMargin: 8
            color: Theme.softInk
        }

        FadingLabel {
            id: info
            owner: root.controller
            outlet: "infoLabel"
            anchors.top: description.bottom
            columns: shape
            anchors.topMargin: 24
            points: Theme.bodySize
            color: Appearance.tintedText
        }

        PillButton {
            id: kindora
            objectName: "kindoraButton"
            x: shape.sideBySide ? shape.textX : (parent.width - width) / 2
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            width: shape.sideBySide ? Math.min(shape.textWidth, 272) : 272
            text: qsTr("Kindora!")
            onClicked: root.controller.kindoraTapped()
        }
    }
}
