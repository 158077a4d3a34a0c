// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws all visible windows above each other. The keyboard belongs to the key window. Without sight
// of it, its shortcuts do nothing.
FocusScope {
    id: root

    Repeater {
        model: UIApplication.windowList

        delegate: CoverableItem {
            id: layer

            required property UIWindow host

            width: root.width
            height: root.height
            covered: layer.host.covered
            focus: layer.host.key
            Accessible.role: Accessible.Grouping

            WindowHost {
                anchors.fill: parent
                focus: true
                host: layer.host
                Accessible.role: Accessible.Pane
            }
        }
    }

    KeyboardSource {
        anchors.fill: parent
    }

    Shortcut {
        enabled: root.visible
        sequences: ["Esc", "Back", "Alt+Left"]
        onActivated: UIApplication.goBack()
    }

    ShakeSource {
        id: shakes
        window: root.Window.window
    }

    // For those who cannot shake. A key that is held is one press.
    Shortcut {
        enabled: root.visible
        autoRepeat: false
        sequence: "Ctrl+Shift+K"
        onActivated: shakes.shake()
    }
}
