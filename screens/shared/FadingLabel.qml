// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A text of a challenge, as long as it is.
LabelOutlet {
    id: root

    required property ChallengeColumns columns

    objectName: outlet
    x: root.columns.textX
    width: root.columns.textWidth
    points: Theme.calloutSize
    lines: 0
    alignment: root.columns.alignment
}
