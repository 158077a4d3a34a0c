// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A scroll view made in code: the user scrolls by finger, wheel and pointer.
ScrollViewItem {
    id: root

    content: flick.contentItem
    onOffsetReset: root.follow()
    Component.onCompleted: root.follow()

    function follow() {
        flick.cancelFlick();
        flick.contentX = root.contentOffset.x;
        flick.contentY = root.contentOffset.y;
    }

    Flickable {
        id: flick
        anchors.fill: parent
        contentWidth: root.contentSize.width
        contentHeight: root.contentSize.height
        interactive: root.scrollable
        pixelAligned: true
        clip: root.scrollable
        boundsBehavior: Flickable.DragAndOvershootBounds
        flickableDirection: Flickable.AutoFlickIfNeeded
        onContentXChanged: root.scrolled(flick.contentX, flick.contentY)
        onContentYChanged: root.scrolled(flick.contentX, flick.contentY)
    }

    // How much there is, and where in it one is.
    Rectangle {
        objectName: "scrollIndicator"
        visible: flick.visibleArea.heightRatio < 1 && root.scrollable
        x: root.width - width - 2
        y: 2 + Math.max(0, Math.min(1 - flick.visibleArea.heightRatio, flick.visibleArea.yPosition))
           * (root.height - 4)
        width: 3
        height: Math.max(16, flick.visibleArea.heightRatio * (root.height - 4))
        radius: 1.5
        color: Theme.scrollIndicator
    }

    Rectangle {
        visible: flick.visibleArea.widthRatio < 1 && root.scrollable
        x: 2 + Math.max(0, Math.min(1 - flick.visibleArea.widthRatio, flick.visibleArea.xPosition))
           * (root.width - 4)
        y: root.height - height - 2
        width: Math.max(16, flick.visibleArea.widthRatio * (root.width - 4))
        height: 3
        radius: 1.5
        color: Theme.scrollIndicator
    }
}
