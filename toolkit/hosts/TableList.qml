// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a table: headers and rows, which come, go and move with the list closing up.
ListView {
    id: root

    required property UITableViewController controller
    // How the cells look, by reuse identifier; each is made with the property `cell`.
    required property var prototypes

    model: root.controller.tableView
    // A current row would take the focus from the search field whenever rows come or go.
    currentIndex: -1
    clip: true
    boundsBehavior: Flickable.DragAndOvershootBounds
    // Rows ahead of the visible ones would come by a pause that Qt cannot end without a warning
    // when nothing else is animated.
    cacheBuffer: 0
    // A list would move a current row.
    keyNavigationEnabled: false
    Accessible.role: Accessible.List
    Accessible.name: root.controller.title
    Accessible.onScrollDownAction: reach.turnPage(1)
    Accessible.onScrollUpAction: reach.turnPage(-1)

    KeyboardReach {
        id: reach
        area: root
    }

    delegate: TableRow {
        table: root.controller.tableView
        prototypes: root.prototypes
        width: root.width
    }

    header: Loader {
        width: root.width
        height: active ? root.controller.tableView.tableHeaderView.height : 0
        active: root.controller.tableView.tableHeaderView !== null
        sourceComponent: SearchBar {
            bar: root.controller.tableView.tableHeaderView
        }
    }

    onMovementStarted: root.controller.tableView.closeRow()

    add: Transition {
        enabled: root.controller.tableView.animatesChanges
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.moveDuration }
        NumberAnimation {
            property: "scale"; from: 0.8; to: 1; duration: Theme.moveDuration
            easing.type: Easing.OutBack
        }
    }
    remove: Transition {
        enabled: root.controller.tableView.animatesChanges
        NumberAnimation { property: "opacity"; to: 0; duration: Theme.fadeDuration }
        NumberAnimation {
            property: "x"; to: -root.width; duration: 250; easing.type: Easing.InQuad
        }
    }
    displaced: Transition {
        enabled: root.controller.tableView.animatesChanges
        NumberAnimation {
            properties: "y"; duration: Theme.moveDuration; easing.type: Easing.OutCubic
        }
        NumberAnimation { properties: "opacity,scale"; to: 1; duration: Theme.quickDuration }
    }
    move: Transition {
        enabled: root.controller.tableView.animatesChanges
        NumberAnimation {
            properties: "y"; duration: Theme.moveDuration; easing.type: Easing.OutCubic
        }
    }
}
