// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A centred text of a challenge, as long as it is; out of the accessibility tree while it is not
// shown.
ViewItem {
    id: root

    property real points: 16
    property bool bold: false
    property color color: Theme.ink

    implicitHeight: label.implicitHeight

    PlainText {
        id: label
        width: parent.width
        text: root.text
        font: root.bold ? Appearance.boldFont(root.points) : Appearance.font(root.points)
        color: root.color
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: !root.shown
    }
}
