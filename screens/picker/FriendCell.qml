// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A friend's row: the face, the name, and a tick when chosen.
TableCell {
    id: root

    implicitHeight: 60
    spaceBelow: 0
    spoken: name.text
    checkable: true
    checked: root.cell?.hasCheckmark ?? false

    Rectangle {
        anchors.fill: parent
        color: root.cell?.showsSelection ? Theme.pressed : Theme.card
    }

    PictureOutlet {
        id: picture
        owner: root.cell
        outlet: "friendImageView"
        x: 16
        width: 44
        height: 44
        anchors.verticalCenter: parent.verticalCenter
        radius: width / 2
        ground: Theme.pictureGround
    }

    LabelOutlet {
        id: name
        owner: root.cell
        outlet: "nameLabel"
        anchors.left: picture.right
        anchors.leftMargin: 16
        anchors.right: tick.left
        anchors.rightMargin: 12
        height: parent.height
        points: Theme.bodySize
        silent: true
    }

    PictureItem {
        id: tick
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        width: 22
        height: 22
        imageName: "checkmark"
        tint: Appearance.tint
        scale: root.checked ? 1 : 0
        visible: scale > 0

        Behavior on scale {
            enabled: root.cell?.settled ?? false
            NumberAnimation { duration: Theme.slideDuration; easing.type: Easing.OutBack }
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.left: name.left
        height: 1
        color: Theme.hairline
    }
}
