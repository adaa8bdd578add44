// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import "../.."

// How the light behind the panel shines. On a monitor with the older light sensor function, dimming by itself needs that
// function.
Flow {
    id: choice

    required property var backLight
    required property var abSetting
    readonly property bool autoAllowed: !(abSetting?.abSensorEnable ?? false) || abSetting.currentAB
    // The user's choice, also while it is on its way to the monitor.
    readonly property int chosen: _auto.checked ? LuBackLight.Auto : _on.checked ? LuBackLight.On : LuBackLight.Off

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceWide

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("BackGlow")

    LuRadio {
        id: _auto
        text: qsTr("Auto Dimming")
        enabled: choice.autoAllowed
        confirmed: choice.backLight?.state === LuBackLight.Auto
        onToggled: choice.backLight.state = LuBackLight.Auto
    }
    LuRadio {
        id: _on
        text: qsTr("On")
        confirmed: choice.backLight?.state === LuBackLight.On
        onToggled: choice.backLight.state = LuBackLight.On
    }
    LuRadio {
        text: qsTr("Off")
        confirmed: choice.backLight?.state === LuBackLight.Off
        onToggled: choice.backLight.state = LuBackLight.Off
    }
}
