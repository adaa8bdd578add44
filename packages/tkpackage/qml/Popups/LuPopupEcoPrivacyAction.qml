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
    property bool recordedState: false

    module: ecoPrivacy
    title: qsTr("EcoPrivacy")

    function recordProps(): void {
        recordedState = ecoPrivacy.state
        const state = actionProperty("state")
        if (state !== undefined)
            ecoPrivacy.state = state
    }
    function restoreProps(): void {
        ecoPrivacy.state = recordedState
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
