// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// Draws an action sheet: rows that rise from below, the cancelling one in a block of its own.
FocusScope {
    id: root

    required property UIAlertController controller
    readonly property real progress: root.controller.presentationProgress

    Rectangle {
        anchors.fill: parent
        color: "black"
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
            radius: 14
            color: Qt.rgba(0.985, 0.985, 0.985, 1)

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
                    color: Qt.rgba(0.45, 0.45, 0.45, 1)
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }

                PlainText {
                    width: parent.width - 28
                    visible: text !== ""
                    text: root.controller.alertMessage
                    points: 13
                    color: Qt.rgba(0.45, 0.45, 0.45, 1)
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                }
            }
        }

        Repeater {
            model: root.controller.actionTitles

            delegate: T.Button {
                id: action

                required property int index
                required property string modelData
                readonly property bool cancels: action.index === root.controller.cancelIndex
                readonly property bool destroys:
                    root.controller.destructiveIndexes.indexOf(action.index) >= 0

                width: sheet.width
                implicitHeight: 56
                topInset: 4
                bottomInset: 0
                focusPolicy: Qt.StrongFocus
                focus: action.cancels
                text: action.modelData
                Accessible.name: action.text
                onClicked: root.controller.choose(action.index)
                Keys.onReturnPressed: action.clicked()
                Keys.onEnterPressed: action.clicked()

                background: Rectangle {
                    radius: 14
                    color: action.pressed ? Qt.rgba(0.9, 0.9, 0.9, 1)
                                          : Qt.rgba(0.985, 0.985, 0.985, 1)

                    FocusRing {
                        visible: action.visualFocus
                        anchors.margins: 3
                        radius: 11
                    }
                }

                contentItem: PlainText {
                    text: action.text
                    Accessible.ignored: true
                    font: action.cancels ? Appearance.boldFont(19) : Appearance.font(19)
                    color: action.destroys ? Qt.rgba(0.82, 0.01, 0.11, 1)
                                           : Qt.darker(Appearance.tint, 1.5)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
            }
        }
    }
}
