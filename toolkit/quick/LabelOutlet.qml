// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import Kindora.Toolkit.Quick

// Draws the label of an outlet. Of its look the page chooses what the controller leaves open; what
// both choose is a mistake, and is told as one.
ViewItem {
    id: root

    property real points: NaN
    property color color: "transparent"
    // By the user's own scale.
    property bool scales: true
    property int alignment: 0
    // 0 for as many as the text needs.
    property int lines: 1
    property int verticalAlignment: Text.AlignVCenter
    property int role: root.heading ? Accessible.Heading : Accessible.StaticText
    // What it lies on says its text.
    property bool silent: false

    property real novelty: 0
    readonly property bool speaks: root.announced && root.shown

    readonly property bool fontTwice: root.hasTextFont && !isNaN(root.points)
    readonly property bool colorTwice: root.textColor.valid && root.color.a > 0
    readonly property bool alignmentTwice: root.textAlignment !== 0 && root.alignment !== 0

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    onSpeaksChanged: if (root.speaks) {
        news.start();
        Announcer.announce(label);
    }
    onFontTwiceChanged: root.tellTwice(root.fontTwice, "font")
    onColorTwiceChanged: root.tellTwice(root.colorTwice, "colour")
    onAlignmentTwiceChanged: root.tellTwice(root.alignmentTwice, "alignment")

    function tellTwice(twice, what) {
        if (twice)
            console.warn("the page and the controller both choose the " + what + " of "
                         + root.outlet);
    }

    // An alert as it comes, and from then on a text like others.
    NumberAnimation {
        id: news
        target: root
        property: "novelty"
        from: 1
        to: 0
        duration: 1000
    }

    PlainText {
        id: label
        anchors.fill: parent
        text: root.text
        font: root.hasTextFont || isNaN(root.points)
              ? (root.scales ? root.textFont : root.unscaledTextFont)
              : Appearance.font(root.points, root.scales ? Theme.textScale : 1)
        color: root.textColor.valid ? root.textColor : root.color.a > 0 ? root.color : Theme.ink
        horizontalAlignment: root.textAlignment !== 0 ? root.textAlignment
                                                      : root.alignment !== 0 ? root.alignment
                                                                             : Text.AlignLeft
        verticalAlignment: root.verticalAlignment
        wrapMode: root.lines === 1 ? Text.NoWrap : Text.Wrap
        // All of it shows: an ellipsis would come for a frame while the height follows the text.
        elide: root.lines === 0 ? Text.ElideNone : Text.ElideRight
        maximumLineCount: root.lines === 0 ? 0x7fffffff : root.lines
        Accessible.role: root.novelty > 0 ? Accessible.AlertMessage : root.role
        Accessible.ignored: root.silent || !root.shown
    }
}
