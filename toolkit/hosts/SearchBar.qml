// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// The line above a table in which the user types what to look for.
Rectangle {
    id: root

    required property UISearchBar bar

    implicitHeight: root.bar.height
    color: Theme.drawnGround(root.bar.backgroundColor, Theme.card)
    onWidthChanged: root.bar.reportWidth(root.width)

    Rectangle {
        id: well
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: cancel.left
        anchors.rightMargin: cancel.visible ? 0 : 12
        anchors.verticalCenter: parent.verticalCenter
        height: 34
        radius: 10
        color: Theme.well

        PictureItem {
            id: lens
            x: 9
            width: 16
            height: 16
            anchors.verticalCenter: parent.verticalCenter
            imageName: "lens"
            tint: Theme.glyph
        }

        TextField {
            id: field
            objectName: "searchField"
            anchors.left: lens.right
            anchors.leftMargin: 7
            anchors.right: clear.left
            anchors.top: parent.top
            anchors.bottom: parent.bottom
            record: root.bar.searchTextField
            label: field.placeholder
            escapes: root.bar.showsCancelButton
            onPressed: root.bar.press()
            onEscaped: root.bar.cancel()
        }

        ButtonBase {
            id: clear
            objectName: "clearButton"
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: visible ? 34 : 9
            height: 44
            visible: field.text !== ""
            // A pointer leaves the keyboard in the field.
            focusPolicy: Qt.TabFocus
            text: qsTr("Clear text")
            onClicked: {
                root.bar.edit("");
                root.bar.press();
            }

            contentItem: Item {
                PictureItem {
                    anchors.centerIn: parent
                    width: 18
                    height: 18
                    imageName: "clear"
                    tint: Theme.glyph
                }
            }
        }
    }

    ButtonBase {
        id: cancel
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: visible ? implicitWidth : 0
        implicitWidth: label.implicitWidth + 24
        height: 44
        visible: root.bar.showsCancelButton
        text: qsTr("Cancel")
        opacity: cancel.pressed ? 0.5 : 1
        ring.anchors.margins: 2
        ring.radius: 10
        onClicked: root.bar.cancel()

        contentItem: PlainText {
            id: label
            text: cancel.text
            scales: false
            color: Appearance.tintedText
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
