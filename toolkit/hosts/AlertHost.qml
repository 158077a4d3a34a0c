// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws an alert: a card in the middle of the dimmed window.
DimmedLayer {
    id: root

    readonly property bool sideBySide: root.controller.actionTitles.length === 2
                                       && root.fitsHalf(root.controller.actionTitles[0])
                                       && root.fitsHalf(root.controller.actionTitles[1])
    property bool arrived: false

    function fitsHalf(title) {
        return metrics.advanceWidth(title) + 16 <= card.width / 2;
    }

    onProgressChanged: if (root.progress >= 1) root.arrived = true

    FontMetrics {
        id: metrics
        font: Appearance.boldFont(Theme.bodySize, Theme.textScale)
    }

    Rectangle {
        id: card
        objectName: "alertCard"
        anchors.centerIn: parent
        width: Math.min(270 * Theme.textScale, root.width - 32)
        height: body.height + buttons.height
        radius: Theme.panelRadius
        color: Theme.raised
        opacity: root.progress
        // It settles as it comes, and only fades as it goes.
        scale: root.arrived || Theme.stillness ? 1 : 1.12 - 0.12 * root.progress
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.controller.alertTitle

        Flickable {
            id: body
            width: parent.width
            height: Math.min(texts.height, root.height - 80 - buttons.height)
            contentHeight: texts.height
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive

            AlertTexts {
                id: texts
                width: parent.width
                topPadding: 20
                bottomPadding: 20
                controller: root.controller
                titleSilent: true
            }
        }

        Grid {
            id: buttons
            anchors.bottom: parent.bottom
            width: parent.width
            columns: root.sideBySide ? 2 : 1

            Repeater {
                model: root.controller.actionTitles

                delegate: AlertButton {
                    id: action

                    controller: root.controller
                    points: Theme.bodySize
                    width: root.sideBySide ? card.width / 2 : card.width
                    implicitHeight: 48
                    focus: action.last
                    ring.anchors.margins: 4
                    ring.radius: 10

                    background: Rectangle {
                        radius: card.radius
                        color: action.pressed ? Qt.alpha(Theme.ink, 0.08) : "transparent"

                        Rectangle {
                            width: parent.width
                            height: 1
                            color: Theme.hairline
                        }

                        Rectangle {
                            width: 1
                            height: parent.height
                            visible: root.sideBySide && action.index === 1
                            color: Theme.hairline
                        }
                    }
                }
            }
        }
    }
}
