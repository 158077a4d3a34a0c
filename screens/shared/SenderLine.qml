// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// Who sent the challenge: the face and a line of text.
Row {
    id: root

    required property UIViewController controller
    required property real maximumWidth

    height: 40
    spacing: 12

    ViewItem {
        id: face
        objectName: "senderImageView"
        owner: root.controller
        outlet: objectName
        width: 40
        height: 40

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
        width: Math.min(senderText.implicitWidth, root.maximumWidth - 52)
        height: 40

        PlainText {
            id: senderText
            width: parent.width
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: sender.text
            points: 17
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
    }
}
