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

    module: backLight
    title: qsTr("BackGlow")
    storedNames: ["state"]

    function collectProps(): var {
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
