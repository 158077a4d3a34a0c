// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// What is read aloud for a view made in code that shows nothing of its own.
FaceItem {
    id: root

    readonly property bool speaks: root.announced && root.shown

    onSpeaksChanged: if (root.speaks) Announcer.announce(root)
    Accessible.role: root.announced ? Accessible.AlertMessage
                                    : root.heading ? Accessible.Heading : Accessible.StaticText
    Accessible.name: root.spoken
    Accessible.ignored: !root.shown
}
