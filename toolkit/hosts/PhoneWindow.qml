// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A program's window: a phone's screen, upright or flat, centred where there is more room, with all
// the app's windows in it.
Window {
    id: root

    width: 390
    height: 844
    minimumWidth: 320
    minimumHeight: 320
    visible: true
    color: Theme.surround
    // Where no window manager does it.
    Component.onCompleted: root.requestActivate()

    WindowStack {
        anchors.horizontalCenter: parent.horizontalCenter
        width: parent.height < 480 ? parent.width : Math.min(parent.width, 480)
        height: parent.height
        focus: true
    }
}
