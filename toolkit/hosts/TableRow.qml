// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// One line of a table: a header, or a card that, where it does something, is pressed and, where it
// can be edited, swiped aside. Buttons are made where they are of use, since assistive tools read
// all that there are.
Item {
    id: root

    required property int index
    required property UITableViewCell cell
    required property UITableViewHeaderFooterView header
    required property string reuseIdentifier
    required property bool canEdit
    required property string deleteTitle
    required property bool pressable
    required property UITableView table
    required property var prototypes

    readonly property bool isHeader: root.header !== null
    readonly property bool open: root.table.editingRow === root.index
    readonly property real openWidth: 104
    readonly property TableCell look: prototype.item as TableCell

    signal departed

    // Takes its place, maybe as another row than before.
    function come(top: real, animated: bool) {
        arrival.stop();
        departure.stop();
        slide.stop();
        root.x = 0;
        root.y = top;
        root.opacity = 1;
        root.scale = 1;
        if (animated)
            arrival.restart();
    }

    function moveTo(top: real, animated: bool) {
        slide.stop();
        if (!animated) {
            root.y = top;
            return;
        }
        slide.to = top;
        slide.start();
    }

    function depart() {
        arrival.stop();
        departure.restart();
    }

    height: root.isHeader ? 44 : content.height + (root.look?.spaceBelow ?? 0)

    Loader {
        active: root.isHeader
        width: root.width
        height: 44
        sourceComponent: Item {
            LabelOutlet {
                owner: root.header
                outlet: "textLabel"
                x: 16
                width: parent.width - 32
                anchors.bottom: parent.bottom
                anchors.bottomMargin: 10
                role: Accessible.Heading
                scales: false
            }
        }
    }

    Item {
        id: content
        width: root.width
        height: prototype.implicitHeight
        Accessible.role: Accessible.StaticText
        Accessible.name: root.look?.spoken ?? ""
        Accessible.ignored: root.isHeader || root.pressable

        Loader {
            id: prototype
            width: parent.width
            sourceComponent: root.prototypes[root.reuseIdentifier] ?? null
            onLoaded: item.cell = Qt.binding(() => root.cell)
        }

        Loader {
            anchors.fill: parent
            active: root.pressable && !root.isHeader
            sourceComponent: button
        }

        Binding {
            target: content
            property: "x"
            value: root.open ? -root.openWidth : 0
            when: !swipe.active
            restoreMode: Binding.RestoreNone
        }

        Behavior on x {
            enabled: !swipe.active && (root.cell?.settled ?? false)
            NumberAnimation { duration: Theme.slideDuration; easing.type: Easing.OutCubic }
        }
    }

    Loader {
        anchors.right: parent.right
        anchors.rightMargin: 16
        width: -content.x - 12
        height: content.height
        active: root.canEdit && width > 0
        sourceComponent: remove
    }

    Component {
        id: button

        ButtonBase {
            id: press
            objectName: "row" + root.index
            hoverEnabled: false
            text: root.look?.spoken ?? ""
            ring.anchors.leftMargin: 14
            ring.anchors.rightMargin: 14
            ring.radius: 22
            Accessible.role: Accessible.Button

            onDownChanged: root.table.setHighlighted(root.index, press.down)
            onClicked: root.table.select(root.index)
            // A button tells of its own ticks when it is complete, and has none.
            Component.onCompleted: {
                press.Accessible.checkable = Qt.binding(() => root.look?.checkable ?? false);
                press.Accessible.checked = Qt.binding(() => root.look?.checked ?? false);
            }
            Keys.onDeletePressed: root.table.commitDelete(root.index)
            Keys.onMenuPressed: root.table.openRow(root.index)

            Loader {
                active: root.canEdit
                sourceComponent: Connections {
                    target: press.Accessible

                    function onScrollLeftAction() {
                        root.table.openRow(root.index);
                    }
                }
            }
        }
    }

    Component {
        id: remove

        ButtonBase {
            id: reject
            enabled: root.open
            text: root.deleteTitle
            ring.radius: 22
            onClicked: root.table.commitDelete(root.index)

            background: Rectangle {
                radius: Theme.cardRadius
                color: reject.pressed ? Theme.dangerPressed : Theme.danger
            }

            // Its word comes when there is room for it.
            contentItem: PlainText {
                text: reject.text
                Accessible.ignored: true
                opacity: Math.max(0, Math.min(1, (reject.width - implicitWidth) / 16))
                bold: true
                color: Theme.inkOnDanger
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
        }
    }

    // Not inside the button, where it would take the finger from the list that scrolls.
    DragHandler {
        id: swipe
        target: content
        // Also where there is nothing to swipe open: a swipe is no tap.
        enabled: !root.isHeader
        yAxis.enabled: false
        xAxis.minimum: root.canEdit ? -root.openWidth * 1.25 : 0
        xAxis.maximum: 0
        dragThreshold: 10
        cursorShape: Qt.ArrowCursor
        onActiveChanged: {
            if (active)
                return;
            if (content.x < -root.openWidth / 2)
                root.table.openRow(root.index);
            else if (root.open)
                root.table.closeRow();
        }
    }

    TapHandler {
        // A finger has no other button, and would press it by every tap.
        acceptedDevices: PointerDevice.Mouse
        acceptedButtons: Qt.RightButton
        onTapped: root.table.openRow(root.index)
    }

    NumberAnimation {
        id: slide
        target: root
        property: "y"
        duration: Theme.moveDuration
        easing.type: Easing.OutCubic
    }

    ParallelAnimation {
        id: arrival

        NumberAnimation {
            target: root; property: "opacity"; from: 0; to: 1; duration: Theme.moveDuration
        }
        NumberAnimation {
            target: root; property: "scale"; from: 0.8; to: 1; duration: Theme.moveDuration
            easing.type: Easing.OutBack
        }
    }

    ParallelAnimation {
        id: departure
        onFinished: root.departed()

        NumberAnimation {
            target: root; property: "opacity"; to: 0; duration: Theme.fadeDuration
        }
        NumberAnimation {
            target: root; property: "x"; to: -root.width; duration: 250; easing.type: Easing.InQuad
        }
    }
}
