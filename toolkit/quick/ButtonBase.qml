// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// What every button is, called by its text. How it looks is its background and its content.
T.AbstractButton {
    id: root

    readonly property alias ring: behavior.ring

    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text

    ButtonBehavior {
        id: behavior
        button: root
    }
}
