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

    Column {
        anchors.centerIn: parent
        width: parent.width - 64
        spacing: 24
        visible: empty.shown

        PictureItem {
            width: 240
            height: 180
            anchors.horizontalCenter: parent.horizontalCenter
            imageName: "emptyBadges"
        }

        LabelOutlet {
            id: empty
            owner: root.controller
            outlet: "emptyLabel"
            width: parent.width
            color: Theme.softInk
            lines: 0
            alignment: Text.AlignHCenter
        }
    }
}
