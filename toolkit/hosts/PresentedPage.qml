// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// A presented controller: a page that rises from below, or something that lets its presenter show.
PageLoader {
    id: root

    readonly property real progress: root.controller.presentationProgress
    // Without motion it fades in.
    readonly property bool rises: root.controller.coversPresenter && !Theme.stillness
    readonly property bool covers: root.controller.coversPresenter && root.progress >= 1

    page: root.controller.presentedPage
    y: root.rises ? (1 - root.progress) * root.height : 0
    opacity: root.controller.coversPresenter && !root.rises ? root.progress : 1
}
