// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Gallery.Controls
import Kindora.Toolkit.Hosts

// A setting: its name, a slider, and its value.
Item {
    id: root

    required property SliderSetting setting

    width: parent?.width ?? 0
    implicitHeight: 48

    PlainText {
        id: name
        width: 88
        height: parent.height
        text: root.setting.name
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    T.Slider {
        id: slider
        anchors.left: name.right
        anchors.right: value.left
        height: parent.height
        leftPadding: 4
        rightPadding: 4
        from: root.setting.minimum
        to: root.setting.maximum
        stepSize: root.setting.step
        snapMode: T.Slider.SnapAlways
        value: root.setting.value
        focusPolicy: Qt.StrongFocus
        // Also when an assistive tool moves it.
        onValueChanged: root.setting.value = slider.value
        Accessible.name: root.setting.name
        Accessible.description: root.setting.text

        background: Item {
            Rectangle {
                x: slider.leftPadding
                y: slider.height / 2 - 2
                width: slider.availableWidth
                height: 4
                radius: 2
                color: Theme.track

                Rectangle {
                    width: slider.visualPosition * parent.width
                    height: parent.height
                    radius: 2
                    color: Appearance.tint
                }
            }
        }

        handle: Item {
            x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
            y: slider.height / 2 - height / 2
            implicitWidth: 24
            implicitHeight: 24

            ShadowItem {
                anchors.fill: parent
                anchors.topMargin: 2
                anchors.bottomMargin: -2
                radius: 12
                blur: 5
                opacity: 0.3
            }

            Rectangle {
                anchors.fill: parent
                radius: 12
                color: slider.pressed ? Theme.pressed : Theme.card
                border.width: Theme.borderWidth
                border.color: Theme.controlBorder
            }

            FocusRing {
                visible: slider.visualFocus
                radius: width / 2
            }
        }
    }

    PlainText {
        id: value
        anchors.right: parent.right
        width: 64
        height: parent.height
        text: root.setting.text
        color: Theme.softInk
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        Accessible.name: root.setting.name + " " + value.text
    }
}
