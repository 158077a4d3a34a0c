// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A static table: sections one below another, scrolled so that what has the keyboard is in sight.
Rectangle {
    id: root

    default property alias sections: column.data

    color: Theme.ground

    ScrollArea {
        anchors.fill: parent
        marginAbove: 52  // with the section's header
        contentHeight: column.height

        Column {
            id: column
            width: parent.width
            bottomPadding: 16
        }
    }
}
