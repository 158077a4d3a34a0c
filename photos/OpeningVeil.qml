// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// Lies over a page while a picture is read, which a large one takes a moment for.
Rectangle {
    id: root

    color: Qt.alpha(Theme.ground, 0.8)

    // A picture that is read at once needs no word.
    SequentialAnimation {
        running: root.visible
        PropertyAction { target: root; property: "opacity"; value: 0 }
        PauseAnimation { duration: Theme.fadeDuration }
        NumberAnimation { target: root; property: "opacity"; to: 1; duration: Theme.fadeDuration }
    }

    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onWheel: wheel => wheel.accepted = true
    }

    PlainText {
        anchors.centerIn: parent
        text: "Opening the picture..."
        color: Theme.softInk
    }
}
