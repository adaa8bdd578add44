// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// A choice of values with their texts.
LuComboBox {
    id: choice

    // Objects with `text` and `value`.
    property var entries: []
    // The value that the monitor holds.
    property var confirmed
    signal chosen(var value)

    model: entries
    textRole: "text"
    valueRole: "value"
    confirmedIndex: entries.findIndex(entry => entry.value === confirmed)
    onActivated: index => chosen(entries[index].value)
}
