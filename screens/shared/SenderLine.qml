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

    PictureOutlet {
        objectName: outlet
        owner: root.controller
        outlet: "senderImageView"
        width: 40
        height: 40
        anchors.verticalCenter: parent.verticalCenter
        radius: Theme.cardRadius
        ground: Theme.pictureGround

        ShadowItem {
            z: -1
            anchors.fill: parent
            anchors.topMargin: 2
            anchors.bottomMargin: -2
            radius: Theme.cardRadius
            blur: 4
            opacity: 0.35
        }
    }

    LabelOutlet {
        id: sender
        objectName: outlet
        owner: root.controller
        outlet: "senderLabel"
        x: 52
        width: Math.min(implicitWidth, root.maximumWidth - x)
        height: Math.max(40, implicitHeight)
        points: Theme.bodySize
        lines: 0
    }
}
