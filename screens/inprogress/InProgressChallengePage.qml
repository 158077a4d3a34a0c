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

    readonly property real side: Math.max(140, Math.min(width - 48, 320, height - 300))

    color: Theme.ground

    ScrollArea {
        id: area
        anchors.fill: parent
        focus: true
        interactive: overflows && !complete.finished
        contentHeight: Math.max(height, description.y + description.height + 24 + complete.height
                                        + 24)

        SenderLine {
            id: sender
            anchors.horizontalCenter: parent.horizontalCenter
            y: 16
            maximumWidth: root.width - 32
            controller: root.controller
        }

        PictureCard {
            id: picture
            owner: root.controller
            width: root.side
            height: root.side
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.top: sender.bottom
            anchors.topMargin: 32

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
            id: complete

            readonly property bool finished: complete.text === ""

            owner: root.controller
            outlet: "completeButton"
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 24
            width: Math.max(root.side, 272)
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
