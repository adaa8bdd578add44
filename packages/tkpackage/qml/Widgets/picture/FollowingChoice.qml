// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// A choice that shows what the monitor holds, and what the user chose while that is on its way.
LuComboBox {
    id: choice

    // Objects with `text` and `value`.
    property var entries: []
    // The value that the monitor holds.
    property var confirmed
    readonly property int heldIndex: entries.findIndex(entry => entry.value === confirmed)
    property int patience: 3000
    signal chosen(var value)

    model: entries
    textRole: "text"
    valueRole: "value"
    onHeldIndexChanged: showHeld()
    // A new list starts at its first entry.
    onModelChanged: showHeld()
    onActivated: index => {
        journey.restart()
        chosen(entries[index].value)
    }
    Component.onCompleted: showHeld()

    function showHeld(): void {
        journey.stop()
        currentIndex = heldIndex
    }

    property Timer journey: Timer {
        interval: choice.patience
        onTriggered: choice.showHeld()
    }
}
