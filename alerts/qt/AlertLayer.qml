// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Alerts
import Kindora.Platform

// Shows the alerts of a window: the topmost item in it, over all of it. While one is shown, `content`
// (the item that holds everything else) gets no input and is not read aloud.
FocusScope {
    id: root

    property Item content: null
    readonly property bool covers:
        layer.window.presentations.count > 0 || UIApplication.windowList.count > 1

    anchors.fill: parent
    z: 1
    focus: root.covers

    AlertLayerWindow {
        id: layer
    }

    WindowStack {
        anchors.fill: parent
        visible: root.covers
        focus: true
    }

    Binding {
        target: root.content
        when: root.content !== null
        property: "enabled"
        value: !root.covers
    }
}
