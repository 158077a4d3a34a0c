// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.Challenges

// The challenge list.
Rectangle {
    id: root

    required property ChallengesTableViewController controller

    color: Theme.ground

    TableList {
        id: list
        objectName: "challengesTable"
        anchors.fill: parent
        focus: true
        topMargin: 4
        bottomMargin: 16
        controller: root.controller
        prototypes: ({ "challengeCell": challengeCell, "placeholderCell": placeholderCell })
    }

    Component {
        id: challengeCell
        ChallengeCell {}
    }

    Component {
        id: placeholderCell
        PlaceholderCell {}
    }
}
