// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQml
import LumenDesk

// Brightness kept alike between monitors, as panels see it. The work is done by an object of the program that also runs
// without a window; without it nothing is synchronised.
QtObject {
    id: manager

    readonly property var brightnessSync: LuContext.brightnessSync ?? none
    // The monitor whose light sensor leads the others, or null.
    readonly property var currentSensorSource: brightnessSync.sensorSource
    // Whether monitors that take part may dim below their lowest brightness.
    readonly property bool allowSoftwareDimming: brightnessSync.allowSoftwareDimming

    function toggle(state: bool): void {
        brightnessSync.state = state
    }

    readonly property QtObject none: QtObject {
        property bool state: false
        readonly property bool available: false
        readonly property bool active: false
        readonly property var sensorSource: null
        readonly property bool allowSoftwareDimming: true
        function connectSoftwareDimming(monitor: var): void { }
    }
}
