// SPDX-FileCopyrightText: 2026 The Kindora developers
// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import Kindora.Toolkit.Quick

// One line of text that the user edits, without a frame of its own.
TextInputItem {
    id: root

    // What the field is called when it is read aloud.
    required property string label
    // Esc ends what the field is for, instead of the page.
    property bool escapes: false
    readonly property bool inputFocus: field.activeFocus

    signal pressed
    signal escaped

    implicitHeight: 56
    inputItem: field

    T.TextField {
        id: field
        anchors.fill: parent
        clip: true
        font: root.fieldFont
        color: root.textColor.valid ? root.textColor : Theme.ink
        selectionColor: Qt.alpha(Appearance.tint, 0.4)
        selectedTextColor: field.color
        leftPadding: root.leftInset
        rightPadding: root.rightInset
        topPadding: root.topInset
        bottomPadding: root.bottomInset
        echoMode: root.secure ? TextInput.Password : TextInput.Normal
        verticalAlignment: TextInput.AlignVCenter
        selectByMouse: true
        inputMethodHints: root.hints
        EnterKey.type: root.enterKey
        Accessible.name: root.label
        Accessible.description: root.placeholder !== root.label ? root.placeholder : ""

        onAccepted: root.pressReturn()
        onReleased: root.pressed()
        Accessible.onPressAction: {
            root.beginEditing();
            root.pressed();
        }
        Keys.onShortcutOverride: event =>
            event.accepted = root.escapes && event.key === Qt.Key_Escape
        Keys.onEscapePressed: event => {
            event.accepted = root.escapes;
            if (root.escapes)
                root.escaped();
        }

        PlainText {
            anchors.fill: parent
            anchors.leftMargin: field.leftPadding
            anchors.rightMargin: field.rightPadding
            anchors.topMargin: field.topPadding
            anchors.bottomMargin: field.bottomPadding
            visible: field.text === "" && field.preeditText === ""
            text: root.placeholder
            font: field.font
            color: Theme.softInk
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
