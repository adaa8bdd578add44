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
    property bool recordedState: false

    module: abPlus
    title: abPlus?.displayNameType === LuABPlus.NameVisualOptimizer ? qsTr("Visual Optimizer") : qsTr("A.B.+ Gen2")

    function recordProps(): void {
        recordedState = abPlus.state
        const state = actionProperty("state")
        if (state !== undefined)
            abPlus.state = state
    }
    function restoreProps(): void {
        abPlus.state = recordedState
    }
    function collectProps(): var {
        // The control, since what it shows may still be on its way to the monitor.
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
