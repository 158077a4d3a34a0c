// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// One line of a table: a header, or a card that is pressed and, where it can be edited, swiped
// aside.
Item {
    id: root

    required property int index
    required property bool isHeader
    required property UITableViewCell cell
    required property UITableViewHeaderFooterView header
    required property string reuseIdentifier
    required property bool canEdit
    required property string deleteTitle
    required property bool pressable
    required property UITableView table
    required property var prototypes

    readonly property bool open: root.table.editingRow === root.index
    readonly property real openWidth: 104

    height: root.isHeader
            ? 44
            : content.implicitHeight + ((prototype.item as TableCell)?.spaceBelow ?? 0)

    Loader {
        active: root.isHeader
        width: root.width
        height: 44
        sourceComponent: ViewItem {
            id: label
            owner: root.header
            outlet: "textLabel"

            PlainText {
                x: 16
                width: parent.width - 32
                anchors.bottom: parent.bottom
                anchors.bottomMargin: 10
                text: label.text
                points: 16
                color: label.textColor
                horizontalAlignment: label.textCentered ? Text.AlignHCenter : Text.AlignLeft
                Accessible.role: Accessible.Heading
            }
        }
    }

    T.Button {
        id: remove
        anchors.right: parent.right
        anchors.rightMargin: 16
        width: root.openWidth - 12
        height: content.height
        visible: content.x < 0
        enabled: root.open
        text: root.deleteTitle
        focusPolicy: Qt.StrongFocus
        Accessible.name: remove.text
        onClicked: root.table.commitDelete(root.index)
        Keys.onReturnPressed: remove.clicked()

        background: Rectangle {
            radius: Theme.cardRadius
            color: remove.pressed ? Theme.dangerPressed : Theme.danger

            FocusRing {
                visible: remove.visualFocus
                radius: 22
            }
        }

        contentItem: PlainText {
            text: remove.text
            Accessible.ignored: true
            font: Appearance.boldFont(16)
            color: Theme.inkOnColor
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }

    T.AbstractButton {
        id: content
        objectName: "row" + root.index
        width: root.width
        implicitHeight: prototype.implicitHeight
        visible: !root.isHeader
        enabled: !root.isHeader
        focusPolicy: root.pressable ? Qt.StrongFocus : Qt.NoFocus
        hoverEnabled: false
        text: (prototype.item as TableCell)?.spoken ?? ""
        Accessible.role: root.pressable ? Accessible.Button : Accessible.StaticText
        Accessible.name: content.text
        Accessible.checkable: (prototype.item as TableCell)?.checkable ?? false
        Accessible.checked: (prototype.item as TableCell)?.checked ?? false

        onDownChanged: root.table.setHighlighted(root.index, content.down)
        onClicked: {
            if (root.open)
                root.table.closeRow();
            else
                root.table.select(root.index);
        }
        onPressAndHold: root.table.openRow(root.index)
        Keys.onReturnPressed: content.clicked()
        Keys.onEnterPressed: content.clicked()
        Keys.onDeletePressed: root.table.commitDelete(root.index)
        Keys.onMenuPressed: root.table.openRow(root.index)

        contentItem: Loader {
            id: prototype
            sourceComponent: root.prototypes[root.reuseIdentifier] ?? null
            onLoaded: item.cell = Qt.binding(() => root.cell)
        }

        FocusRing {
            visible: content.visualFocus
            anchors.leftMargin: 14
            anchors.rightMargin: 14
            radius: 22
        }

        Binding {
            target: content
            property: "x"
            value: root.open ? -root.openWidth : 0
            when: !swipe.active
            restoreMode: Binding.RestoreNone
        }

        Behavior on x {
            enabled: !swipe.active
            NumberAnimation { duration: 220; easing.type: Easing.OutCubic }
        }

        DragHandler {
            id: swipe
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
            acceptedButtons: Qt.RightButton
            onTapped: root.table.openRow(root.index)
        }
    }
}
