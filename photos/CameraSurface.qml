// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick

// What the camera page knows of a camera, so that the page itself needs no multimedia module.
Item {
    // Whether the camera is to be on.
    property bool running: false
    // There is a camera, and nothing keeps us from it.
    property bool usable: false
    // The camera can take a picture now.
    property bool ready: false

    signal captureRequested(string file)
    signal photoSaved(string file)
}
