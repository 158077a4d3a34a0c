// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A challenge's row: a white card with the round picture and one or two lines of text.
TableCell {
    id: root

    implicitHeight: 76
    spoken: name.text + (detail.text !== "" ? ", " + detail.text : "")

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        radius: Theme.cardRadius
        color: Theme.card
        border.width: Theme.borderWidth
        border.color: Theme.cardBorder
    }

    ViewItem {
        id: frame
        owner: root.cell
        outlet: "profileFrame"
        x: 32
        width: 52
        height: 52
        anchors.verticalCenter: parent.verticalCenter
        transform: Translate { y: frame.translation.y }

        ShadowItem {
            width: parent.width
            height: parent.height
            x: frame.shadowOffset.x
            y: frame.shadowOffset.y
            radius: frame.shadowRadius
            blur: 5
            opacity: frame.shadowOpacity
        }

        Rectangle {
            anchors.fill: parent
            radius: width / 2
            color: Theme.card
        }

        PictureOutlet {
            owner: root.cell
            outlet: "profileImageView"
            anchors.fill: parent
            anchors.margins: 2
            radius: width / 2
            ground: Theme.pictureGround
        }
    }

    Column {
        anchors.left: frame.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.rightMargin: 32
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        LabelOutlet {
            id: name
            owner: root.cell
            outlet: "challengeLabel"
            width: parent.width
            points: Theme.bodySize
            silent: true
        }

        LabelOutlet {
            id: detail
            owner: root.cell
            outlet: "senderLabel"
            width: parent.width
            height: text === "" ? 0 : implicitHeight
            points: Theme.footnoteSize
            color: Theme.softInk
            silent: true
        }
    }
}
