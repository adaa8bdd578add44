// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."

// The filter as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var lowBlueLight: monitor?.lowBlueLight ?? null

    module: lowBlueLight
    title: lowBlueLight?.type === LuLowBlueLight.LowBlueLightPlus ? qsTr("Low Blue Light Plus") : qsTr("Low Blue Light")
    storedNames: ["level", "circadianState"]

    function collectProps(): var {
        return { "level": Math.round(_level.value), "circadianState": _circadian.checked }
    }

    LuLabeledSlider {
        id: _level
        text: qsTr("Level")
        from: 0
        to: 5
        confirmedValue: _self.lowBlueLight?.level ?? 0
        onMoved: value => _self.lowBlueLight.level = Math.round(value)
    }
    LuPageRow {
        text: qsTr("Circadian Mode")
        LuSwitch {
            id: _circadian
            text: qsTr("Circadian Mode")
            confirmed: _self.lowBlueLight?.circadianState || false
            onToggled: _self.lowBlueLight.circadianState = checked
        }
    }
    LuInfoBlock {
        entries: [
            {
                "name": qsTr("Mode"),
                "value": _self.lowBlueLight?.weather?.circadianMode === LuWeather.Manual ? qsTr("Manual") : qsTr("Sunrise to Sunset")
            }
        ]
    }
}
