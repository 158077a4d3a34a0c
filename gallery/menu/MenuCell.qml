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
        border.width: 1
        border.color: Theme.cardBorder
    }

    ViewItem {
        id: picture
        owner: root.cell
        outlet: "pictureView"
        x: 32
        width: 48
        height: 48
        anchors.verticalCenter: parent.verticalCenter

        PictureItem {
            anchors.fill: parent
            radius: Theme.panelRadius
            image: picture.image
            ground: Theme.pictureGround
        }
    }

    Column {
        anchors.left: picture.right
        anchors.leftMargin: 16
        anchors.right: arrow.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        ViewItem {
            id: title
            owner: root.cell
            outlet: "titleLabel"
            width: parent.width
            implicitHeight: titleText.implicitHeight

            PlainText {
                id: titleText
                width: parent.width
                text: title.text
                points: 17
                Accessible.ignored: true
            }
        }

        ViewItem {
            id: detail
            owner: root.cell
            outlet: "detailLabel"
            width: parent.width
            implicitHeight: detailText.implicitHeight

            PlainText {
                id: detailText
                width: parent.width
                text: detail.text
                points: 13
                color: Theme.softInk
                Accessible.ignored: true
            }
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
