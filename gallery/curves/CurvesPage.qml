// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Gallery.Curves
import Kindora.Gallery.Controls
import Kindora.Toolkit.Hosts

// A curve, plotted for the present settings and played by a ball.
FormPage {
    id: root

    required property CurvesViewController controller

    Item {
        width: parent.width
        height: 80

        ChoiceBar {
            x: 16
            y: 16
            width: parent.width - 32
            names: root.controller.kindNames
            current: root.controller.kind
            onChosen: index => root.controller.kind = index
        }
    }

    Card {
        Item {
            width: parent.width
            height: 168

            CurvePlotItem {
                id: plot
                anchors.fill: parent
                anchors.topMargin: 8
                anchors.bottomMargin: 8
                anchors.leftMargin: 16
                points: root.controller.points
                lowest: root.controller.lowest
                highest: root.controller.highest
                tint: Appearance.tintedText
                Accessible.role: Accessible.Graphic
                Accessible.name: "Curve"
                Accessible.description: root.controller.framesText
            }

            PlainText {
                y: plot.y + plot.oneY - height / 2
                text: "1"
                points: Theme.footnoteSize
                color: Theme.softInk
                Accessible.ignored: true
            }

            PlainText {
                y: plot.y + plot.zeroY - height / 2
                text: "0"
                points: Theme.footnoteSize
                color: Theme.softInk
                Accessible.ignored: true
            }
        }

        ViewItem {
            id: track
            owner: root.controller
            outlet: "trackView"
            width: parent.width
            height: 48

            readonly property real room: track.width - ball.width
            readonly property real range: root.controller.highest - root.controller.lowest
            readonly property real startX: -root.controller.lowest / track.range * track.room
            readonly property real endX: track.startX + track.room / track.range

            Rectangle {
                x: ball.width / 2
                y: 23
                width: track.room
                height: 2
                radius: 1
                color: Theme.hairline
            }

            Repeater {
                model: [track.startX, track.endX]

                delegate: Rectangle {
                    required property real modelData
                    x: modelData
                    y: 8
                    width: 32
                    height: 32
                    radius: height / 2
                    color: Theme.card
                    border.width: 2
                    border.color: Theme.controlBorder
                }
            }

            ViewItem {
                id: ball
                owner: root.controller
                outlet: "ballView"
                x: track.startX
                y: 8
                width: 32
                height: 32

                Rectangle {
                    anchors.fill: parent
                    radius: height / 2
                    color: Appearance.tint
                }
            }
        }

        PlainText {
            width: parent.width
            height: 24
            text: root.controller.framesText
            verticalAlignment: Text.AlignVCenter
        }

        PlainText {
            width: parent.width
            height: 24
            text: root.controller.character
            points: Theme.footnoteSize
            color: Theme.softInk
            verticalAlignment: Text.AlignVCenter
        }
    }

    Item {
        width: parent.width
        height: 82

        PillButton {
            x: 16
            y: 16
            width: parent.width - 32
            text: "Play"
            onClicked: root.controller.play()
        }
    }

    Card {
        SliderRow {
            setting: root.controller.duration
        }

        ChoiceBar {
            width: parent.width
            visible: !root.controller.spring
            names: root.controller.timingNames
            current: root.controller.timing
            onChosen: index => root.controller.timing = index
        }

        Column {
            width: parent.width
            visible: root.controller.spring

            SliderRow {
                setting: root.controller.damping
            }

            SliderRow {
                setting: root.controller.mass
            }

            SliderRow {
                setting: root.controller.stiffness
            }

            SliderRow {
                setting: root.controller.velocity
            }

            SwitchRow {
                text: "Allow overdamping"
                checked: root.controller.allowsOverdamping
                onToggled: root.controller.allowsOverdamping = checked
            }
        }
    }
}
