// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws the picture of an outlet. Its corners are the page's where the controller leaves them open.
ViewItem {
    id: root

    property real radius: 0
    // Shows when there is no picture.
    property color ground: "transparent"

    PictureItem {
        anchors.fill: parent
        radius: root.cornerRadius > 0 ? root.cornerRadius : root.radius
        image: root.image
        tint: root.imageTint
        fits: root.imageFits
        ground: root.ground
    }
}
