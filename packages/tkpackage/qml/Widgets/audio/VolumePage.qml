// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The monitor's volume and the system's, the monitor's audio mode with its equaliser, and where the system plays.
LuPage {
    id: page

    required property var monitor
    required property MonitorVolume state
    // The system's own volume has a slider here, beside that of a monitor which plays.
    property bool systemVolumeShown: true
    readonly property var volume: state.volume

    module: volume

    LuLabeledSlider {
        visible: !page.systemVolumeShown || page.state.played
        enabled: page.state.played
        text: page.systemVolumeShown ? page.monitor?.modelName ?? "" : qsTr("Volume")
        from: 0
        to: page.state.maximum
        confirmedValue: page.state.shown
        onMoved: value => page.state.take(value)
    }
    LuLabeledSlider {
        visible: page.systemVolumeShown
        text: qsTr("System's volume")
        from: 0
        to: 100
        confirmedValue: page.volume?.systemVolume ?? 0
        onMoved: value => page.volume.mediaDevices.systemVolume = Math.round(value)
    }
    LuPageRow {
        visible: page.volume?.audioModeEnable ?? false
        text: qsTr("Audio Mode")
        AudioModeChoice {
            objectName: "audioMode"
            width: Math.min(implicitWidth, LuStyle.scaled(150))
            volume: page.volume
        }
    }
    Equaliser {
        visible: page.volume?.editableAudioModeList.includes(page.volume.audioMode) ?? false
        volume: page.volume
    }
    Column {
        width: parent.width
        spacing: LuStyle.spaceHalf
        LuLabel {
            width: parent.width
            text: qsTr("Output")
            repeatsName: true
        }
        OutputChoice {
            objectName: "audioOutput"
            width: parent.width
            volume: page.volume
        }
    }
    LuAbsenceNote {
        id: absence
        needs: ["soundOutputs"]
    }
    LuLabel {
        width: parent.width
        visible: !page.state.played && !absence.visible
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: qsTr("The volume of this monitor can be set while the system plays through it.")
    }
}
