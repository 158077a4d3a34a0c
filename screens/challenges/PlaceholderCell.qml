// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// The message of a section that is empty.
TableCell {
    id: root

    implicitHeight: 60
    spoken: message.text

    LabelOutlet {
        id: message
        owner: root.cell
        outlet: "messageLabel"
        anchors.fill: parent
        color: Theme.softInk
        alignment: Text.AlignHCenter
        silent: true
    }
}
