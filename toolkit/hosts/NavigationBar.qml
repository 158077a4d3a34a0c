// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// The bar above the pages: back, title under its prompt, and the page's own buttons.
Item {
    id: root

    required property UINavigationController controller
    readonly property UINavigationItem item: root.controller.topViewController.navigationItem
    readonly property bool hasPrompt: root.item.prompt !== ""

    implicitHeight: root.hasPrompt ? 74 : 44

    Rectangle {
        anchors.fill: parent
        color: Appearance.barTint
    }

    Item {
        anchors.fill: parent
        opacity: root.controller.barProgress

        PlainText {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 10
            width: Math.min(implicitWidth, root.width - 32)
            visible: root.hasPrompt
            text: root.item.prompt
            points: Theme.footnoteSize
            scales: false
            color: Appearance.barTitle
        }

        PlainText {
            id: title
            // Centred in the bar, but never under a button.
            readonly property real reserved: 8 + Math.max(back.visible ? back.width : 0,
                                                          leftItem.visible ? leftItem.width : 0,
                                                          rightItem.visible ? rightItem.width : 0)
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            height: 44
            width: Math.min(implicitWidth, root.width - 2 * title.reserved)
            verticalAlignment: Text.AlignVCenter
            text: root.item.title
            font: Appearance.barTitleFont
            color: Appearance.barTitle
            Accessible.role: Accessible.Heading
        }

        BarButton {
            id: back
            objectName: "backButton"
            anchors.left: parent.left
            anchors.bottom: parent.bottom
            visible: root.controller.showsBackButton
            text: qsTr("Back")
            imageName: "back"
            onClicked: root.controller.goBack()
        }

        BarButton {
            id: leftItem
            anchors.left: parent.left
            anchors.bottom: parent.bottom
            visible: root.item.leftBarButtonItem !== null
            enabled: root.item.leftBarButtonItem?.enabled ?? false
            text: root.item.leftBarButtonItem?.title ?? ""
            imageName: root.item.leftBarButtonItem?.imageName ?? ""
            onClicked: root.item.leftBarButtonItem.press()
        }

        BarButton {
            id: rightItem
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            visible: root.item.rightBarButtonItem !== null
            enabled: root.item.rightBarButtonItem?.enabled ?? false
            text: root.item.rightBarButtonItem?.title ?? ""
            imageName: root.item.rightBarButtonItem?.imageName ?? ""
            onClicked: root.item.rightBarButtonItem.press()
        }
    }
}
