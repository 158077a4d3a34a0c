// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.Badges

// The badge shelf.
Rectangle {
    id: root

    required property BadgesViewController controller

    color: Theme.ground

    // A loader that has a size gives it before the controller.
    onWidthChanged: root.controller?.viewWillLayoutSubviews()

    CollectionGrid {
        objectName: "badgesGrid"
        anchors.fill: parent
        focus: true
        collectionView: root.controller.collectionView
        Accessible.name: root.controller.title
        prototype: Component {
            BadgeCell {}
        }
    }

    ViewItem {
        id: empty
        owner: root.controller
        outlet: "emptyLabel"
        anchors.centerIn: parent
        width: parent.width - 64
        height: shelf.height

        Column {
            id: shelf
            width: parent.width
            spacing: 24

            PictureItem {
                width: 240
                height: 180
                anchors.horizontalCenter: parent.horizontalCenter
                imageName: "emptyBadges"
            }

            PlainText {
                width: parent.width
                text: empty.text
                color: Theme.softInk
                wrapMode: Text.Wrap
                lineHeight: 1.2
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
