// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.InProgress
import Kindora.Screens.Shared

// A challenge in progress.
Rectangle {
    id: root

    required property InProgressChallengeDetailViewController controller

    color: Theme.ground

    ChallengeColumns {
        id: shape
        page: Qt.size(root.width, root.height)
        textHeight: 300
    }

    ScrollArea {
        id: area
        anchors.fill: parent
        focus: true
        interactive: overflows && !complete.finished
        contentHeight: Math.max(height, picture.y + picture.height + 16,
                                description.y + description.height + 24 + complete.height + 24)

        SenderLine {
            id: sender
            x: shape.sideBySide ? shape.textX : (parent.width - width) / 2
            y: 16
            maximumWidth: shape.sideBySide ? shape.textWidth : root.width - 32
            controller: root.controller
        }

        PictureCard {
            id: picture
            owner: root.controller
            x: shape.pictureX
            y: shape.sideBySide ? shape.pictureY : sender.y + sender.height + 32
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

        FadingLabel {
            id: name
            owner: root.controller
            outlet: "challengeNameLabel"
            columns: shape
            anchors.top: shape.sideBySide ? sender.bottom : picture.bottom
            anchors.topMargin: 16
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
            id: complete

            readonly property bool finished: complete.text === ""

            owner: root.controller
            outlet: "completeButton"
            x: shape.sideBySide ? shape.textX : (parent.width - width) / 2
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            width: shape.sideBySide ? Math.min(shape.textWidth, 272)
                                      : Math.max(shape.side, 272)
            // The ceremony is seen from the picture on.
            onFinishedChanged: if (complete.finished) area.scrollTo(0)
            // The finished mark is drawn in the tint, which does not show on itself.
            filled: !complete.finished
            name: complete.finished ? qsTr("Completed") : complete.text
            onClicked: root.controller.completePressed()
        }
    }

    // The medal and the stamp: they lie on the content, but are not cut off with it.
    SubviewsItem {
        owner: root.controller
        outlet: "view"
        y: -area.contentY
        width: area.width
        height: area.contentHeight
    }
}
