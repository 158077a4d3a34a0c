// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A text field made in code.
TextField {
    id: root

    label: root.spoken !== "" ? root.spoken : root.placeholder
}
