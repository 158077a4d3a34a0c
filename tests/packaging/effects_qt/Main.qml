// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Example
import Kindora.Effects
import Kindora.Toolkit.Hosts

Window {
    id: root

    // Under names by which they are found from outside.
    readonly property Item cover: cover
    readonly property Item ball: ball
    readonly property CollectionGrid grid: grid
    readonly property Game game: game

    width: 360
    height: 560
    visible: true

    Game {
        id: game
    }

    // What lies below the cover.
    Rectangle {
        anchors.fill: cover
        radius: 16
        color: "#f6d365"

        Text {
            anchors.centerIn: parent
            text: "You have won!"
            font.pixelSize: 32
        }
    }

    ScratchImageViewItem {
        id: cover
        owner: game
        outlet: "cover"
        x: 20
        y: 20
        width: 320
        height: 160
        radius: 16
    }

    ViewItem {
        id: ball
        owner: game
        outlet: "ball"
        x: 296
        y: 192
        width: 44
        height: 44

        Rectangle {
            anchors.fill: parent
            radius: 22
            color: "#e4572e"
        }
    }

    Text {
        x: 20
        y: 204
        text: Math.round(game.progress * 100) + " % scratched"
              + (game.chosen < 0 ? "" : ", cell " + game.chosen + " pressed")
    }

    CollectionGrid {
        id: grid
        y: 248
        width: parent.width
        height: parent.height - y
        collectionView: game.grid
        prototype: Component {
            CollectionCell {
                Rectangle {
                    anchors.fill: parent
                    radius: 10
                    color: "#4a7fb5"
                }
            }
        }
    }
}
