// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// The row of an alert: its name and a line about it.
TableCell {
    id: root

    implicitHeight: 64
    spaceBelow: 0
    spoken: title.text + ", " + detail.text

    Rectangle {
        anchors.fill: parent
        color: root.cell?.showsSelection ? Theme.pressed : Theme.card
    }

    LabelOutlet {
        id: title
        owner: root.cell
        outlet: "titleLabel"
        x: 32
        width: parent.width - 64
        anchors.bottom: parent.verticalCenter
        points: Theme.bodySize
        silent: true
    }

    LabelOutlet {
        id: detail
        owner: root.cell
        outlet: "detailLabel"
        x: 32
        width: parent.width - 64
        anchors.top: parent.verticalCenter
        anchors.topMargin: 2
        points: Theme.footnoteSize
        color: Theme.softInk
        silent: true
    }

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.left: title.left
        height: 1
        color: Theme.hairline
    }
}
