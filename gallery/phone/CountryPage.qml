// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Gallery.Phone
import Kindora.Toolkit.Hosts

// The countries for which there are phone formats.
Rectangle {
    id: root

    required property CountryTableViewController controller

    color: Theme.ground

    TableList {
        objectName: "countriesTable"
        anchors.fill: parent
        focus: true
        bottomMargin: 16
        controller: root.controller
        prototypes: ({ "countryCell": countryCell })
    }

    Component {
        id: countryCell
        CountryCell {}
    }
}
