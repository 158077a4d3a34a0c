// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a tab bar controller: the selected page above the bar of tabs.
FocusScope {
    id: root

    required property UITabBarController controller

    // Above the bar, so that a page can send something flying into a tab.
    Item {
        id: area
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: bar.top
        z: 1
        enabled: !overlay.covered

        Repeater {
            model: root.controller.pages

            // A page is drawn from the first time that its tab is selected, and out of reach while
            // another one is.
            delegate: CoverableItem {
                id: slot

                required property int index
                required property UIViewController controller
                readonly property bool selected: slot.index === root.controller.selectedIndex
                property bool visited: false

                anchors.fill: parent
                visible: slot.selected
                covered: !slot.selected
                focus: slot.selected
                Accessible.role: Accessible.Grouping
                onSelectedChanged: if (slot.selected) slot.visited = true
                Component.onCompleted: if (slot.selected) slot.visited = true

                Loader {
                    anchors.fill: parent
                    active: slot.visited
                    focus: true
                    Accessible.role: Accessible.Pane
                    sourceComponent: PageLoader {
                        controller: slot.controller
                        focus: true
                    }
                }
            }
        }
    }

    ViewItem {
        id: bar
        objectName: "tabBar"
        owner: root.controller.tabBar
        outlet: objectName
        width: parent.width
        height: 49
        anchors.bottom: parent.bottom
        Accessible.role: Accessible.PageTabList

        Rectangle {
            anchors.fill: parent
            color: Theme.raised
        }

        ViewItem {
            owner: root.controller.tabBar
            outlet: "hairline"
            width: parent.width
            height: 1

            Rectangle {
                anchors.fill: parent
                color: Theme.hairline
            }
        }

        Repeater {
            model: root.controller.pages

            delegate: ViewItem {
                id: tab

                required property int index
                required property UIViewController controller

                owner: root.controller.tabBar
                outlet: "tab" + index
                x: index * width
                width: bar.width / root.controller.pages.count
                height: bar.height

                TabButton {
                    anchors.fill: parent
                    enabled: !overlay.covered
                    item: tab.controller.tabBarItem
                    selected: tab.index === root.controller.selectedIndex
                    onClicked: root.controller.pressTab(tab.index)
                }
            }
        }
    }

    // What controllers lay over everything.
    SubviewsItem {
        id: overlay
        owner: root.controller
        outlet: "view"
        anchors.fill: parent
        z: 2
    }
}
