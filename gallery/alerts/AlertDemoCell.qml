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

    ViewItem {
        id: title
        owner: root.cell
        outlet: "titleLabel"
        x: 32
        width: parent.width - 64
        anchors.bottom: parent.verticalCenter
        implicitHeight: titleText.implicitHeight

        PlainText {
            id: titleText
            width: parent.width
            text: title.text
            points: 17
            Accessible.ignored: true
        }
    }

    ViewItem {
        id: detail
        owner: root.cell
        outlet: "detailLabel"
        x: 32
        width: parent.width - 64
        anchors.top: parent.verticalCenter
        anchors.topMargin: 2
        implicitHeight: detailText.implicitHeight

        PlainText {
            id: detailText
            width: parent.width
            text: detail.text
            points: 13
            color: Theme.softInk
            Accessible.ignored: true
        }
    }

    Rectangle {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.left: title.left
        height: 1
        color: Theme.hairline
    }
}
