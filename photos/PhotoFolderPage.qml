// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Photos

// A folder's folders and pictures, one a row.
Rectangle {
    id: root

    required property PhotoFolderController controller

    color: Theme.ground

    CalmMessage {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: root.controller.listed && list.count === 0
        imageName: "photos"
        message: "There are no folders and no pictures here."
    }

    CalmMessage {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: !root.controller.listed
        imageName: "photos"
        message: "Looking into the folder."
        late: true
    }

    ListView {
        id: list
        objectName: "folderList"
        anchors.fill: parent
        topMargin: 8
        bottomMargin: 16
        model: root.controller.files
        boundsBehavior: contentHeight > height ? Flickable.DragAndOvershootBounds
                                               : Flickable.StopAtBounds
        keyNavigationEnabled: false
        Accessible.role: Accessible.List
        Accessible.name: root.controller.title
        Accessible.onScrollDownAction: reach.turnPage(1)
        Accessible.onScrollUpAction: reach.turnPage(-1)

        KeyboardReach {
            id: reach
            area: list
        }

        delegate: ButtonBase {
            id: file

            required property int index
            required property string name
            required property bool isFolder
            required property imageHandle thumbnail

            width: list.width
            height: 60
            text: file.name
            ring.anchors.margins: 2
            ring.radius: 10
            onClicked: root.controller.choose(file.index)
            Component.onCompleted: root.controller.files.show(file.index)
            Component.onDestruction: root.controller.files.hide(file.index)

            background: Rectangle {
                color: file.down ? Theme.pressed : "transparent"
            }

            PictureItem {
                id: picture
                x: 16
                width: 44
                height: 44
                anchors.verticalCenter: parent.verticalCenter
                visible: !file.isFolder
                radius: 8
                image: file.thumbnail
                ground: Theme.pictureGround
            }

            PictureItem {
                anchors.fill: picture
                anchors.margins: 2
                visible: file.isFolder
                imageName: "folder"
                tint: Appearance.tint
            }

            PlainText {
                anchors.left: picture.right
                anchors.leftMargin: 16
                anchors.right: parent.right
                anchors.rightMargin: 16
                anchors.verticalCenter: parent.verticalCenter
                text: file.text
                points: Theme.bodySize
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
        }
    }

    OpeningVeil {
        anchors.fill: parent
        visible: root.controller.opening
    }
}
