// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import "../.."

// The colour modes of a monitor, in the order of its menu.
LuComboBox {
    id: choice

    property var monitor: null

    text: qsTr("Color Mode")
    model: Array.from(monitor?.colorModeList ?? [])
    textOf: mode => strings.colorMode(mode)
    confirmedIndex: model.indexOf(monitor?.colorMode ?? null)
    onActivated: index => monitor.colorMode = model[index]

    readonly property PackageStrings strings: PackageStrings { }
}
