// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// The last row of the picker, which leads to the invitation.
TableCell {
    id: root

    implicitHeight: 60
    spaceBelow: 0
    spoken: message.text

    Rectangle {
        anchors.fill: parent
        color: Theme.card
    }

    LabelOutlet {
        id: message
        owner: root.cell
        outlet: "messageLabel"
        anchors.fill: parent
        alignment: Text.AlignHCenter
        silent: true
    }
}
