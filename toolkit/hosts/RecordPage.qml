// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a controller whose views were all made in code.
FocusScope {
    id: root

    required property UIViewController controller

    RecordItem {
        anchors.fill: parent
        record: root.controller.rootView
    }
}
