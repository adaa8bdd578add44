// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Popups
import LumenDesk.Widgets
import ".."
import "../Widgets/eyecare"

// Presence sensing as an action of a flow: what is chosen shows on the monitor at once.
LuPopupAction {
    id: _self

    readonly property var ecoPrivacy: monitor?.ecoPrivacy ?? null
    readonly property EcoPrivacyTexts words: EcoPrivacyTexts { }

    module: ecoPrivacy
    title: qsTr("EcoPrivacy")
    storedNames: ["state"]

    function collectProps(): var {
        return { "state": _switch.checked }
    }

    LuPageRow {
        text: _self.title
        LuSwitch {
            id: _switch
            text: _self.title
            confirmed: _self.ecoPrivacy?.state || false
            onToggled: _self.ecoPrivacy.state = checked
        }
    }
    LuInfoBlock {
        entries: [
            { "name": qsTr("Dim your monitor after %1").arg(_self.words.timeText(_self.ecoPrivacy?.activeTime ?? 0)), "value": "" },
            { "name": qsTr("Sensor Sensitivity"), "value": _self.words.sensitivityText(_self.ecoPrivacy?.sensorSensitivity ?? 0) }
        ]
    }
}
