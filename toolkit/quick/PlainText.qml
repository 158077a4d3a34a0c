// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Text that is never taken for markup, in the app's font, and read aloud as it stands.
Text {
    property real points: Theme.calloutSize
    property bool bold: false
    // By the user's own scale.
    property bool scales: true

    readonly property real scaling: scales ? Theme.textScale : 1

    textFormat: Text.PlainText
    font: bold ? Appearance.boldFont(points, scaling) : Appearance.font(points, scaling)
    color: Theme.ink
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
