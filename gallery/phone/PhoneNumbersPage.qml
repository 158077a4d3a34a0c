// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Gallery.Phone
import Kindora.Gallery.Controls
import Kindora.Toolkit.Hosts

// A phone number of any country.
FormPage {
    id: root

    required property PhoneNumbersViewController controller

    FormSection {
        controller: root.controller
        section: 0
        action: root.controller.countryName + ", " + root.controller.callingCode

        PlainText {
            anchors.left: parent.left
            anchors.right: code.left
            anchors.rightMargin: 8
            height: parent.height
            text: root.controller.countryName
            points: Theme.bodySize
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }

        PlainText {
            id: code
            anchors.right: arrow.left
            anchors.rightMargin: 8
            height: parent.height
            text: root.controller.callingCode
            points: Theme.bodySize
            color: Theme.softInk
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }

        PictureItem {
            id: arrow
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            height: 16
            imageName: "back"
            tint: Theme.faintGlyph
            rotation: 180
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

    Item {
        width: parent.width
        height: 48

        PictureItem {
            id: tick
            anchors.left: parent.left
            anchors.leftMargin: 32
            anchors.verticalCenter: parent.verticalCenter
            width: root.controller.valid ? 16 : 0
            height: 16
            visible: root.controller.valid
            imageName: "checkmark"
            tint: Appearance.tintedText
        }

        PlainText {
            anchors.left: tick.right
            anchors.leftMargin: root.controller.valid ? 8 : 0
            anchors.right: parent.right
            anchors.rightMargin: 32
            height: parent.height
            text: root.controller.verdict
            color: root.controller.valid ? Appearance.tintedText : Theme.softInk
            verticalAlignment: Text.AlignVCenter
        }
    }

    Item {
        width: parent.width
        height: 100
        visible: root.controller.valid

        PlainText {
            x: 32
            width: parent.width - 64
            anchors.bottom: card.top
            anchors.bottomMargin: 8
            text: "From abroad"
            color: Theme.softInk
            Accessible.role: Accessible.Heading
        }

        Card {
            id: card
            y: 44

            PlainText {
                width: parent.width
                height: 40
                text: root.controller.international
                points: Theme.title2Size
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
