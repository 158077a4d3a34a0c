// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A white card with rows one below another, as wide as the page without its margins.
Rectangle {
    id: root

    default property alias rows: column.data

    x: 16
    width: (parent?.width ?? 0) - 32
    implicitHeight: column.height + 16
    radius: Theme.cardRadius
    color: Theme.card
    border.width: Theme.borderWidth
    border.color: Theme.cardBorder

    Column {
        id: column
        x: 16
        y: 8
        width: root.width - 32
    }
}
