// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A line of text. `name` is what assistive software calls it; without one it is the placeholder.
T.TextField {
    id: control

    property string name: placeholderText

    implicitWidth: 180
    implicitHeight: LuStyle.controlHeight
    leftPadding: LuStyle.space
    rightPadding: LuStyle.space
    topPadding: LuStyle.spaceHalf
    bottomPadding: LuStyle.spaceHalf
    verticalAlignment: TextInput.AlignVCenter
    hoverEnabled: true
    selectByMouse: true
    color: LuStyle.text
    selectionColor: LuStyle.accentFill
    selectedTextColor: LuStyle.accentInk
    placeholderTextColor: LuStyle.textDim
    font.family: LuStyle.fontFamily
    font.pixelSize: LuStyle.fontBody
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.EditableText
    Accessible.name: name
    Accessible.editable: !readOnly

    // What a person types in place of the present text.
    function assistiveSet(wanted: var): bool {
        if (readOnly)
            return false
        // Versions of Qt differ in whether insert() tells of itself.
        let told = false
        const tell = () => told = true
        textEdited.connect(tell)
        remove(0, length)
        insert(0, String(wanted))
        textEdited.disconnect(tell)
        if (!told)
            textEdited()
        return true
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: control.hovered ? LuStyle.fieldHover : LuStyle.field
        border.width: control.activeFocus ? LuStyle.focusWidth : 1
        border.color: control.activeFocus ? LuStyle.accent : LuStyle.outline
    }
    LuLabel {
        x: control.leftPadding
        width: control.width - control.leftPadding - control.rightPadding
        height: control.height
        verticalAlignment: Text.AlignVCenter
        repeatsName: true
        visible: control.length === 0 && control.preeditText.length === 0
        text: control.placeholderText
        color: control.placeholderTextColor
    }
}
