// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A label made in code, which is read aloud unless the button on which it lies says its text.
LabelItem {
    id: root

    Accessible.role: root.heading ? Accessible.Heading : Accessible.StaticText
    Accessible.name: root.name
    Accessible.ignored: root.name === "" || root.spokenByButton
}
