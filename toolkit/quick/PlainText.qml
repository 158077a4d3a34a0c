// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Text that is never taken for markup, in the app's font, and read aloud as it stands.
Text {
    property real points: 16

    textFormat: Text.PlainText
    font: Appearance.font(points)
    color: Theme.ink
    elide: Text.ElideRight
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
