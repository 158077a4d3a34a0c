// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a custom presentation: the container with all that its transition puts into it.
FocusScope {
    id: root

    required property UIViewController controller

    UntouchableArea {}

    RecordItem {
        objectName: "presentationContainer"
        anchors.fill: parent
        record: root.controller.presentationContainer
    }
}
