// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Qt5Compat.GraphicalEffects
import Kindora.Platform

// What lies behind a panel, blurred and cut to the panel's corners. Loaded only where shaders run.
Item {
    id: root

    property BlurItem panel: null

    Item {
        id: scene
        anchors.fill: parent
        visible: false

        Rectangle {
            anchors.fill: parent
            color: root.panel?.windowColor ?? "white"
        }

        Repeater {
            model: root.panel?.behind ?? []

            delegate: ShaderEffectSource {
                required property int index
                required property Item modelData

                anchors.fill: parent
                sourceItem: modelData
                sourceRect: root.panel?.places[index] ?? Qt.rect(0, 0, 0, 0)
                opacity: modelData?.opacity ?? 0
                // The blur leaves nothing finer to be seen.
                textureSize: Qt.size(Math.ceil(width / 2), Math.ceil(height / 2))
            }
        }
    }

    FastBlur {
        id: blur
        anchors.fill: parent
        source: scene
        radius: 40
        visible: false
    }

    Rectangle {
        id: shape
        anchors.fill: parent
        radius: root.panel?.visibleRadius ?? 0
        visible: false
    }

    OpacityMask {
        anchors.fill: parent
        source: blur
        maskSource: shape
    }
}
