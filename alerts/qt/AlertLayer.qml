// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Alerts
import Kindora.Toolkit.Hosts
import Kindora.Toolkit.Quick

// Shows a program's alerts in the window that it lies in: over all of it, a header and a footer and
// open popups included. While one is shown, it has the pointer and the keyboard; else there is
// nothing. A program has one layer.
FocusScope {
    id: root

    anchors.fill: parent
    visible: layer.shows
    z: Depth.AlertLayer
    // Out of the part that an ApplicationWindow leaves to its content.
    Window.onContentItemChanged: {
        if (root.Window.contentItem)
            root.parent = root.Window.contentItem;
    }

    AlertLayerWindow {
        id: layer
    }

    WindowStack {
        anchors.fill: parent
        focus: true
    }

    KeyboardHold {
        item: root
        active: layer.shows
    }
}
