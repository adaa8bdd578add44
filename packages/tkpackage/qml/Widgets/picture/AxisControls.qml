// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Hue or saturation: one slider for the whole picture, or one for each of six colours where the monitor has them.
Column {
    id: controls

    required property var brightness
    required property string text
    // The module's property of the whole picture; those of the axes have a letter behind it.
    required property string property
    property int from: 0
    property int to: 100
    readonly property bool sixAxes: brightness?.sixAxisEnable ?? false

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.space

    LuLabeledSlider {
        visible: !controls.sixAxes
        text: controls.text
        from: controls.from
        to: controls.to
        confirmedValue: controls.brightness?.[controls.property] ?? NaN
        onMoved: value => controls.brightness[controls.property] = value
    }
    LuLabel {
        visible: controls.sixAxes
        kind: LuLabel.Strong
        text: controls.text
    }
    Repeater {
        model: controls.sixAxes ? [
            { "letter": "R", "name": qsTr("Red"), "color": "#E5484D" },
            { "letter": "Y", "name": qsTr("Yellow"), "color": "#F5C400" },
            { "letter": "G", "name": qsTr("Green"), "color": "#30A46C" },
            { "letter": "C", "name": qsTr("Cyan"), "color": "#12B5C9" },
            { "letter": "B", "name": qsTr("Blue"), "color": "#3E8BFF" },
            { "letter": "M", "name": qsTr("Magenta"), "color": "#D6409F" }
        ] : []
        LuLabeledSlider {
            required property var modelData
            text: qsTr("%1: %2").arg(controls.text).arg(modelData.name)
            color: modelData.color
            from: controls.from
            to: controls.to
            confirmedValue: controls.brightness?.[controls.property + modelData.letter] ?? NaN
            onMoved: value => controls.brightness[controls.property + modelData.letter] = value
        }
    }
}
