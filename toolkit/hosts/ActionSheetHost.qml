// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws an action sheet: rows that rise from below, the cancelling one in a block of its own.
FocusScope {
    id: root

    required property UIAlertController controller
    readonly property real progress: root.controller.presentationProgress

    Rectangle {
        anchors.fill: parent
        color: Theme.dim
        opacity: 0.4 * root.progress
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.controller.goBack()
        onWheel: wheel => wheel.accepted = true
    }

    Column {
        id: sheet
        objectName: "actionSheet"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(root.width, 480) - 16
        y: root.height - (height + 8) * root.progress
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.controller.alertTitle

        Rectangle {
            width: parent.width
            height: texts.height
            visible: root.controller.alertTitle !== "" || root.controller.alertMessage !== ""
            radius: Theme.panelRadius
            color: Theme.raised

            Column {
                id: texts
                width: parent.width
                padding: 14
                spacing: 4

                PlainText {
                    width: parent.width - 28
                    visible: text !== ""
                    text: root.controller.alertTitle
                    font: Appearance.boldFont(13)
                    color: Theme.softInk
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }

                PlainText {
                    width: parent.width - 28
                    visible: text !== ""
                    text: root.controller.alertMessage
                    points: 13
                    color: Theme.softInk
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
            }
        }

        Repeater {
            model: root.controller.actionTitles

            delegate: AlertButton {
                id: action

                controller: root.controller
                points: 19
                width: sheet.width
                implicitHeight: 56
                topInset: 4
                bottomInset: 0
                focus: root.controller.cancelIndex < 0 ? action.last : action.cancels
                ring.parent: action.background
                ring.anchors.margins: 3
                ring.radius: 11

                background: Rectangle {
                    radius: Theme.panelRadius
                    color: action.pressed ? Theme.pressed
                                          : Theme.raised
                }
            }
        }
    }
}
