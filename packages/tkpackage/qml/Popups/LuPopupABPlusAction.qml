// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."

// The newer ambient brightness as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var abPlus: monitor?.abPlus ?? null

    module: abPlus
    title: abPlus?.displayNameType === LuABPlus.NameVisualOptimizer ? qsTr("Visual Optimizer") : qsTr("A.B.+ Gen2")
    storedNames: ["state"]

    function collectProps(): var {
        return { "state": _switch.checked }
    }

    LuPageRow {
        text: _self.title
        LuSwitch {
            id: _switch
            text: _self.title
            confirmed: _self.abPlus?.state || false
            onToggled: _self.abPlus.state = checked
        }
    }
    LuInfoBlock {
        entries: [
            { "name": qsTr("Sensor Sensitivity"), "value": String(_self.abPlus?.sensitivity ?? 0) }
        ]
    }
}
