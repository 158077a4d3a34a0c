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
            radius: container.shadowRadius
            blur: 6
            opacity: container.shadowOpacity
        }

        PictureOutlet {
            owner: root.cell
            outlet: "badgeImageView"
            anchors.fill: parent
            radius: Theme.tileRadius
            ground: Theme.pictureGround
        }
    }

    LabelOutlet {
        id: name
        owner: root.cell
        outlet: "badgeLabel"
        anchors.top: container.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        width: parent.width
        points: Theme.captionSize
        lines: 2
        alignment: Text.AlignHCenter
        verticalAlignment: Text.AlignTop
        silent: true
    }
}
