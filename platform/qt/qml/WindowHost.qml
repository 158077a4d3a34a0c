// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Platform

// Draws a window: its root controller, and above it whatever is presented.
FocusScope {
    id: root

    required property UIWindow host

    // Pages come in from the side.
    clip: true

    PageLoader {
        anchors.fill: parent
        focus: root.host.presentations.count === 0
        enabled: root.host.presentations.count === 0
        controller: root.host.rootViewController
    }

    Repeater {
        model: root.host.presentations

        delegate: PageLoader {
            id: presented

            required property int index
            readonly property bool onTop: presented.index === root.host.presentations.count - 1

            width: root.width
            height: root.height
            y: presented.controller.coversPresenter
               ? (1 - presented.controller.presentationProgress) * root.height : 0
            focus: presented.onTop
            enabled: presented.onTop
        }
    }

    Shortcut {
        sequences: ["Esc", "Back", "Alt+Left"]
        onActivated: root.host.goBack()
    }

    ShakeSource {
        id: shakes
        window: root.Window.window
    }

    // For those who cannot shake.
    Shortcut {
        sequence: "Ctrl+Shift+K"
        onActivated: shakes.shake()
    }
}
