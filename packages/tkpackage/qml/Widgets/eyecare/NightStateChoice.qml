// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import "../.."

// How night hours protection goes on and off.
Flow {
    id: choice

    required property var nightProtection
    // The user's choice, also while it is on its way to the monitor.
    readonly property int chosen: _auto.checked ? LuNightProtection.Auto : _on.checked ? LuNightProtection.On : LuNightProtection.Off

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceWide

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Night Hours Protection")

    LuRadio {
        id: _auto
        text: qsTr("Auto Switch")
        confirmed: choice.nightProtection?.state === LuNightProtection.Auto
        onToggled: choice.nightProtection.state = LuNightProtection.Auto
    }
    LuRadio {
        id: _on
        text: qsTr("On")
        confirmed: choice.nightProtection?.state === LuNightProtection.On
        onToggled: choice.nightProtection.state = LuNightProtection.On
    }
    LuRadio {
        text: qsTr("Off")
        confirmed: choice.nightProtection?.state === LuNightProtection.Off
        onToggled: choice.nightProtection.state = LuNightProtection.Off
    }
}
