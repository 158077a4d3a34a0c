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
        radius: Theme.cardRadius
        image: root.image
        ground: Theme.pictureGround
    }
}
