// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// The title and the message of an alert or a sheet, in the middle.
Column {
    id: root

    required property UIAlertController controller
    property real margin: 16
    property real titlePoints: Theme.bodySize
    property color color: Theme.ink
    // The title is the name of what the texts lie on.
    property bool titleSilent: false

    spacing: 4

    PlainText {
        x: root.margin
        width: root.width - 2 * root.margin
        visible: text !== ""
        text: root.controller.alertTitle
        points: root.titlePoints
        bold: true
        color: root.color
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        Accessible.ignored: root.titleSilent
    }

    PlainText {
        x: root.margin
        width: root.width - 2 * root.margin
        visible: text !== ""
        text: root.controller.alertMessage
        points: Theme.footnoteSize
        color: root.color
        wrapMode: Text.Wrap
        lineHeight: 1.1
        horizontalAlignment: Text.AlignHCenter
    }
}
