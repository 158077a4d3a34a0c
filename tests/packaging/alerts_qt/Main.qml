// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Alerts

Window {
    id: root

    // Under names by which they are found from outside.
    readonly property Alert question: question
    readonly property Alert signIn: signIn
    readonly property Alert choices: choices
    readonly property Item layout: layout
    property string outcome

    width: 360
    height: 480
    visible: true
    color: "#dfe7ee"

    ConstraintLayout {
        id: layout
        anchors.fill: parent

        Rectangle {
            id: picture
            objectName: "picture"
            radius: 12
            color: "#4a7fb5"
        }

        Rectangle {
            id: panel
            objectName: "panel"
            radius: 12
            color: "#f6d365"
        }

        // The picture is declared ...
        Constraint { item: picture; attribute: Constraint.Left; to: layout; constant: 20 }
        Constraint { item: picture; attribute: Constraint.Top; to: layout; constant: 20 }
        Constraint { item: picture; attribute: Constraint.Width; to: layout; multiplier: 0.25 }
        Constraint {
            item: picture
            attribute: Constraint.Height
            to: picture
            toAttribute: Constraint.Width
        }

        // ... the panel beside it is placed by the helpers.
        Component.onCompleted: {
            QavAutoLayout.qav_pinHorizontalSpacing(panel, 12, picture);
            QavAutoLayout.qav_alignEdge(panel, QavAutoLayout.Right, layout, -20);
            QavAutoLayout.qav_alignVerticalCenterWithView(panel, picture);
            QavAutoLayout.qav_pinHeightToHeightOfView(panel, picture);
        }
    }

    Alert {
        id: question
        title: "Delete the list?"
        message: "What is on it is gone for good."

        AlertAction {
            text: "Keep"
            style: AlertAction.Cancel
            onTriggered: root.outcome = "kept"
        }

        AlertAction {
            text: "Delete"
            style: AlertAction.Destructive
            onTriggered: root.outcome = "deleted"
        }
    }

    Alert {
        id: signIn
        title: "Sign in"
        message: "With the name that your friends know."
        // Without a name it stays open.
        shouldDismiss: action => action.style === AlertAction.Cancel || name.text !== ""
        textFields: [
            AlertTextField {
                id: name
                placeholder: "Name"
            },
            AlertTextField {
                placeholder: "Password"
                secure: true
            }
        ]

        AlertAction {
            text: "Cancel"
            style: AlertAction.Cancel
        }

        AlertAction {
            text: "Sign in"
            enabled: name.text !== ""
            onTriggered: root.outcome = "signed in as " + name.text
        }
    }

    Alert {
        id: choices
        title: "When?"
        actionLayout: Alert.Vertical

        AlertAction {
            text: "Today"
            onTriggered: root.outcome = "today"
        }

        AlertAction {
            text: "Tomorrow"
        }

        AlertAction {
            text: "Never"
            style: AlertAction.Destructive
        }

        AlertAction {
            text: "Cancel"
            style: AlertAction.Cancel
        }
    }

    AlertLayer {}
}
