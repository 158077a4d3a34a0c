// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Effects
import Kindora.Gallery.Scratch
import Kindora.Gallery.Controls
import Kindora.Toolkit.Hosts

// The scratch view, with the grid in which it counts drawn over it.
FormPage {
    id: root

    required property ScratchDemoViewController controller

    Item {
        width: parent.width
        height: picture.height + 32

        PictureOutlet {
            id: picture
            owner: root.controller
            outlet: "imageView"
            y: 16
            anchors.horizontalCenter: parent.horizontalCenter
            width: Math.max(192, Math.min(root.width - 48, 320, root.height - 240))
            height: width
            radius: Theme.cardRadius

            ShadowItem {
                z: -1
                anchors.fill: parent
                anchors.topMargin: 3
                anchors.bottomMargin: -3
                radius: Theme.cardRadius
                blur: 8
                opacity: 0.3
            }
        }

        ScratchImageViewItem {
            id: cover
            objectName: "scratchImageView"
            owner: root.controller
            outlet: objectName
            anchors.fill: picture
            radius: Theme.cardRadius
            Accessible.role: Accessible.Graphic
            Accessible.name: "Cover"
        }

        CellGridItem {
            anchors.fill: picture
            visible: root.controller.gridShown
            columns: root.controller.columns
            rows: root.controller.rows
            marks: root.controller.marks
            radius: Theme.cardRadius
            tint: Theme.gridLine
        }
    }

    Connections {
        target: root.controller
        function onStartedAnew() { cover.stopScratchingAway(); }
    }

    Card {
        Item {
            width: parent.width
            height: 56

            PlainText {
                y: 8
                width: parent.width
                text: root.controller.progressText
            }

            Rectangle {
                y: 40
                width: parent.width
                height: 8
                radius: 4
                color: Theme.track

                Rectangle {
                    width: parent.width * root.controller.progress
                    height: parent.height
                    radius: 4
                    color: Appearance.tint
                }
            }
        }

        SliderRow {
            setting: root.controller.brushRadius
        }

        SwitchRow {
            text: "Show the grid"
            checked: root.controller.gridShown
            onToggled: root.controller.gridShown = checked
        }
    }

    Item {
        width: parent.width
        height: 16 + scratch.height

        PillButton {
            id: scratch
            anchors.right: parent.horizontalCenter
            anchors.rightMargin: 8
            y: 16
            width: Math.min(parent.width - 48, 360) / 2
            text: "Scratch away"
            onClicked: cover.scratchAway()
        }

        PillButton {
            anchors.left: parent.horizontalCenter
            anchors.leftMargin: 8
            y: 16
            width: scratch.width
            filled: false
            textColor: Appearance.tintedText
            text: "Start anew"
            onClicked: root.controller.startAnew()
        }
    }
}
