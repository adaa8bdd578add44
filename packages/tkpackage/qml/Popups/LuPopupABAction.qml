// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."

// The older ambient brightness as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var abSetting: monitor?.abSetting ?? null

    module: abSetting
    title: qsTr("A.B. Gen2")
    storedNames: ["currentAB"]

    function collectProps(): var {
        return { "currentAB": _switch.checked }
    }

    LuPageRow {
        text: _self.title
        LuSwitch {
            id: _switch
            text: _self.title
            confirmed: _self.abSetting?.currentAB || false
            onToggled: _self.abSetting.currentAB = checked
        }
    }
    LuInfoBlock {
        entries: [
            { "name": qsTr("Light Meter"), "value": _self.abSetting?.lightMeterState ? qsTr("On") : qsTr("Off") },
            { "name": qsTr("Sensor Sensitivity"), "value": String(_self.abSetting?.sensitivity ?? 0) }
        ]
    }
}
