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
        color: Theme.drawnGround(root.controller.backgroundColor, Theme.card)
        // What slides out does not lie on what stands beside.
        clip: root.controller.topProgress < 1

        Repeater {
            model: root.controller.pages

            // Out of reach while another page lies above it.
            delegate: CoverableItem {
                id: page

                required property int index
                required property UIViewController controller
                readonly property int depth: root.controller.pages.count - 1 - page.index
                readonly property real progress: root.controller.topProgress

                width: area.width
                height: area.height
                // The page below moves at a third of the pace, which reads as depth. Without
                // motion the upper one fades in.
                x: Theme.stillness ? 0
                                   : page.depth === 0 ? (1 - page.progress) * width
                                                      : -0.3 * page.progress * width
                opacity: Theme.stillness && page.depth === 0 ? page.progress : 1
                visible: page.depth === 0 || (page.depth === 1 && page.progress < 1)
                covered: page.depth > 0
                focus: page.depth === 0
                Accessible.role: Accessible.Grouping

                PageLoader {
                    anchors.fill: parent
                    controller: page.controller
                    enabled: !root.controller.transitioning
                    focus: true
                    Accessible.role: Accessible.Pane
                }

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

            // In widths a second; a finger that rests loses it.
            property real speed: 0

            target: null
            // Also from the swipe of a row on which the finger lies.
            grabPermissions: PointerHandler.CanTakeOverFromAnything
            yAxis.enabled: false
            onActiveChanged: {
                if (active) {
                    speed = 0;
                    if (!root.controller.beginBackGesture())
                        enabled = false;
                } else {
                    root.controller.releaseBackGesture(speed);
                    enabled = true;
                }
            }
            onTranslationChanged: if (active) {
                root.controller.moveBackGesture(1 - translation.x / root.width);
                resting.stop();
                speed = centroid.velocity.x / root.width;
                resting.start();
            }
        }

        NumberAnimation {
            id: resting
            target: edge
            property: "speed"
            to: 0
            duration: 100
        }
    }
}
