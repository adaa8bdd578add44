// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// A choice among enumerators of the monitor; `textOf` gives their words.
LuComboBox {
    id: choice

    // What the monitor holds.
    property var confirmed
    signal chosen(int number)

    confirmedIndex: Array.from(model ?? []).indexOf(confirmed)
    onActivated: index => chosen(model[index])
}
