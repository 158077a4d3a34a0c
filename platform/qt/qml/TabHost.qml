// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Platform

// Draws a tab bar controller: the selected page above the bar of tabs.
FocusScope {
    id: root

    required property UITabBarController controller

    Item {
        id: area
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: bar.top
        clip: true

        Repeater {
            model: root.controller.pages

            delegate: Loader {
                id: slot

                required property int index
                required property UIViewController controller
                readonly property bool selected: slot.index === root.controller.selectedIndex

                anchors.fill: parent
                visible: slot.selected
                focus: slot.selected
                // A page is drawn from the first time that its tab is selected.
                active: false
                onSelectedChanged: if (slot.selected) slot.active = true
                Component.onCompleted: if (slot.selected) slot.active = true

                sourceComponent: PageLoader {
                    controller: slot.controller
                    focus: true
                }
            }
        }
    }

    Rectangle {
        id: bar
        objectName: "tabBar"
        width: parent.width
        height: 49
        anchors.bottom: parent.bottom
        color: Qt.rgba(0.985, 0.985, 0.985, 1)
        enabled: root.controller.tabBar.userInteractionEnabled
        Accessible.role: Accessible.PageTabList

        Rectangle {
            width: parent.width
            height: 1
            color: Qt.rgba(0.88, 0.88, 0.88, 1)
        }

        Row {
            anchors.fill: parent

            Repeater {
                model: root.controller.pages

                delegate: TabButton {
                    required property int index
                    required property UIViewController controller

                    width: bar.width / root.controller.pages.count
                    height: bar.height
                    item: controller.tabBarItem
                    selected: index === root.controller.selectedIndex
                    onClicked: root.controller.pressTab(index)
                }
            }
        }
    }
}
