// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// The key combination of a function, as chips below its name. A click asks for another one: while `capturing` holds, no
// key that is pressed here means anything else, and Escape gives up.
//
// Who listens to the keys fills `keys`: they may be those of another program's window.
T.AbstractButton {
    id: control

    // The parts of the combination, such as ["Ctrl", "Alt", "→"].
    property var keys: []
    // The last part is no key but a warning.
    property bool warning: false
    property bool capturing: false
    signal captureCanceled()

    implicitWidth: Math.max(name.implicitWidth, chips.implicitWidth) + leftPadding + rightPadding
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: LuStyle.spaceWide
    verticalPadding: LuStyle.space
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: keys.join("+")
    Accessible.checkable: true
    Accessible.checked: capturing
    Accessible.onPressAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    Keys.onShortcutOverride: event => event.accepted = control.capturing
    Keys.onPressed: event => {
        if (control.capturing) {
            event.accepted = true
            if (event.key === Qt.Key_Escape && event.modifiers === Qt.NoModifier)
                control.captureCanceled()
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            event.accepted = true
            if (!event.isAutoRepeat)
                control.assistivePress()
        }
    }
    Keys.onReleased: event => event.accepted = control.capturing

    background: Rectangle {
        radius: LuStyle.radius
        color: control.capturing ? LuStyle.accentSoft : control.down ? LuStyle.press : control.hovered && control.enabled ? LuStyle.hover : LuStyle.card
        border.width: control.capturing ? 1.5 : 1
        border.color: control.capturing ? LuStyle.accentText : LuStyle.highContrast ? LuStyle.outline : LuStyle.line
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
            innerRadius: LuStyle.radius
        }
    }
    contentItem: Column {
        spacing: 6
        LuLabel {
            id: name
            width: parent.width
            repeatsName: true
            text: control.text
        }
        Row {
            id: chips
            height: empty.implicitHeight
            spacing: LuStyle.spaceHalf
            Repeater {
                model: control.keys
                LuChip {
                    required property string modelData
                    required property int index

                    visible: text.length > 0
                    kind: control.warning && index === control.keys.length - 1 ? LuChip.Warning : LuChip.Normal
                    text: modelData
                }
            }
            // Keeps the line while nothing has been pressed yet.
            LuChip {
                id: empty
                visible: control.keys.length === 0 || control.keys[0] === ""
                kind: control.capturing ? LuChip.Accent : LuChip.Normal
                text: control.capturing ? "…" : "–"
            }
        }
    }
}
