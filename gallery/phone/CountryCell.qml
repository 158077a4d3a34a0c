// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A country's row: the tick when it is chosen, the name, and the calling code.
TableCell {
    id: root

    implicitHeight: 48
    spaceBelow: 0
    spoken: name.text + ", " + code.text
    checkable: true
    checked: root.cell?.hasCheckmark ?? false

    Rectangle {
        anchors.fill: parent
        color: root.cell?.showsSelection ? Theme.pressed : Theme.card
    }

    PictureItem {
        x: 16
        width: 16
        height: 16
        anchors.verticalCenter: parent.verticalCenter
        imageName: "checkmark"
        tint: Appearance.tintedText
        visible: root.checked
    }

    LabelOutlet {
        id: name
        owner: root.cell
        outlet: "nameLabel"
        anchors.left: parent.left
        anchors.leftMargin: 48
        anchors.right: code.left
        anchors.rightMargin: 8
        height: parent.height
        silent: true
    }

    LabelOutlet {
        id: code
        owner: root.cell
        outlet: "codeLabel"
        anchors.right: parent.right
        anchors.rightMargin: 16
        width: 56
        height: parent.height
        color: Theme.softInk
        alignment: Text.AlignRight
        silent: true
    }

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.left: name.left
        height: 1
        color: Theme.hairline
    }
}
