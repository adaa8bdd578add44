// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "../.."

// The colour temperature: one that the monitor offers, or the user's own with its three gains.
Column {
    id: controls

    required property PictureRules rules
    readonly property var brightness: rules.brightness
    readonly property bool custom: brightness?.displayColorTemperature === LuVCPNode.ColorTemperature_UserDefine

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceWide

    LuPageRow {
        text: qsTr("Color Temperature")
        NumberChoice {
            objectName: "temperatureChoice"
            text: qsTr("Color Temperature")
            enabled: controls.custom ? controls.rules.customTemperatureEnabled : controls.rules.presetTemperatureEnabled
            // Presets where the mode has them, and the user's own where it has that.
            model: (controls.rules.presetTemperature ? Array.from(controls.brightness?.supportedPresetColorTemp ?? []) : [])
                   .concat(controls.rules.customTemperature ? [LuVCPNode.ColorTemperature_UserDefine] : [])
            textOf: temperature => strings.colorTemperature(temperature)
            confirmed: controls.brightness?.displayColorTemperature
            onChosen: temperature => controls.brightness.displayColorTemperature = temperature
        }
    }
    Repeater {
        // Each gain with its property and its colour.
        model: [
            { "name": qsTr("Red"), "property": "displayColorTemperatureR", "color": "#E5484D" },
            { "name": qsTr("Green"), "property": "displayColorTemperatureG", "color": "#30A46C" },
            { "name": qsTr("Blue"), "property": "displayColorTemperatureB", "color": "#3E8BFF" }
        ]
        LuLabeledSlider {
            required property var modelData
            visible: controls.custom && controls.rules.customTemperature
            enabled: controls.rules.customTemperatureEnabled
            text: modelData.name
            color: modelData.color
            from: 0
            to: 100
            confirmedValue: controls.brightness?.[modelData.property] ?? NaN
            onMoved: value => controls.brightness[modelData.property] = value
        }
    }

    PackageStrings {
        id: strings
    }
}
