// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Effects
import Kindora.Toolkit.Hosts
import Kindora.Screens.NewChallenge
import Kindora.Screens.Shared

// A new challenge. Before the reveal the covered card stands in the middle of the page; the reveal
// closes the page up, so that card, texts and buttons form one block.
Rectangle {
    id: root

    required property NewChallengeDetailViewController controller

    readonly property real side: Math.max(140, Math.min(width - 48, 320, height - 256))
    readonly property real buttonWidth: Math.max(side, 272) / 2 - 8
    readonly property real blockTop: sender.y + sender.height + 16
    readonly property real blockHeight: side + 16 + name.height + 8 + description.height + 16 + 50
    readonly property real centredY: Math.max(blockTop, (height - side) / 2)
    readonly property real closedY: blockTop
                                    + Math.max(0, (height - blockTop - blockHeight - 24) * 0.4)

    readonly property real lowest: page.layoutProgress > 0 ? closedY + blockHeight
                                                           : scratch.y + scratch.height

    color: Theme.ground

    ScrollArea {
        id: area
        anchors.fill: parent
        focus: true
        contentHeight: Math.max(height, root.lowest + 24)

        SenderLine {
            id: sender
            anchors.horizontalCenter: parent.horizontalCenter
            y: 16
            maximumWidth: root.width - 32
            controller: root.controller
        }

        ViewItem {
            id: page
            owner: root.controller
            outlet: "view"
            width: area.width
            height: area.contentHeight

            // The cover's shadow, under the picture that the cover lies on.
            ShadowItem {
                x: picture.x + cover.shadowOffset.x
                y: picture.y + cover.shadowOffset.y
                width: picture.width
                height: picture.height
                radius: Theme.cardRadius
                blur: 8
                opacity: cover.shadowOpacity
            }

            PictureCard {
                id: picture
                owner: root.controller
                width: root.side
                height: root.side
                anchors.horizontalCenter: parent.horizontalCenter
                y: root.centredY + (root.closedY - root.centredY) * Math.min(1, page.layoutProgress)
            }

            ScratchImageViewItem {
                id: cover
                objectName: "scratchImageView"
                owner: root.controller
                outlet: objectName
                anchors.fill: picture
                radius: Theme.cardRadius
                Accessible.ignored: true
            }

            // For those who cannot scratch.
            ButtonBase {
                id: scratch
                objectName: "scratchButton"
                anchors.top: picture.bottom
                anchors.topMargin: 12
                anchors.horizontalCenter: parent.horizontalCenter
                implicitWidth: hint.implicitWidth + 32
                implicitHeight: 48
                visible: cover.shown
                opacity: cover.opacity
                text: qsTr("Scratch the cover away")
                ring.anchors.margins: 2
                ring.radius: 12
                Accessible.ignored: !cover.shown
                onClicked: cover.scratchAway()

                contentItem: PlainText {
                    id: hint
                    text: scratch.text
                    points: 16
                    color: Theme.softInk
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
            }

            FadingLabel {
                id: name
                owner: root.controller
                outlet: "challengeNameLabel"
                anchors.top: picture.bottom
                anchors.topMargin: 16
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

            PillOutlet {
                id: accept
                owner: root.controller
                outlet: "acceptButton"
                anchors.top: description.bottom
                anchors.topMargin: 16
                anchors.right: parent.horizontalCenter
                anchors.rightMargin: 8
                width: root.buttonWidth
                onClicked: root.controller.accepted()
            }

            PillOutlet {
                owner: root.controller
                outlet: "rejectButton"
                anchors.top: accept.top
                anchors.left: parent.horizontalCenter
                anchors.leftMargin: 8
                width: root.buttonWidth
                filled: false
                textColor: Theme.danger
                onClicked: root.controller.rejected()
            }
        }
    }
}
