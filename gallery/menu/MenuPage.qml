// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Gallery.Menu
import Kindora.Toolkit.Hosts

// A list of demonstrations.
Rectangle {
    id: root

    required property MenuTableViewController controller

    color: Theme.ground

    TableList {
        objectName: "menuTable"
        anchors.fill: parent
        focus: true
        topMargin: 16
        bottomMargin: 16
        controller: root.controller
        prototypes: ({ "menuCell": menuCell })
    }

    Component {
        id: menuCell
        MenuCell {}
    }
}
