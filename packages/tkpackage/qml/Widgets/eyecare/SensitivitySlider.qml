// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Widgets

// How strongly the monitor's light sensor acts; nothing to read while it is off.
LuPageGroup {
    id: control

    required property bool active
    required property int sensitivity
    property int from: 0
    property int to: 10
    signal moved(int value)

    enabled: active
    fadedOpacity: 0.3

    LuLabeledSlider {
        objectName: "sensorSensitivity"
        text: qsTr("Sensor Sensitivity")
        from: control.active ? control.from : 0
        to: control.to
        confirmedValue: control.active ? control.sensitivity : 0
        valueText: control.active ? Number(slider.value).toLocaleString(Qt.locale(), "f", 0) : "-"
        onMoved: value => control.moved(Math.round(value))
    }
}
