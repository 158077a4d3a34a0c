// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A presented controller among others, of which the topmost is the one to work with.
CoverableItem {
    id: root

    required property UIViewController controller
    readonly property bool covers: page.covers

    Accessible.role: Accessible.Grouping

    PresentedPage {
        id: page
        width: root.width
        height: root.height
        focus: true
        controller: root.controller
        Accessible.role: Accessible.Pane
    }
}
