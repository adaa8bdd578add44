// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk
import LumenDesk.BrightnessSync
import "../.."

// What the present state of a monitor allows of its picture: the colour mode, the light sensor, the back-light control
// and the brightness sync of several monitors decide together.
QtObject {
    id: rules

    property var monitor: null
    readonly property var brightness: monitor?.brightness ?? null
    readonly property var mode: monitor?.colorMode ?? null
    readonly property bool supported: monitor?.isModelSupported ?? false

    // The sensor leads brightness and colour (plus), or brightness alone (plain).
    readonly property bool sensorPlus: (monitor?.abPlus?.state ?? false) && monitor.abPlus.mode === rules.modePlus
    readonly property bool sensorPlain: ((monitor?.abPlus?.state ?? false) && monitor.abPlus.mode === rules.modePlain) || (monitor?.abSetting?.currentAB ?? false)
    readonly property bool sensorOn: (monitor?.abPlus?.state ?? false) || (monitor?.abSetting?.currentAB ?? false)
    readonly property int sensorStepInterval: sensorOn ? (monitor?.abPlus?.state ? monitor.abPlus.transitionStepInterval : monitor?.abSetting?.transitionStepInterval) ?? 0 : 0

    readonly property bool backlightControlEnabled: allows("backlightControlEnable") && !(monitor?.pipPbp?.state ?? false)
    readonly property bool backlightControlActive: (brightness?.backlightControlEnabled ?? false) && (brightness?.backlightControlOn ?? false)

    readonly property bool brightnessEnabled: {
        if (backlightControlActive)
            return allows("blcOnBrightnessEnable")
        if (sensorOn)
            return allows("abOnBrightnessEnable")
        return !supported || allows("brightnessEnable")
    }
    readonly property bool dimmingEnabled: {
        if (sensorOn || backlightControlActive)
            return false
        return brightness?.brightnessSyncEnable ? LuBrightnessSyncManager.allowSoftwareDimming : true
    }
    readonly property bool dimmingActive: brightness?.softwareDimming?.active ?? false

    readonly property bool contrastShown: allows("contrastEnable") || (backlightControlActive && allows("blcOnContrastEnable"))
    readonly property bool contrastEnabled: !backlightControlActive || allows("blcOnContrastEnable")

    readonly property bool presetTemperature: allows("presetColorTempEnable")
    readonly property bool customTemperature: allows("customColorTempEnable")
    readonly property bool presetTemperatureEnabled: temperatureEnabled("abPlusOnPresetColorTempEnable", "abOnPresetColorTempEnable")
    readonly property bool customTemperatureEnabled: temperatureEnabled("abPlusOnCustomColorTempEnable", "abOnCustomColorTempEnable")

    // The sensor's modes as numbers: another package may lack the class.
    readonly property int modePlus: 1
    readonly property int modePlain: 2

    // The colour mode has the function.
    function allows(name: string): bool {
        return mode?.[name] === LuVCPNode.FunctionOn
    }

    function temperatureEnabled(whilePlus: string, whilePlain: string): bool {
        if (sensorPlus)
            return allows(whilePlus)
        return sensorPlain ? allows(whilePlain) : true
    }
}
