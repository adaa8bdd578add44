// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.BrightnessSync
import "../.."

// When the monitor's light sensor may steer its brightness.
QtObject {
    id: rules

    required property var monitor
    readonly property bool modeAllows: monitor?.colorMode?.abEnable === LuVCPNode.FunctionOn
    // Of monitors that keep their brightness alike, one sensor leads.
    readonly property bool otherLeads: {
        const source = LuBrightnessSyncManager.currentSensorSource
        return LuBrightnessSyncManager.brightnessSync.active && source !== null && source !== undefined && source !== monitor
    }
    readonly property bool allowed: modeAllows && !otherLeads
}
