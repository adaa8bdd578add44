// SPDX-License-Identifier: Apache-2.0
import QtQml

// The volume of a monitor as sliders show it and change it.
QtObject {
    id: state

    required property var volume
    readonly property int maximum: volume?.maxVolume ?? 100
    // A muted monitor plays as if its volume were 0.
    readonly property int shown: volume ? (volume.mute ? 0 : volume.displayVolume) : 0
    readonly property bool played: volume?.isCurrentAudioOutput ?? false

    function take(value: real): void {
        if (!volume)
            return
        const wanted = Math.round(value)
        // The volume that a mute hides is no change to the module, and would leave the monitor silent.
        if (volume.mute && wanted > 0 && wanted === volume.displayVolume)
            volume.mute = false
        else
            volume.displayVolume = wanted
    }

    function iconOf(value: real): string {
        const part = value / maximum
        return part >= 0.7 ? "volume" : part >= 0.41 ? "volume-middle" : part > 0 ? "volume-low" : "volume-off"
    }
}
