// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A function with its key combination, each key a chip; a click changes the combination. While that is going on,
// `pending` shows the keys pressed so far, no key that is pressed here means anything else, and Escape gives up. A key of
// `warningKeys` is drawn as a warning.
//
// Who listens to the keys fills `pending`: they may go to another program's window.
T.AbstractButton {
    id: row

    property var keys: []
    property var warningKeys: ["!"]
    property bool capturing: false
    property string pending
    readonly property int margin: 6
    signal captureCanceled()

    implicitWidth: 140
    implicitHeight: words.implicitHeight + chips.implicitHeight + LuStyle.spaceHalf + 2 * row.margin
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(row)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: capturing ? pending : keys.join("+")
    Accessible.checkable: true
    Accessible.checked: capturing
    Accessible.onPressAction: row.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    Keys.onShortcutOverride: event => event.accepted = row.capturing
    Keys.onPressed: event => {
        if (row.capturing) {
            event.accepted = true
            if (event.key === Qt.Key_Escape && event.modifiers === Qt.NoModifier)
                row.captureCanceled()
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            event.accepted = true
            if (!event.isAutoRepeat)
                row.assistivePress()
        }
    }
    Keys.onReleased: event => event.accepted = row.capturing

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: row.capturing ? LuStyle.accentSoft : row.down ? LuStyle.press : row.hovered ? LuStyle.hover : "transparent"
        border.width: row.capturing ? 1 : 0
        border.color: row.capturing ? LuStyle.accentText : LuStyle.outline
        LuFocusRing {
            control: row
            gap: -1
        }
    }
    contentItem: Item {
        LuLabel {
            id: words
            x: LuStyle.space
            y: row.margin
            width: row.width - 2 * LuStyle.space
            repeatsName: true
            kind: LuLabel.Caption
            color: LuStyle.text
            wrapMode: Text.WordWrap
            text: row.text
        }
        Flow {
            id: chips
            x: LuStyle.space
            anchors.top: words.bottom
            anchors.topMargin: LuStyle.spaceHalf
            width: row.width - 2 * LuStyle.space
            spacing: LuStyle.spaceHalf
            Repeater {
                model: {
                    const shown = row.capturing ? row.pending ? row.pending.split("+") : ["…"] : Array.from(row.keys)
                    // A combination reads from the left in every language.
                    return row.mirrored ? shown.reverse() : shown
                }
                LuChip {
                    required property string modelData
                    text: modelData.trim()
                    kind: row.warningKeys.includes(modelData.trim()) ? LuChip.Warning : LuChip.Normal
                }
            }
        }
    }
}
