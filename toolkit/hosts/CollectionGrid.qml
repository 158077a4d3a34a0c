// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws a collection that scrolls up and down, with cells that are pressed.
Flickable {
    id: root

    required property CollectionView collectionView
    // How a cell looks, made with the property `cell` and what is read aloud in `spoken`.
    required property Component prototype

    contentWidth: width
    contentHeight: cells.implicitHeight
    clip: true
    boundsBehavior: Flickable.DragAndOvershootBounds
    Accessible.role: Accessible.List
    Accessible.onScrollDownAction: reach.turnPage(1)
    Accessible.onScrollUpAction: reach.turnPage(-1)

    KeyboardReach {
        id: reach
        area: root
        // Keys go by where cells are; these lag behind a finger only.
        onScrolled: root.collectionView.settle()
    }

    CollectionViewItem {
        id: cells
        width: root.width
        height: implicitHeight
        collectionView: root.collectionView
        visibleSize: Qt.size(root.width, root.height)
        contentY: root.contentY
        finger: touch.active ? Qt.point(touch.point.position.x, touch.point.position.y)
                             : Qt.point(0, 0)

        delegate: ButtonBase {
            id: content

            required property UICollectionViewCell cell

            text: (look.item as CollectionCell)?.spoken ?? ""
            ring.radius: 18

            onDownChanged: content.cell.setHighlighted(content.down, true)
            onClicked: cells.select(content.cell)

            contentItem: Loader {
                id: look
                sourceComponent: root.prototype
                onLoaded: item.cell = content.cell
            }
        }

        // Above the cells: a press that one of them takes is not seen below it.
        Item {
            anchors.fill: parent
            z: 1

            PointHandler {
                id: touch
                acceptedButtons: Qt.LeftButton
            }
        }
    }
}
