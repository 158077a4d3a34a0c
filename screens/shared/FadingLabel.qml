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

    property real novelty: 0
    readonly property bool speaks: root.announced && root.shown

    implicitHeight: label.implicitHeight
    onSpeaksChanged: if (root.speaks) {
        news.start();
        Announcer.announce(label);
    }

    // An alert as it comes, and from then on a text like others.
    NumberAnimation {
        id: news
        target: root
        property: "novelty"
        from: 1
        to: 0
        duration: 1000
    }

    PlainText {
        id: label
        width: parent.width
        text: root.text
        font: root.bold ? Appearance.boldFont(root.points) : Appearance.font(root.points)
        color: root.color
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.role: root.novelty > 0 ? Accessible.AlertMessage : Accessible.StaticText
        Accessible.ignored: !root.shown
    }
}
