// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// Text of many lines that the user edits, without a frame of its own; it scrolls when it is long.
TextInputItem {
    id: root

    // What the view is called when it is read aloud.
    required property string label
    readonly property bool inputFocus: area.activeFocus

    implicitHeight: 120
    inputItem: area

    Flickable {
        anchors.fill: parent
        clip: true
        boundsBehavior: Flickable.StopAtBounds

        T.TextArea.flickable: T.TextArea {
            id: area
            padding: root.contentInset
            font: Appearance.font(Theme.bodySize, Theme.textScale)
            color: root.textColor.valid ? root.textColor : Theme.ink
            selectionColor: Qt.alpha(Appearance.tint, 0.4)
            selectedTextColor: area.color
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            inputMethodHints: root.hints
            Accessible.name: root.label
            Accessible.description: root.placeholder

            Accessible.onPressAction: root.beginEditing()
            // Tab goes on to the next control, as everywhere.
            KeyNavigation.priority: KeyNavigation.BeforeItem
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed:
                nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            PlainText {
                x: area.leftPadding
                y: area.topPadding
                width: area.width - area.leftPadding - area.rightPadding
                visible: area.text === "" && area.preeditText === ""
                text: root.placeholder
                points: Theme.bodySize
                color: Theme.softInk
                Accessible.ignored: true
            }
        }
    }
}
