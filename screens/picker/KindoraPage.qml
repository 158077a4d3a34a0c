// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.Picker

// The friends to whom a challenge can be passed on.
Rectangle {
    id: root

    required property KindoraTableViewController controller

    color: Theme.ground

    TableList {
        objectName: "friendsTable"
        anchors.fill: parent
        focus: true
        bottomMargin: 16
        controller: root.controller
        prototypes: ({ "friendCell": friendCell, "placeholderCell": inviteCell })
    }

    Component {
        id: friendCell
        FriendCell {}
    }

    Component {
        id: inviteCell
        InviteCell {}
    }
}
