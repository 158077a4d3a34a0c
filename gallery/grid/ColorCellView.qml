// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Gallery.Grid
import Kindora.Toolkit.Hosts

// A coloured square that sinks when it is pressed.
CollectionCell {
    id: root

    readonly property ColorCell colored: root.cell as ColorCell

    spoken: "Cell " + number.text

    Rectangle {
        anchors.fill: parent
        radius: Theme.tileRadius
        color: root.colored?.color ?? Theme.card
        scale: root.colored?.highlighted ? 0.92 : 1

        Behavior on scale {
            NumberAnimation { duration: Theme.pressDuration }
        }

        LabelOutlet {
            id: number
            owner: root.cell
            outlet: "numberLabel"
            anchors.fill: parent
            points: Theme.bodySize
            color: Qt.alpha(Theme.dim, 0.62)
            alignment: Text.AlignHCenter
            silent: true
        }
    }
}
