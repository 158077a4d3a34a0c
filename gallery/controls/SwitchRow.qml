// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Hosts

// Something that is on or off.
T.Switch {
    id: root

    width: parent?.width ?? 0
    implicitHeight: 48
    focusPolicy: Qt.StrongFocus
    Accessible.name: root.text
    Accessible.checkable: true

    ButtonBehavior {
        button: root
        ring.parent: root.indicator
        ring.radius: 18
    }

    contentItem: PlainText {
        text: root.text
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    indicator: Rectangle {
        x: root.width - width
        y: root.height / 2 - height / 2
        implicitWidth: 52
        implicitHeight: 32
        radius: height / 2
        color: root.checked ? Appearance.tint : Theme.track

        Rectangle {
            x: 2 + root.visualPosition * 20
            y: 2
            width: 28
            height: 28
            radius: height / 2
            color: Theme.card
        }

        Behavior on color {
            ColorAnimation { duration: Theme.quickDuration }
        }
    }
}
