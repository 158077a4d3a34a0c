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
    readonly property bool inputFocus: field.activeFocus

    implicitHeight: 56

    // The keyboard goes where the view says that it is.
    function follow() {
        if (root.editing && !field.activeFocus) {
            if (field.enabled)
                field.forceActiveFocus();
            else
                field.focus = true;
        } else if (!root.editing && field.focus) {
            root.commit();
            field.focus = false;
        }
    }

    onViewChanged: root.follow()
    Component.onCompleted: root.follow()
    onInputReset: {
        field.text = root.text;
        field.select(root.selectionStart, root.selectionEnd);
    }

    T.TextField {
        id: field
        anchors.fill: parent
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
        Accessible.description: root.placeholder

        function tell() {
            root.edit(field.text, field.preeditText, field.cursorPosition);
        }

        onTextEdited: field.tell()
        onPreeditTextChanged: field.tell()
        onSelectionStartChanged: root.select(field.text, field.selectionStart, field.selectionEnd)
        onSelectionEndChanged: root.select(field.text, field.selectionStart, field.selectionEnd)
        onCursorPositionChanged: root.select(field.text, field.selectionStart, field.selectionEnd)
        onAccepted: root.pressReturn()
        onActiveFocusChanged: {
            if (field.activeFocus)
                root.beginEditing();
            else if (!field.focus)
                root.endEditing();
        }
        onEnabledChanged: if (field.enabled) root.follow()

        PlainText {
            anchors.fill: parent
            anchors.leftMargin: field.leftPadding
            anchors.rightMargin: field.rightPadding
            anchors.topMargin: field.topPadding
            anchors.bottomMargin: field.bottomPadding
            visible: field.text === "" && field.preeditText === ""
            text: root.placeholder
            font: field.font
            color: Theme.faintInk
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }
    }
}
