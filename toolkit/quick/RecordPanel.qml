// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// The panel of a visual effect view: what lies behind it blurred, or a translucent tone.
BlurItem {
    id: root

    Loader {
        anchors.fill: parent
        active: root.blurs
        source: root.blurs ? "Backdrop.qml" : ""
        onLoaded: item.panel = root
    }

    Rectangle {
        anchors.fill: parent
        radius: root.visibleRadius
        color: root.tone
    }
}
