// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A demonstration's row: a white card with a picture, a name, and a line about it.
TableCell {
    id: root

    implicitHeight: 80
    spoken: title.text + ", " + detail.text

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        radius: Theme.cardRadius
        color: root.cell?.showsSelection ? Theme.pressed : Theme.card
        border.width: Theme.borderWidth
        border.color: Theme.cardBorder
    }

    PictureOutlet {
        id: picture
        owner: root.cell
        outlet: "pictureView"
        x: 32
        width: 48
        height: 48
        anchors.verticalCenter: parent.verticalCenter
        radius: Theme.panelRadius
        ground: Theme.pictureGround
    }

    Column {
        anchors.left: picture.right
        anchors.leftMargin: 16
        anchors.right: arrow.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        LabelOutlet {
            id: title
            owner: root.cell
            outlet: "titleLabel"
            width: parent.width
            points: Theme.bodySize
            silent: true
        }

        LabelOutlet {
            id: detail
            owner: root.cell
            outlet: "detailLabel"
            width: parent.width
            points: Theme.footnoteSize
            color: Theme.softInk
            silent: true
        }
    }

    PictureItem {
        id: arrow
        anchors.right: parent.right
        anchors.rightMargin: 32
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        imageName: "back"
        tint: Theme.faintGlyph
        rotation: 180
    }
}
