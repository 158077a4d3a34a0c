// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Effects
import Kindora.Toolkit.Hosts
import Kindora.Screens.NewChallenge
import Kindora.Screens.Shared

// A new challenge. Before the reveal the covered card stands in the middle of the page; the reveal
// closes the page up, so that card, texts and buttons form one block. On a flat page the card
// stands beside the texts all the time.
Rectangle {
    id: root

    required property NewChallengeDetailViewController controller

    readonly property real buttonWidth: (shape.sideBySide ? Math.min(shape.textWidth, 320)
                                                            : Math.max(shape.side, 272)) / 2 - 8
    readonly property real blockTop: sender.y + sender.height + 16
    readonly property real blockHeight: shape.side + 16 + name.height + 8 + description.height
                                        + 16 + 50
    readonly property real centredY: Math.max(blockTop, (height - shape.side) / 2)
    readonly property real closedY: blockTop
                                    + Math.max(0, (height - blockTop - blockHeight - 24) * 0.4)

    readonly property real lowest: page.layoutProgress > 0 ? accept.y + accept.height
                                                           : scratch.y + scratch.height

    color: Theme.ground

    ChallengeColumns {
        id: shape
        page: Qt.size(root.width, root.height)
        textHeight: 256
    }

    ScrollArea {
        id: area
        anchors.fill: parent
        focus: true
        contentHeight: Math.max(height, picture.y + picture.height + 16, root.lowest + 24)

        SenderLine {
            id: sender
            x: shape.sideBySide ? shape.textX : (parent.width - width) / 2
            y: shape.sideBySide ? shape.pictureY : 16
            maximumWidth: shape.sideBySide ? shape.textWidth : root.width - 32
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
                x: shape.pictureX
                y: shape.sideBySide ? shape.pictureY
                                      : root.centredY + (root.closedY - root.centredY)
                                        * Math.min(1, page.layoutProgress)
                width: shape.side
                height: shape.side
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
                x: shape.sideBySide ? shape.textX : (parent.width - width) / 2
                y: shape.sideBySide ? sender.y + sender.height + 12
                                      : picture.y + picture.height + 12
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
                    points: Theme.calloutSize
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
                columns: shape
                y: (shape.sideBySide ? sender.y + sender.height : picture.y + picture.height) + 16
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

            PillOutlet {
                id: accept
                owner: root.controller
                outlet: "acceptButton"
                anchors.top: description.bottom
                anchors.topMargin: 16
                x: shape.sideBySide ? shape.textX : parent.width / 2 - 8 - width
                width: root.buttonWidth
                onClicked: root.controller.accepted()
            }

            PillOutlet {
                owner: root.controller
                outlet: "rejectButton"
                anchors.top: accept.top
                x: accept.x + accept.width + 16
                width: root.buttonWidth
                filled: false
                textColor: Theme.danger
                onClicked: root.controller.rejected()
            }
        }
    }
}
