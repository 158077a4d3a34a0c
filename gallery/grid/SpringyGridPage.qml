// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Effects
import Kindora.Gallery
import Kindora.Platform

// The springy layout with a thousand cells.
Rectangle {
    id: root

    required property SpringyGridViewController controller

    color: Qt.rgba(0.96, 0.96, 0.96, 1)

    CollectionGrid {
        objectName: "springyGrid"
        anchors.fill: parent
        anchors.bottomMargin: caption.height
        focus: true
        collectionView: root.controller.collectionView
        Accessible.name: root.controller.title
        prototype: Component {
            ColorCellView {}
        }
    }

    Rectangle {
        id: caption
        anchors.bottom: parent.bottom
        width: parent.width
        height: 48
        color: "white"

        Rectangle {
            width: parent.width
            height: 1
            color: Qt.rgba(0.88, 0.88, 0.88, 1)
        }

        PlainText {
            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            text: root.controller.caption
            color: Qt.rgba(0.45, 0.45, 0.45, 1)
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }
}
