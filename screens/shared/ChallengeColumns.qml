// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// Where the picture and the texts of a challenge stand on a page: above each other, or, where the
// page is flat, side by side.
QtObject {
    id: root

    required property size page
    // What stands above and below the picture needs at least.
    required property real textHeight
    property real smallestSide: 140
    property real largestSide: 320

    readonly property bool sideBySide: page.height < 420 && page.width > 1.4 * page.height
    readonly property real side: Math.max(smallestSide, Math.min(
        largestSide, sideBySide ? Math.min(page.height - 40, page.width * 0.45)
                                : Math.min(page.width - 48, page.height - textHeight)))
    readonly property real textWidth: sideBySide ? Math.min(360, page.width - side - 72)
                                                 : page.width - 48
    readonly property real pictureX: sideBySide ? (page.width - side - 32 - textWidth) / 2
                                                : (page.width - side) / 2
    readonly property real pictureY: Math.max(16, (page.height - side) / 2)
    readonly property real textX: sideBySide ? pictureX + side + 32 : 24
    readonly property int alignment: sideBySide ? Text.AlignLeft : Text.AlignHCenter
}
