// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts

// The challenge's picture as a card with rounded corners.
PictureOutlet {
    objectName: outlet
    outlet: "imageView"
    radius: Theme.cardRadius
    ground: Theme.pictureGround
}
