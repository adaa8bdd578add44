// SPDX-License-Identifier: Apache-2.0
import QtQuick
import "../Widgets/automation"

// Shows on the monitor how loud a shortcut has made it.
StepFeedback {
    readonly property var volume: monitor?.volume ?? null

    text: qsTr("Volume")
    picture: level > 0 ? "ico48_volume" : "ico48_mute"
    value: !volume || volume.mute ? 0 : volume.displayVolume
    level: Math.round(value / ((volume?.maxVolume ?? 100) / levels))
}
