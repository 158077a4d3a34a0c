// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a navigation controller: the bar, and the pages of which the top one lies above the others.
FocusScope {
    id: root

    required property UINavigationController controller

    NavigationBar {
        id: bar
        width: parent.width
        controller: root.controller
        z: 1
    }

    Rectangle {
        id: area
        anchors.top: bar.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        color: root.controller.backgroundColor

        Repeater {
            model: root.controller.pages

            delegate: PageLoader {
                id: page

                required property int index
                readonly property int depth: root.controller.pages.count - 1 - page.index
                readonly property real progress: root.controller.topProgress

                width: area.width
                height: area.height
                // The page below moves at a third of the pace, which reads as depth.
                x: page.depth === 0 ? (1 - page.progress) * width : -0.3 * page.progress * width
                visible: page.depth === 0 || (page.depth === 1 && page.progress < 1)
                enabled: page.depth === 0 && !root.controller.transitioning
                focus: page.depth === 0

                Rectangle {
                    anchors.fill: parent
                    z: 1
                    visible: page.depth === 1
                    color: Theme.dim
                    opacity: 0.12 * page.progress
                }

                Rectangle {
                    anchors.right: parent.left
                    width: 1
                    height: parent.height
                    z: 1
                    visible: page.depth === 0 && page.progress < 1
                    color: Qt.alpha(Theme.dim, 0.12)
                }
            }
        }
    }

    // Back by a swipe from the left edge.
    Item {
        width: 20
        height: parent.height
        z: 2
        enabled: root.controller.canGoBack || edge.active

        DragHandler {
            id: edge

            target: null
            yAxis.enabled: false
            onActiveChanged: {
                if (active) {
                    if (!root.controller.beginBackGesture())
                        enabled = false;
                } else {
                    root.controller.endBackGesture(root.controller.topProgress < 0.6);
                    enabled = true;
                }
            }
            onTranslationChanged: if (active)
                root.controller.moveBackGesture(1 - translation.x / root.width)
        }
    }
}
