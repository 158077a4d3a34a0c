// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// Lies in a button of any template and makes it one for every hand: Return, Enter and assistive
// tools press it as a finger does, which hits it in 48 points around its middle however small it is
// drawn, and a ring shows that it has the keyboard.
Item {
    id: root

    required property T.AbstractButton button
    readonly property alias ring: ring
    readonly property size reach: Qt.size(Math.max(root.width, 48), Math.max(root.height, 48))

    anchors.fill: parent
    z: 1

    function press() {
        if (!root.button.enabled)
            return;
        if (root.button.checkable && !(root.button.autoExclusive && root.button.checked)) {
            root.button.toggle();
            root.button.toggled();
        }
        root.button.clicked();
    }

    Connections {
        target: root.button.Accessible

        function onPressAction() {
            root.press();
        }
    }

    Connections {
        target: root.button.checkable ? root.button.Accessible : null

        function onToggleAction() {
            root.press();
        }
    }

    Connections {
        target: root.button.Keys

        // A key that is held presses once.
        function onReturnPressed(event) {
            if (!event.isAutoRepeat)
                root.press();
        }

        function onEnterPressed(event) {
            if (!event.isAutoRepeat)
                root.press();
        }
    }

    // Qt Quick does not pass the state on.
    Binding {
        target: root.button.Accessible
        property: "description"
        value: qsTr("Unavailable")
        when: !root.button.enabled
    }

    Binding {
        target: root.button
        property: "containmentMask"
        value: mask
        when: root.reach.width > root.width || root.reach.height > root.height
    }

    QtObject {
        id: mask

        function contains(point: point): bool {
            return Math.abs(point.x - root.width / 2) <= root.reach.width / 2
                   && Math.abs(point.y - root.height / 2) <= root.reach.height / 2;
        }
    }

    FocusRing {
        id: ring
        visible: root.button.visualFocus
    }
}
