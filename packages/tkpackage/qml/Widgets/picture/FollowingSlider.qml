// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// A slider that shows what the monitor holds, and what the user chose while that is on its way.
LuSlider {
    id: slider

    // What the monitor holds; undefined where nobody knows.
    property var confirmed
    // Milliseconds for each step while the monitor itself moves the value; 0 jumps.
    property int stepInterval: 0
    // Time in ms after which a choice that the monitor did not take is given up.
    property int patience: 3000
    signal chosen(int value)

    stepSize: 1
    confirmedValue: confirmed === undefined ? NaN : bounded(confirmed)
    onConfirmedChanged: followMonitor()
    onFromChanged: followMonitor()
    onToChanged: followMonitor()
    onMoved: {
        glide.stop()
        journey.restart()
        chosen(Math.round(value))
    }
    Component.onCompleted: followMonitor()

    function bounded(number: real): real {
        return Math.max(from, Math.min(to, number))
    }

    function followMonitor(): void {
        if (pressed || confirmed === undefined)
            return
        const target = bounded(confirmed)
        // A value on its way is shown until it has arrived.
        if (journey.running && Math.round(value) !== target)
            return
        journey.stop()
        if (stepInterval > 0 && Math.abs(target - value) > 1) {
            glide.to = target
            glide.duration = Math.abs(target - value) * stepInterval
            glide.restart()
        } else {
            glide.stop()
            value = target
        }
    }

    property Timer journey: Timer {
        interval: slider.patience
        onTriggered: slider.followMonitor()
    }
    property NumberAnimation glide: NumberAnimation {
        target: slider
        property: "value"
    }
}
