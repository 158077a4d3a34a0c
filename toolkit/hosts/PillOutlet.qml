// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws the button of an outlet as a big round one.
ViewItem {
    id: root

    property alias filled: pill.filled
    property alias textColor: pill.textColor
    // What is read aloud in place of a title.
    property string name: root.text

    signal clicked

    implicitHeight: pill.implicitHeight

    PillButton {
        id: pill
        objectName: root.outlet
        anchors.fill: parent
        text: root.text
        picture: root.image
        pictureTint: root.imageTint
        Accessible.name: root.name
        Accessible.ignored: !root.shown
        onClicked: root.clicked()
    }
}
