// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// Where the system plays; the last entry opens the system's own page.
LuComboBox {
    id: choice

    required property var volume
    readonly property var devices: volume?.mediaDevices ?? null
    readonly property var outputs: Array.from(devices?.audioOutputs ?? [])

    text: qsTr("Output")
    model: outputs.concat([null])
    textOf: output => output ? devices.deviceDisplayName(output) : qsTr("Sound Settings")
    confirmedIndex: outputs.findIndex(output => output.isDefault)
    onActivated: index => {
        if (index < outputs.length) {
            volume.setDefaultAudioOutputDevice(outputs[index])
        } else {
            devices.openSystemSettings()
            follow()
        }
    }
}
