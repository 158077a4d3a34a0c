// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Photos

// The user's pictures as a grid, newest first, and the way to those that lie elsewhere.
Rectangle {
    id: root

    required property PhotoLibraryController controller

    color: Theme.ground

    CalmMessage {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: root.controller.choosesElsewhere
        imageName: "photos"
        message: "Choose a picture in the window that opens."
        late: true  // where there is no such window, that is known at once
    }

    CalmMessage {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: root.controller.listing
        imageName: "photos"
        message: "Looking for your pictures."
        late: true
    }

    CalmMessage {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: root.controller.showsGrid && grid.count === 0
        imageName: "photos"
        message: "There are no pictures in your Pictures folder."
        action: "Browse Folders"
        onPressed: root.controller.browse()
    }

    GridView {
        id: grid
        objectName: "photoGrid"
        anchors.fill: parent
        anchors.leftMargin: 6
        anchors.rightMargin: 6
        topMargin: 6
        bottomMargin: 86
        visible: root.controller.showsGrid && grid.count > 0
        cellWidth: Math.floor(width / 3)
        cellHeight: cellWidth
        model: root.controller.photos
        boundsBehavior: contentHeight > height ? Flickable.DragAndOvershootBounds
                                               : Flickable.StopAtBounds
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: root.controller.title
        Accessible.onScrollDownAction: reach.turnPage(1)
        Accessible.onScrollUpAction: reach.turnPage(-1)

        KeyboardReach {
            id: reach
            area: grid
        }

        delegate: ButtonBase {
            id: photo

            required property int index
            required property string name
            required property imageHandle thumbnail

            width: grid.cellWidth
            height: grid.cellHeight
            text: photo.name
            scale: photo.down ? 0.96 : 1
            ring.anchors.margins: 2
            ring.radius: 14
            onClicked: root.controller.choose(photo.index)
            Component.onCompleted: root.controller.photos.show(photo.index)
            Component.onDestruction: root.controller.photos.hide(photo.index)

            PictureItem {
                anchors.fill: parent
                anchors.margins: 4
                radius: 12
                image: photo.thumbnail
                ground: Theme.pictureGround
            }
        }
    }

    PillButton {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 18
        visible: grid.visible
        filled: false
        textColor: Appearance.tintedText
        text: "Browse Folders"
        onClicked: root.controller.browse()
    }

    OpeningVeil {
        anchors.fill: parent
        visible: root.controller.opening
    }
}
