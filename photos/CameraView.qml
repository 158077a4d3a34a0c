// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtMultimedia

// The camera's picture. Loaded only where the multimedia module can be.
CameraSurface {
    id: root

    property bool failed: false

    usable: devices.videoInputs.length > 0 && !root.failed
    ready: root.usable && camera.active && capture.readyForCapture
    onCaptureRequested: file => capture.captureToFile(file)

    MediaDevices {
        id: devices
    }

    CaptureSession {
        videoOutput: output
        camera: Camera {
            id: camera
            active: root.running && root.usable
            onErrorOccurred: root.failed = true
        }
        imageCapture: ImageCapture {
            id: capture
            onImageSaved: (id, file) => root.photoSaved(file)
            onErrorOccurred: root.failed = true
        }
    }

    VideoOutput {
        id: output
        anchors.fill: parent
        fillMode: VideoOutput.PreserveAspectCrop
    }
}
