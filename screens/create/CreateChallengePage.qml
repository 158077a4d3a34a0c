// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Screens.Create

// The form for a challenge of one's own.
FormPage {
    id: root

    required property CreateChallengeTableViewController controller

    FormSection {
        controller: root.controller
        section: 0
        highlighted: title.inputFocus

        FieldOutlet {
            id: title
            owner: root.controller
            outlet: "challengeTitleField"
            label: root.controller.sectionTitles[0]
            width: parent.width
        }
    }

    FormSection {
        controller: root.controller
        section: 1
        highlighted: description.inputFocus

        FieldOutlet {
            id: description
            owner: root.controller
            outlet: "challengeDescriptionField"
            label: root.controller.sectionTitles[1]
            width: parent.width
        }
    }

    FormSection {
        controller: root.controller
        section: 2
        action: well.fills ? "Change Photo" : "Add Photo"
        rowHeight: 192

        ImageViewItem {
            id: well
            objectName: "challengeImageView"
            owner: root.controller
            outlet: objectName
            width: 160
            height: 160
            anchors.centerIn: parent

            PictureItem {
                anchors.centerIn: parent
                width: well.fills ? parent.width : 56
                height: well.fills ? parent.height : 56
                radius: well.fills ? well.cornerRadius : 0
                image: well.image
                tint: well.imageTint
            }

            Rectangle {
                anchors.fill: parent
                radius: well.cornerRadius
                color: "transparent"
                border.width: well.borderWidth
                border.color: well.borderColor
            }
        }
    }
}
