// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws an alert: a card in the middle of the dimmed window.
FocusScope {
    id: root

    required property UIAlertController controller
    readonly property real progress: root.controller.presentationProgress
    readonly property bool sideBySide: root.controller.actionTitles.length === 2

    Rectangle {
        anchors.fill: parent
        color: Theme.dim
        opacity: 0.4 * root.progress
    }

    // Nothing below may be touched.
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }

    Rectangle {
        id: card
        objectName: "alertCard"
        anchors.centerIn: parent
        width: 270
        height: body.height + buttons.height
        radius: Theme.panelRadius
        color: Theme.raised
        opacity: root.progress
        scale: 1.12 - 0.12 * root.progress
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

            Column {
                id: texts
                width: parent.width
                topPadding: 20
                bottomPadding: 20
                spacing: 4

                PlainText {
                    x: 16
                    width: parent.width - 32
                    visible: text !== ""
                    text: root.controller.alertTitle
                    Accessible.ignored: true
                    font: Appearance.boldFont(17)
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }

                PlainText {
                    x: 16
                    width: parent.width - 32
                    visible: text !== ""
                    text: root.controller.alertMessage
                    points: 13
                    wrapMode: Text.Wrap
                    lineHeight: 1.1
                    horizontalAlignment: Text.AlignHCenter
                }
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
                    points: 17
                    width: root.sideBySide ? card.width / 2 : card.width
                    implicitHeight: 48
                    focus: action.last
                    ring.anchors.margins: 4
                    ring.radius: 10

                    background: Rectangle {
                        radius: card.radius
                        color: action.pressed ? Qt.alpha(Theme.dim, 0.08) : "transparent"

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
