// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A section of a static table: its heading, and the row as a white card that is pressed beside what
// stands on it.
Column {
    id: root

    required property UIStaticTableViewController controller
    required property int section
    // Pressing the row is an action of its own, reached by the keyboard and read aloud as this.
    property string action
    property bool highlighted: false
    property real rowHeight: 56
    default property alias content: holder.data

    width: parent?.width ?? 0

    Item {
        width: parent.width
        height: Math.max(44, title.implicitHeight + 16)

        PlainText {
            id: title
            x: 32
            width: parent.width - 64
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 8
            text: root.controller.sectionTitles[root.section]
            color: Theme.softInk
            Accessible.role: Accessible.Heading
        }
    }

    FormRow {
        x: 16
        width: parent.width - 32
        height: root.rowHeight
        action: root.action
        highlighted: root.highlighted
        onPressed: root.controller.pressRow(root.section)

        Item {
            id: holder
            anchors.fill: parent
            anchors.leftMargin: 16
            anchors.rightMargin: 16
        }
    }
}
