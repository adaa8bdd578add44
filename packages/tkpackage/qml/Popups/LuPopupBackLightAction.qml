// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."
import "../Widgets/eyecare"

// The light behind the panel as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var backLight: monitor?.backLight ?? null
    property int recordedState: LuBackLight.Off

    module: backLight
    title: qsTr("BackGlow")

    function recordProps(): void {
        recordedState = backLight.state
        const state = actionProperty("state")
        if (state !== undefined)
            backLight.state = state
    }
    function restoreProps(): void {
        backLight.state = recordedState
    }
    function collectProps(): var {
        // The control, since what it shows may still be on its way to the monitor.
        return { "state": _choice.chosen }
    }

    BackLightStateChoice {
        id: _choice
        backLight: _self.backLight
        abSetting: _self.monitor?.abSetting ?? null
    }
    LuInfoBlock {
        entries: [
            { "name": qsTr("Brightness"), "value": String(_self.backLight?.brightness ?? 0) },
            { "name": qsTr("Color Temperature"), "value": String(_self.backLight?.colorTemperature ?? 0) },
            { "name": qsTr("Light Mode"), "value": _self.backLight?.angle === LuBackLight.Angle_360 ? "360°" : "270°" }
        ]
    }
}
