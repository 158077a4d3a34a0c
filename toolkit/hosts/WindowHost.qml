// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a window: its root controller, and above it whatever is presented.
FocusScope {
    id: root

    required property UIWindow host
    // The topmost presentation that hides all below it; -1 while there is none.
    readonly property int cover: {
        let topmost = -1;
        for (let i = 0; i < presentations.count; ++i) {
            if ((presentations.itemAt(i) as PresentedLayer)?.covers)
                topmost = i;
        }
        return topmost;
    }

    // Pages come in from the side.
    clip: true
    onWidthChanged: root.host.reportSize(root.width, root.height)
    onHeightChanged: root.host.reportSize(root.width, root.height)
    Component.onCompleted: root.host.reportSize(root.width, root.height)

    CoverableItem {
        anchors.fill: parent
        visible: root.cover < 0
        focus: !covered
        covered: root.host.presentations.count > 0
        Accessible.role: Accessible.Grouping

        PageLoader {
            anchors.fill: parent
            focus: true
            controller: root.host.rootViewController
            Accessible.role: Accessible.Pane
        }
    }

    Repeater {
        id: presentations
        model: root.host.presentations

        delegate: PresentedLayer {
            id: presented

            required property int index

            width: root.width
            height: root.height
            visible: root.cover <= presented.index
            focus: !presented.covered
            covered: presented.index < root.host.presentations.count - 1
        }
    }
}
