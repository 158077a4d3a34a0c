// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Gallery.Grid
import Kindora.Gallery.Controls
import Kindora.Toolkit.Hosts

// The springy layout with a thousand cells.
Rectangle {
    id: root

    required property SpringyGridViewController controller

    color: Theme.ground

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

    CaptionBar {
        id: caption
        text: root.controller.caption
    }
}
