// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The brightness of the notebook's own panel, beside that of a monitor of the series.
LuWidget {
    id: _self

    readonly property var builtInMonitor: Array.from(LuContext.monitors).find(other => other?.isModelBuiltIn) ?? null
    readonly property var brightness: builtInMonitor?.brightness ?? null

    text: qsTr("Built-in brightness")
    functionSupported: (monitor?.isModelSupported ?? false) && brightness !== null

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.brightness
            }
        }
    ]

    LuIcon {
        id: icon
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: "notebook"
    }
    LuSlider {
        id: slider
        objectName: "builtInBrightnessSlider"
        anchors.left: icon.right
        anchors.leftMargin: LuStyle.spaceWide
        anchors.right: number.left
        anchors.rightMargin: LuStyle.space
        anchors.verticalCenter: parent.verticalCenter
        text: _self.text
        from: 0
        to: 100
        stepSize: 1
        confirmedValue: _self.brightness?.displayBrightness ?? NaN
        onMoved: _self.brightness.displayBrightness = Math.round(value)
    }
    LuLabel {
        id: number
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(24, implicitWidth)
        horizontalAlignment: Text.AlignRight
        kind: LuLabel.Value
        repeatsName: true
        text: Math.round(slider.value)
    }
}
