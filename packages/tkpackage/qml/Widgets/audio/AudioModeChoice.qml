// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import "../.."

// The audio modes of a monitor, in the order of its schema.
LuComboBox {
    id: choice

    required property var volume
    readonly property PackageStrings strings: PackageStrings { }
    // The user's choice, also while it is on its way to the monitor.
    readonly property string chosen: model[currentIndex] ?? volume?.audioMode ?? ""

    text: qsTr("Audio Mode")
    model: Array.from(volume?.audioModeList ?? [])
    textOf: mode => strings.audioMode(mode)
    confirmedIndex: model.indexOf(volume?.audioMode ?? "")
    onActivated: index => volume.audioMode = model[index]
}
