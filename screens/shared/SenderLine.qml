// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// Who sent the challenge: the face and a line of text.
Item {
    id: root

    required property UIViewController controller
    required property real maximumWidth

    width: sender.x + sender.width
    height: sender.height

    ViewItem {
        id: face
        objectName: "senderImageView"
        owner: root.controller
        outlet: objectName
        width: 40
        height: 40
        anchors.verticalCenter: parent.verticalCenter

        ShadowItem {
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -2
            radius: Theme.cardRadius
            blur: 4
            opacity: 0.35
        }

        PictureItem {
            anchors.fill: parent
            radius: Theme.cardRadius
            image: face.image
            ground: Theme.pictureGround
        }
    }

    ViewItem {
        id: sender
        objectName: "senderLabel"
        owner: root.controller
        outlet: objectName
        x: 52
        width: Math.min(senderText.implicitWidth, root.maximumWidth - sender.x)
        height: Math.max(40, senderText.implicitHeight)

        PlainText {
            id: senderText
            width: parent.width
            anchors.verticalCenter: parent.verticalCenter
            text: sender.text
            points: 17
            wrapMode: Text.Wrap
        }
    }
}
