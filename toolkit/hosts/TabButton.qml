// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// One tab of the tab bar: glyph, title, and the bubble with its badge.
T.TabButton {
    id: root

    required property UITabBarItem item
    required property bool selected
    readonly property color shade: root.selected ? Appearance.tint : Theme.glyph

    implicitHeight: 49
    text: root.item.title
    focusPolicy: Qt.StrongFocus
    // The controller says which tab is the selected one.
    checkable: false
    Accessible.name: root.item.badgeValue !== "" ? root.text + ", " + root.item.badgeValue
                                                 : root.text
    Accessible.selected: root.selected
    Accessible.selectable: true

    ButtonBehavior {
        button: root
        ring.anchors.margins: 2
        ring.radius: 10
    }

    contentItem: Item {
        PictureItem {
            id: glyph
            anchors.horizontalCenter: parent.horizontalCenter
            y: 5
            width: 25
            height: 25
            imageName: root.item.imageName
            tint: root.shade
            scale: root.pressed ? 0.9 : 1

            Behavior on scale {
                NumberAnimation { duration: Theme.pressDuration }
            }
        }

        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 3
            text: root.text
            font: Appearance.tabFont
            color: root.shade
            Accessible.ignored: true
        }

        Rectangle {
            anchors.left: glyph.right
            anchors.leftMargin: -8
            y: 2
            visible: root.item.badgeValue !== ""
            width: Math.max(18, value.implicitWidth + 10)
            height: 18
            radius: 9
            color: Theme.danger

            PlainText {
                id: value
                anchors.centerIn: parent
                text: root.item.badgeValue
                points: Theme.captionSize
                bold: true
                scales: false
                color: Theme.inkOnDanger
                Accessible.ignored: true
            }
        }
    }
}
