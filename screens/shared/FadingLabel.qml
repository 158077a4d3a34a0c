// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// A centred text of a challenge, as long as it is.
LabelOutlet {
    objectName: outlet
    points: 16
    lines: 0
    alignment: Text.AlignHCenter
}
