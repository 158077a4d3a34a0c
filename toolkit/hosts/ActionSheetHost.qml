// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws an action sheet: rows that rise from below, the cancelling one in a block of its own.
DimmedLayer {
    id: root

    onClickedBeside: root.controller.goBack()

    Column {
        id: sheet
        objectName: "actionSheet"
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(root.width, 480) - 16
        y: root.height - (height + 8) * (Theme.stillness ? 1 : root.progress)
        opacity: Theme.stillness ? root.progress : 1
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.controller.alertTitle

        Rectangle {
            width: parent.width
            height: texts.height
            visible: root.controller.alertTitle !== "" || root.controller.alertMessage !== ""
            radius: Theme.panelRadius
            color: Theme.raised

            AlertTexts {
                id: texts
                width: parent.width
                topPadding: 14
                bottomPadding: 14
                margin: 14
                titlePoints: Theme.footnoteSize
                color: Theme.softInk
                controller: root.controller
            }
        }

        Repeater {
            model: root.controller.actionTitles

            delegate: AlertButton {
                id: action

                controller: root.controller
                points: Theme.title3Size
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
