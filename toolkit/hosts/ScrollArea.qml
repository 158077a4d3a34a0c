// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// Content that scrolls where it does not fit: by a finger, by the wheel and by the keyboard. What
// has the keyboard comes into sight.
Flickable {
    id: root

    readonly property bool overflows: contentHeight > height
    // Kept free around what has the keyboard.
    property real marginAbove: 16
    property real marginBelow: 16

    contentWidth: width
    interactive: overflows
    boundsBehavior: overflows ? Flickable.DragAndOvershootBounds : Flickable.StopAtBounds
    clip: overflows

    function scrollTo(top) {
        contentY = Math.max(0, Math.min(contentHeight - height, top));
    }

    function showFocus() {
        const item = Window.activeFocusItem;
        for (let up = item; up; up = up.parent) {
            if (up === contentItem) {
                const top = item.mapToItem(contentItem, 0, 0).y;
                const lowest = top + item.height + marginBelow - height;
                scrollTo(Math.min(top - marginAbove, Math.max(contentY, lowest)));
                return;
            }
        }
    }

    Window.onActiveFocusItemChanged: root.showFocus()
    onHeightChanged: root.showFocus()

    Keys.onPressed: event => {
        const page = height - 48;
        const steps = {
            [Qt.Key_Up]: -48,
            [Qt.Key_Down]: 48,
            [Qt.Key_PageUp]: -page,
            [Qt.Key_PageDown]: page,
            [Qt.Key_Home]: -contentHeight,
            [Qt.Key_End]: contentHeight
        };
        if (!interactive || steps[event.key] === undefined) {
            event.accepted = false;
            return;
        }
        scrollTo(contentY + steps[event.key]);
    }
}
