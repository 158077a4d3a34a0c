// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// The challenge's picture as a card with rounded corners.
ViewItem {
    id: root

    objectName: "imageView"
    outlet: objectName

    PictureItem {
        anchors.fill: parent
        radius: 20
        image: root.image
        ground: Qt.rgba(0.88, 0.88, 0.88, 1)
    }
}
