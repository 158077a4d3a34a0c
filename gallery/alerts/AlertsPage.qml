// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Alerts
import Kindora.Gallery.Alerts
import Kindora.Gallery.Controls
import Kindora.Toolkit.Hosts

// A list of alerts, and how the last one ended.
Rectangle {
    id: root

    required property AlertsViewController controller

    color: Theme.ground

    TableList {
        objectName: "alertsTable"
        anchors.fill: parent
        anchors.bottomMargin: caption.height
        focus: true
        bottomMargin: 16
        controller: root.controller
        prototypes: ({ "alertDemoCell": alertDemoCell })
    }

    CaptionBar {
        id: caption
        text: root.controller.outcome
    }

    Component {
        id: alertDemoCell
        AlertDemoCell {}
    }

    Alert {
        id: declared
        title: "Name your pet"
        message: "Every word of this alert stands in the page."
        textFields: AlertTextField {
            id: petName
            placeholder: "Name of the pet"
        }

        AlertAction {
            text: "Cancel"
            style: AlertAction.Cancel
            onTriggered: root.controller.tell("You chose Cancel.")
        }

        AlertAction {
            text: "Call"
            enabled: petName.text !== ""
            onTriggered: root.controller.tell("You called the pet " + petName.text + ".")
        }
    }

    Connections {
        target: root.controller
        function onDeclaredAlertWanted() {
            petName.text = "";
            declared.open();
        }
    }
}
