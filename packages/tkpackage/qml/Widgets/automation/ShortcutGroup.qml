// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// One topic of the shortcuts page: its functions, two to a line.
Column {
    id: group

    required property var shortcuts
    // {"text", "note", "rows": [{"title", "name", "text"}]}
    required property var topic
    // Counts changes of combinations, which the module does not tell one by one.
    required property int revision

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.space
    Accessible.role: Accessible.Grouping
    Accessible.name: topic.text

    function isCaptured(row: var): bool {
        return revision >= 0 && !!shortcuts?.modifyShortcuts && shortcuts.checkModifyShortcuts(row.title, row.name)
    }

    function keysOf(row: var): var {
        // The monitor may go while its page is open.
        const keys = revision >= 0 && shortcuts ? shortcuts.shortcutCombo(row.title, row.name) : ""
        if (!keys)
            return ["–"]
        return shortcuts.displayKeyList(shortcuts.isShortcutDuplicated(row.title, row.name) ? keys + "+ ! " : keys)
    }

    LuLabel {
        width: parent.width
        kind: LuLabel.Strong
        repeatsName: true
        text: group.topic.text
    }
    // The texts of the rows stand below the heading; their own margin is beside them.
    Grid {
        id: grid
        x: -LuStyle.space
        width: parent.width + 2 * LuStyle.space
        columns: 2
        columnSpacing: LuStyle.space
        rowSpacing: LuStyle.spaceHalf
        Repeater {
            model: group.topic.rows
            LuKeyRow {
                required property var modelData

                objectName: "shortcut" + modelData.name
                width: (grid.width - grid.columnSpacing) / 2
                text: modelData.text
                capturing: group.isCaptured(modelData)
                pending: capturing ? group.shortcuts.pressKeyName : ""
                keys: group.keysOf(modelData)
                onClicked: {
                    group.shortcuts.registerShortcuts(modelData.title, modelData.name, true)
                    group.shortcuts.clearSetShortcutsName()
                }
                onCaptureCanceled: group.shortcuts.modifyShortcuts = false
            }
        }
    }
    LuLabel {
        width: parent.width
        visible: text.length > 0
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: group.topic.note
    }
}
