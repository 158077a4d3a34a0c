// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A badge: the picture on its shadow, and the title below.
CollectionCell {
    id: root

    spoken: name.text

    ViewItem {
        id: container
        owner: root.cell
        outlet: "imageContainerView"
        anchors.horizontalCenter: parent.horizontalCenter
        y: 2
        width: Math.min(root.width - 4, 100)
        height: width
        transform: Translate { y: container.translation.y }

        ShadowItem {
            width: parent.width
            height: parent.height
            x: container.shadowOffset.x
            y: container.shadowOffset.y
            radius: Theme.tileRadius
            blur: 6
            opacity: container.shadowOpacity
        }

        ViewItem {
            id: picture
            owner: root.cell
            outlet: "badgeImageView"
            anchors.fill: parent

            PictureItem {
                anchors.fill: parent
                radius: Theme.tileRadius
                image: picture.image
                ground: Theme.pictureGround
            }
        }
    }

    ViewItem {
        id: name
        owner: root.cell
        outlet: "badgeLabel"
        anchors.top: container.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        width: parent.width

        PlainText {
            width: parent.width
            text: name.text
            points: 12
            color: name.textColor
            wrapMode: Text.Wrap
            maximumLineCount: 2
            horizontalAlignment: Text.AlignHCenter
            Accessible.ignored: true
        }
    }
}
