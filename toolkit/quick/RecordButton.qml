// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// Makes a view that was made in code something to press.
TapItem {
    id: root

    T.AbstractButton {
        id: button
        anchors.fill: parent
        enabled: root.tappable
        focusPolicy: Qt.StrongFocus
        hoverEnabled: false
        text: root.spoken
        Accessible.role: Accessible.Button
        Accessible.name: button.text

        onDownChanged: root.press(button.down)
        onClicked: root.tap()
        Keys.onReturnPressed: button.clicked()
        Keys.onEnterPressed: button.clicked()
    }

    // Above all that the view shows.
    FocusRing {
        parent: root.parent
        z: Depth.FocusRing
        visible: button.visualFocus
        anchors.margins: 2
        radius: 6
    }
}
