// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// The brightness; while software dimming works, its range stands before it as a slider of its own.
//
// Both set the same value: the first one only reaches where the overlay darkens the picture.
Item {
    id: sliders

    required property PictureRules rules
    // What images are looked up for.
    required property Item owner
    readonly property var brightness: rules.brightness
    readonly property bool dimming: rules.dimmingActive
    // Up to here the back-light is at its minimum.
    readonly property int dimmingEnd: 30

    function take(value: real): void {
        if (brightness)
            brightness.displayBrightness = Math.round(value)
    }

    width: parent ? parent.width : implicitWidth
    implicitWidth: 220
    implicitHeight: Math.max(20, number.implicitHeight)

    Row {
        id: line
        readonly property real room: width - (sliders.dimming ? 2 * 16 + 2 * LuStyle.spaceHalf + LuStyle.spaceWide : 0)
        anchors.left: parent.left
        anchors.right: number.left
        anchors.rightMargin: LuStyle.space
        anchors.verticalCenter: parent.verticalCenter
        height: 20

        Row {
            visible: sliders.dimming
            spacing: LuStyle.spaceHalf
            leftPadding: line.LayoutMirroring.enabled ? LuStyle.spaceWide : 0
            rightPadding: line.LayoutMirroring.enabled ? 0 : LuStyle.spaceWide
            LuImage {
                size: 16
                anchors.verticalCenter: parent.verticalCenter
                drawing: LuContext.resolvedResourceUrl("qrc:/images/packages/ic_dimming.svg", sliders.owner, LuStyle.colorScheme)
            }
            LuSlider {
                id: dim
                objectName: "dimmingSlider"
                width: Math.round(line.room * 0.36)
                text: qsTr("Software Dimming")
                from: 0
                to: sliders.dimmingEnd
                stepSize: 1
                // Above its range it stands at its end.
                confirmedValue: Math.min(to, sliders.brightness?.displayBrightness ?? NaN)
                onMoved: sliders.take(value)
            }
        }
        Row {
            spacing: LuStyle.spaceHalf
            LuIcon {
                name: "sun"
                size: 16
                anchors.verticalCenter: parent.verticalCenter
                visible: sliders.dimming
                color: LuStyle.textDim
            }
            LuSlider {
                id: main
                objectName: "brightnessSlider"
                width: sliders.dimming ? line.room - Math.round(line.room * 0.36) : line.room
                text: qsTr("Brightness")
                from: 0
                to: 100
                enabled: sliders.rules.brightnessEnabled
                stepSize: 1
                glideInterval: sliders.rules.sensorStepInterval
                confirmedValue: sliders.brightness?.displayBrightness ?? NaN
                onMoved: sliders.take(value)
            }
        }
    }
    LuLabel {
        id: number
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(24, metrics.width)
        horizontalAlignment: Text.AlignRight
        kind: LuLabel.Value
        repeatsName: true
        text: Math.round(dim.visible && (dim.pressed || dim.waiting) ? dim.value : main.value)
    }
    TextMetrics {
        id: metrics
        font: number.font
        text: "100"
    }
}
