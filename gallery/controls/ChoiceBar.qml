// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Hosts

// One of a few, side by side.
Rectangle {
    id: root

    // Texts.
    required property var names
    required property int current
    signal chosen(int index)

    implicitHeight: 48
    radius: Theme.panelRadius
    color: Theme.well

    Row {
        anchors.fill: parent
        anchors.margins: 4

        Repeater {
            model: root.names

            delegate: T.RadioButton {
                id: choice

                required property int index
                required property string modelData

                width: (root.width - 8) / root.names.length
                height: root.height - 8
                text: choice.modelData
                checked: choice.index === root.current
                focusPolicy: Qt.StrongFocus
                Accessible.name: choice.text
                Accessible.checkable: true
                onClicked: root.chosen(choice.index)

                ButtonBehavior {
                    button: choice
                    ring.radius: 12
                }

                background: Rectangle {
                    radius: 10
                    color: choice.checked ? Theme.card : "transparent"
                    border.width: choice.checked ? 1 : 0
                    border.color: Theme.controlBorder
                }

                contentItem: PlainText {
                    text: choice.text
                    points: Theme.subheadlineSize
                    bold: choice.checked
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 11
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Accessible.ignored: true
                }
            }
        }
    }
}
