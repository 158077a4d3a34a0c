// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// What a cell prototype is: it shows a cell and says what is read aloud for it.
Item {
    property UITableViewCell cell
    property string spoken
    // Whether the row can be ticked, and is.
    property bool checkable: false
    property bool checked: false
    // Between this row and the next.
    property real spaceBelow: 8
}
