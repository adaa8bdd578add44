// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."
import "../Widgets/eyecare"

// Night hours protection as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var nightProtection: monitor?.nightProtection ?? null

    module: nightProtection
    title: qsTr("Night Hours Protection")
    storedNames: ["state"]

    function collectProps(): var {
        return { "state": _choice.chosen }
    }

    NightStateChoice {
        id: _choice
        nightProtection: _self.nightProtection
    }
    LuInfoBlock {
        entries: [{ "name": qsTr("Level"), "value": String(_self.nightProtection?.level ?? 0) }]
    }
}
