// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQml

// Brightness kept alike between monitors. No controller is there yet: nothing is synchronised, so no sensor leads and
// each monitor may dim by itself.
QtObject {
    readonly property QtObject brightnessSync: QtObject {
        readonly property bool active: false
        readonly property bool state: false
    }
    readonly property var currentSensorSource: null
    readonly property bool allowSoftwareDimming: true
}
