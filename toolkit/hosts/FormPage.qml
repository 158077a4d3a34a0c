// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A static table: sections one below another, scrolled so that what has the keyboard is in sight.
Rectangle {
    id: root

    default property alias sections: column.data

    color: Theme.ground

    function showFocus() {
        const item = root.Window.activeFocusItem;
        for (let up = item; up; up = up.parent) {
            if (up === column) {
                const top = item.mapToItem(column, 0, 0).y;
                const lowest = Math.max(0, flick.contentHeight - flick.height);
                const above = Math.max(0, top - 52);
                const below = top + item.height + 16 - flick.height;
                flick.contentY = Math.min(lowest, above, Math.max(flick.contentY, below));
                return;
            }
        }
    }

    Window.onActiveFocusItemChanged: root.showFocus()

    Flickable {
        id: flick
        anchors.fill: parent
        onHeightChanged: root.showFocus()
        contentHeight: column.height
        boundsBehavior: contentHeight > height ? Flickable.DragAndOvershootBounds
                                               : Flickable.StopAtBounds

        Column {
            id: column
            width: flick.width
            bottomPadding: 16
        }
    }
}
