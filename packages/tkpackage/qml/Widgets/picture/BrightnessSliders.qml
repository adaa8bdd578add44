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

    width: parent ? parent.width : implicitWidth
    implicitWidth: 220
    implicitHeight: Math.max(20, number.implicitHeight)

    component Glyph: Image {
        required property string name
        width: 16
        height: 16
        sourceSize.width: 32
        sourceSize.height: 32
        anchors.verticalCenter: parent.verticalCenter
        source: LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(name), sliders.owner, LuStyle.colorScheme)
        Accessible.ignored: true
    }

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
            rightPadding: LuStyle.spaceWide
            Glyph {
                name: "ic_dimming"
            }
            FollowingSlider {
                objectName: "dimmingSlider"
                width: Math.round(line.room * 0.36)
                text: qsTr("Software Dimming")
                from: 0
                to: sliders.dimmingEnd
                confirmed: sliders.brightness?.displayBrightness
                onChosen: value => main.take(value)
            }
        }
        Row {
            spacing: LuStyle.spaceHalf
            Glyph {
                name: "ic_brightness"
                visible: sliders.dimming
            }
            FollowingSlider {
                id: main
                objectName: "brightnessSlider"
                width: sliders.dimming ? line.room - Math.round(line.room * 0.36) : line.room
                text: qsTr("Brightness")
                from: 0
                to: 100
                enabled: sliders.rules.brightnessEnabled
                stepInterval: sliders.rules.sensorStepInterval
                confirmed: sliders.brightness?.displayBrightness
                onChosen: value => take(value)

                function take(value: int): void {
                    if (sliders.brightness)
                        sliders.brightness.displayBrightness = value
                }
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
        text: Math.round(main.pressed ? main.value : sliders.brightness?.displayBrightness ?? 0)
    }
    TextMetrics {
        id: metrics
        font: number.font
        text: "100"
    }
}
