// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "../.."

// Brightness, colour and spread of the light behind the panel.
LuPageGroup {
    id: controls

    required property var backLight
    readonly property bool off: backLight?.state === LuBackLight.Off
    // The sensor decides about the brightness.
    readonly property bool dimmable: !off && backLight?.state !== LuBackLight.Auto

    enabled: !off
    fadedOpacity: 0.3

    LuLabeledSlider {
        objectName: "backLightBrightness"
        enabled: controls.dimmable
        opacity: enabled || controls.off ? 1 : 0.3
        text: qsTr("Brightness")
        from: controls.dimmable ? 1 : 0
        to: 10
        confirmedValue: controls.dimmable ? controls.backLight?.brightness ?? 0 : 0
        valueText: controls.dimmable ? Number(slider.value).toLocaleString(Qt.locale(), "f", 0) : "-"
        onMoved: value => controls.backLight.brightness = Math.round(value)
    }
    LuLabeledSlider {
        objectName: "backLightTemperature"
        text: qsTr("Color Temperature")
        from: 1
        to: 7
        confirmedValue: controls.backLight?.colorTemperature ?? 1
        onMoved: value => controls.backLight.colorTemperature = Math.round(value)
    }
    LuPageRow {
        text: qsTr("Light Mode")
        Row {
            spacing: LuStyle.spaceLarge
            Accessible.role: Accessible.Grouping
            Accessible.name: qsTr("Light Mode")
            LuRadio {
                text: "360°"
                confirmed: controls.backLight?.angle === LuBackLight.Angle_360
                onToggled: controls.backLight.angle = LuBackLight.Angle_360
            }
            LuRadio {
                text: "270°"
                confirmed: controls.backLight?.angle === LuBackLight.Angle_270
                onToggled: controls.backLight.angle = LuBackLight.Angle_270
            }
        }
    }
}
