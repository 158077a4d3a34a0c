// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.Invite

// The invitation of a friend.
FormPage {
    id: root

    required property InviteFriendTableViewController controller

    FormSection {
        controller: root.controller
        section: 0
        highlighted: name.inputFocus

        FieldOutlet {
            id: name
            owner: root.controller
            outlet: "nameField"
            label: root.controller.sectionTitles[0]
            width: parent.width
        }
    }

    FormSection {
        controller: root.controller
        section: 1
        highlighted: number.inputFocus

        FieldOutlet {
            id: number
            owner: root.controller
            outlet: "numberField"
            label: root.controller.sectionTitles[1]
            width: parent.width
        }
    }

    FormSection {
        controller: root.controller
        section: 2
        rowHeight: 120
        highlighted: message.inputFocus

        TextViewOutlet {
            id: message
            owner: root.controller
            outlet: "messageField"
            label: root.controller.sectionTitles[2]
            anchors.fill: parent
            anchors.topMargin: 16
            anchors.bottomMargin: 16
        }
    }
}
