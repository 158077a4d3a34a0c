// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A row of a static table: a white card, pressed where nothing that stands on it takes the press.
Item {
    id: root

    // What is read aloud; without it the row is only pressed by hand.
    property string action
    property bool highlighted: false
    default property alias content: holder.data

    signal pressed

    ButtonBase {
        id: button
        anchors.fill: parent
        text: root.action
        focusPolicy: root.action !== "" ? Qt.StrongFocus : Qt.NoFocus
        ring.radius: 22
        Accessible.ignored: root.action === ""
        onClicked: root.pressed()

        background: Rectangle {
            radius: Theme.cardRadius
            color: button.down && root.action !== "" ? Theme.pressed : Theme.card
            border.width: root.highlighted ? 2 : Theme.borderWidth
            border.color: root.highlighted ? Appearance.tintedText
                                           : Theme.cardBorder
        }
    }

    Item {
        id: holder
        anchors.fill: parent
    }
}
