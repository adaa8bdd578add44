// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."
import "../Widgets/picture"

// The colour mode as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var brightness: monitor?.brightness ?? null

    module: brightness
    title: qsTr("Color Mode")
    storedNames: ["colorModeName"]

    function collectProps(): var {
        // What was chosen last counts, also while the monitor is still on its way there.
        return { "colorModeName": _modes.model[_modes.currentIndex]?.displayName ?? brightness.colorModeName }
    }

    LuPageRow {
        text: qsTr("Color Mode")
        ColorModeChoice {
            id: _modes
            width: Math.min(implicitWidth, 150)
            monitor: _self.monitor
        }
    }
    LuInfoBlock {
        entries: [{ "name": qsTr("Brightness"), "value": String(_self.brightness?.displayBrightness ?? 0) }]
    }
}
