// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Tells which settings belong to the colour mode and change with it.
Column {
    id: hint

    required property var monitor
    required property PictureRules rules

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceHalf

    function names(): var {
        const rules = hint.rules
        const brightness = hint.rules.brightness
        const ambient = monitor?.abSetting?.abSensorEnable ?? false
        // Name, and whether the monitor has it bundled now.
        const rows = [
            [qsTr("Brightness"), true],
            [qsTr("Contrast"), rules.allows("contrastEnable")],
            [qsTr("Sharpness"), rules.allows("sharpnessEnable")],
            [qsTr("Color Temperature"), rules.presetTemperature || rules.customTemperature],
            [qsTr("Hue"), rules.allows("hueEnable")],
            [qsTr("Saturation"), rules.allows("saturationEnable")],
            [qsTr("Gamma"), rules.allows("gammaEnable")],
            [qsTr("Color Gamut"), rules.allows("gamutEnable")],
            [qsTr("Uniformity"), rules.allows("uniformityEnable")],
            [qsTr("Low Blue Light"), monitor?.lowBlueLight?.lowBlueLightEnable ?? false],
            [qsTr("Night Hours Protection"), monitor?.nightProtection?.nightProtectionEnable ?? false],
            [qsTr("Ambient brightness"), ambient || (monitor?.abPlus?.sensorEnable ?? false)],
            [qsTr("BackGlow"), ambient && (monitor?.backLight?.backLightEnable ?? false)]
        ]
        return rows.filter(row => brightness && row[1]).map(row => row[0])
    }

    LuLabel {
        width: parent.width
        kind: LuLabel.Strong
        wrapMode: Text.WordWrap
        text: qsTr("Bundling of Color Mode")
    }
    LuLabel {
        width: parent.width
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: qsTr("Stored for each color mode: %1.").arg(hint.names().join(", "))
    }
}
