// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Makes a view that was made in code something to press.
TapItem {
    id: root

    ButtonBase {
        anchors.fill: parent
        enabled: root.tappable
        hoverEnabled: false
        text: root.spoken
        // Above all that the view shows.
        ring.parent: root.parent
        ring.z: Depth.FocusRing
        ring.anchors.margins: 2
        ring.radius: 6

        onDownChanged: root.press(down)
        onClicked: root.tap()
    }
}
