// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Popups
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "../Widgets/audio"

// The volume and the audio mode as an action of a flow: what is chosen is heard at once.
LuPopupAction {
    id: _self

    readonly property var volume: monitor?.volume ?? null
    readonly property bool modes: volume?.audioModeEnable ?? false
    readonly property MonitorVolume state: MonitorVolume {
        volume: _self.volume
    }

    module: volume
    title: qsTr("Audio")
    storedNames: modes ? ["displayVolume", "audioMode"] : ["displayVolume"]
    // A volume ends a mute.
    previewedNames: storedNames.concat(["mute"])

    function collectProps(): var {
        const properties = { "displayVolume": Math.round(_volume.value) }
        if (modes)
            properties.audioMode = _mode.chosen
        return properties
    }

    LuLabeledSlider {
        id: _volume
        text: qsTr("Volume")
        from: 0
        to: _self.state.maximum
        // Also of a muted monitor: the action stores it.
        confirmedValue: _self.volume?.displayVolume ?? 0
        onMoved: value => _self.state.take(value)
    }
    LuPageRow {
        visible: _self.modes
        text: qsTr("Audio Mode :")
        AudioModeChoice {
            id: _mode
            width: Math.min(implicitWidth, LuStyle.scaled(150))
            text: qsTr("Audio Mode :")
            volume: _self.volume
        }
    }
}
