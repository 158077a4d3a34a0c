// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a table: what stands above all rows, then headers and rows.
Flickable {
    id: root

    required property UITableViewController controller
    // How the cells look, by reuse identifier; each is made with the property `cell`.
    required property var prototypes

    contentWidth: width
    contentHeight: rows.y + rows.implicitHeight
    clip: true
    flickableDirection: Flickable.VerticalFlick
    boundsBehavior: Flickable.DragAndOvershootBounds
    Accessible.role: Accessible.List
    Accessible.name: root.controller.title
    Accessible.onScrollDownAction: reach.turnPage(1)
    Accessible.onScrollUpAction: reach.turnPage(-1)

    onMovementStarted: root.controller.tableView.closeRow()

    KeyboardReach {
        id: reach
        area: root
    }

    Loader {
        id: header
        width: root.width
        height: active ? root.controller.tableView.tableHeaderView.height : 0
        active: root.controller.tableView.tableHeaderView !== null
        sourceComponent: SearchBar {
            bar: root.controller.tableView.tableHeaderView
        }
    }

    TableViewItem {
        id: rows
        y: header.height
        width: root.width
        height: implicitHeight
        tableView: root.controller.tableView
        visibleSize: Qt.size(root.width, root.height)
        contentY: root.contentY - rows.y
        onShifted: by => root.contentY += by

        delegate: TableRow {
            id: line
            table: root.controller.tableView
            prototypes: root.prototypes
            width: root.width
            onDeparted: rows.departed(line)
        }
    }
}
