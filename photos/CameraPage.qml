// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Photos

// The camera with its release, or the word that there is none.
Rectangle {
    id: root

    required property CameraController controller
    readonly property CameraSurface surface: camera.item as CameraSurface
    readonly property bool usable: root.surface?.usable ?? false

    color: root.usable ? Theme.darkGround : Theme.ground

    Loader {
        id: camera
        anchors.fill: parent
        visible: root.usable
        active: root.controller.supported
        source: "CameraView.qml"
    }

    Binding {
        target: root.surface
        property: "running"
        value: root.controller.running
        when: root.surface !== null
    }

    Connections {
        target: root.surface
        function onPhotoSaved(file: string) {
            root.controller.photoTaken(file);
        }
    }

    CalmMessage {
        anchors.centerIn: parent
        width: parent.width - 64
        visible: !root.usable
        imageName: "camera"
        message: "No camera found on this device."
        action: "Choose Existing"
        onPressed: root.controller.chooseExisting()
    }

    ButtonBase {
        id: release
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        implicitWidth: 72
        implicitHeight: 72
        visible: root.usable
        enabled: root.surface?.ready ?? false
        text: "Take Photo"
        ring.anchors.margins: -5
        ring.radius: width / 2 + 5
        opacity: release.enabled ? 1 : 0.5
        onClicked: {
            const file = root.controller.pictureFile();
            if (file !== "")
                root.surface.captureRequested(file);
        }

        background: Rectangle {
            radius: width / 2
            color: "transparent"
            border.width: 4
            border.color: Theme.inkOnDark

            Rectangle {
                anchors.fill: parent
                anchors.margins: release.pressed ? 10 : 8
                radius: width / 2
                color: Theme.inkOnDark
            }
        }
    }

    OpeningVeil {
        anchors.fill: parent
        visible: root.controller.opening
    }
}
