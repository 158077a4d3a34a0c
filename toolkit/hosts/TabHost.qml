// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a tab bar controller: the selected page above the bar of tabs, or, where the window is
// flat, beside it.
FocusScope {
    id: root

    required property UITabBarController controller
    readonly property bool flat: height < 480 && width > height

    // Above the bar, so that a page can send something flying into a tab.
    Item {
        id: area
        x: root.flat ? bar.width : 0
        width: parent.width - x
        height: parent.height - (root.flat ? 0 : bar.height)
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
        width: root.flat ? 72 : parent.width
        height: root.flat ? parent.height : 49
        anchors.bottom: parent.bottom
        Accessible.role: Accessible.PageTabList

        Rectangle {
            anchors.fill: parent
            color: Theme.raised
        }

        ViewItem {
            owner: root.controller.tabBar
            outlet: "hairline"
            x: root.flat ? bar.width - 1 : 0
            width: root.flat ? 1 : bar.width
            height: root.flat ? bar.height : 1

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
                x: root.flat ? 0 : index * width
                y: root.flat ? 8 + index * height : 0
                width: root.flat ? bar.width : bar.width / root.controller.pages.count
                height: root.flat ? 64 : bar.height

                TabButton {
                    width: parent.width
                    anchors.verticalCenter: parent.verticalCenter
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
