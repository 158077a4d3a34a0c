// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A presented controller: a page that rises from below, or something that lets its presenter show.
PageLoader {
    id: root

    readonly property real progress: root.controller.presentationProgress
    readonly property bool covers: root.controller.coversPresenter && root.progress >= 1

    page: root.controller.presentedPage
    y: root.controller.coversPresenter ? (1 - root.progress) * root.height : 0
}
