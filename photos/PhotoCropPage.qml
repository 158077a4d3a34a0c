// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Hosts
import Kindora.Photos

// The picture under a square, to be moved by a finger or the arrow keys and zoomed by two fingers,
// the wheel or the keys + and -.
Rectangle {
    id: root

    required property PhotoCropController controller
    readonly property rect frame: root.controller.pictureFrame
    readonly property real side: Math.max(120, Math.min(width - 32, height - 130))

    color: Theme.darkGround
    clip: true
    onSideChanged: root.controller.setSide(root.side)
    Component.onCompleted: {
        root.controller.setSide(root.side);
        square.forceActiveFocus();
    }

    Item {
        id: square
        objectName: "cropSquare"
        readonly property real step: 10
        readonly property real zoomStep: 1.1
        readonly property point middle: Qt.point(width / 2, height / 2)

        anchors.horizontalCenter: parent.horizontalCenter
        y: (parent.height - 90 - height) / 2
        width: root.side
        height: root.side
        activeFocusOnTab: true
        Accessible.role: Accessible.Graphic
        Accessible.name: root.controller.title
        Accessible.focusable: true
        Accessible.onIncreaseAction: root.controller.zoomBy(square.zoomStep, square.middle)
        Accessible.onDecreaseAction: root.controller.zoomBy(1 / square.zoomStep, square.middle)
        Accessible.onScrollLeftAction: root.controller.pan(Qt.point(square.step, 0))
        Accessible.onScrollRightAction: root.controller.pan(Qt.point(-square.step, 0))
        Accessible.onScrollUpAction: root.controller.pan(Qt.point(0, square.step))
        Accessible.onScrollDownAction: root.controller.pan(Qt.point(0, -square.step))

        Keys.onLeftPressed: root.controller.pan(Qt.point(-square.step, 0))
        Keys.onRightPressed: root.controller.pan(Qt.point(square.step, 0))
        Keys.onUpPressed: root.controller.pan(Qt.point(0, -square.step))
        Keys.onDownPressed: root.controller.pan(Qt.point(0, square.step))
        Keys.onReturnPressed: root.controller.choose()
        Keys.onEnterPressed: root.controller.choose()
        Keys.onPressed: event => {
            const zoomsIn = event.key === Qt.Key_Plus || event.key === Qt.Key_Equal;
            if (zoomsIn || event.key === Qt.Key_Minus)
                root.controller.zoomBy(zoomsIn ? square.zoomStep : 1 / square.zoomStep,
                                       square.middle);
        }

        PictureItem {
            // In its own pixels; the frame scales them.
            width: root.controller.pictureSize.width / Screen.devicePixelRatio
            height: root.controller.pictureSize.height / Screen.devicePixelRatio
            x: root.frame.x
            y: root.frame.y
            scale: root.frame.width / width
            transformOrigin: Item.TopLeft
            image: root.controller.image
        }
    }

    // What will be cut away.
    component Shade: Rectangle {
        color: Qt.alpha(Theme.darkGround, 0.72)
    }
    Shade {
        width: root.width
        height: square.y
    }
    Shade {
        y: square.y + square.height
        width: root.width
        height: root.height - y
    }
    Shade {
        y: square.y
        width: square.x
        height: square.height
    }
    Shade {
        x: square.x + square.width
        y: square.y
        width: root.width - x
        height: square.height
    }

    Rectangle {
        anchors.fill: square
        anchors.margins: -border.width
        color: "transparent"
        border.width: square.activeFocus ? 2 : 1
        border.color: Theme.inkOnDark
    }

    DragHandler {
        id: drag
        property point before
        target: null
        onActiveChanged: drag.before = Qt.point(0, 0)
        onTranslationChanged: {
            root.controller.pan(Qt.point(translation.x - drag.before.x,
                                         translation.y - drag.before.y));
            drag.before = Qt.point(translation.x, translation.y);
        }
    }

    PinchHandler {
        id: pinch
        property real before: 1
        property point place
        target: null
        onActiveChanged: {
            pinch.before = 1;
            pinch.place = centroid.position;
        }
        onUpdated: {
            const about = root.mapToItem(square, centroid.position);
            root.controller.pan(Qt.point(centroid.position.x - pinch.place.x,
                                         centroid.position.y - pinch.place.y));
            root.controller.zoomBy(activeScale / pinch.before, about);
            pinch.before = activeScale;
            pinch.place = centroid.position;
        }
    }

    WheelHandler {
        acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
        onWheel: event => root.controller.zoomBy(Math.pow(1.001, event.angleDelta.y),
                                                 root.mapToItem(square, event.x, event.y))
    }

    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 24
        spacing: 16

        PillButton {
            width: 140
            filled: false
            textColor: Theme.ink
            text: "Cancel"
            onClicked: root.controller.cancel()
        }

        PillButton {
            width: 140
            text: "Choose"
            onClicked: root.controller.choose()
        }
    }
}
