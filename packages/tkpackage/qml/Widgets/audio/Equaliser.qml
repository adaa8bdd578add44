// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "../.."

// The gains of five bands, on upright sliders around 0 dB.
Column {
    id: equaliser

    required property var volume
    readonly property int highest: 6
    readonly property var bands: [
        { "frequency": LuVolume.Frequency100Hz, "text": "100" },
        { "frequency": LuVolume.Frequency300Hz, "text": "300" },
        { "frequency": LuVolume.Frequency1KHz, "text": "1K" },
        { "frequency": LuVolume.Frequency30KHz, "text": "3K" },
        { "frequency": LuVolume.Frequency100KHz, "text": "10K" }
    ]

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.space
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Equalizer Setting")

    LuPageRow {
        text: qsTr("Equalizer Setting")
        LuButton {
            objectName: "resetGains"
            text: qsTr("RESET")
            onClicked: equaliser.volume.resetGains()
        }
    }
    Item {
        id: field
        width: parent.width
        height: 128 + LuStyle.spaceHalf + LuStyle.fontCaption + 4
        // Low tones stand on the left in every language.
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Repeater {
            model: [
                { "gain": equaliser.highest, "text": qsTr("+6db") },
                { "gain": 0, "text": qsTr("0db") },
                { "gain": -equaliser.highest, "text": qsTr("-6db") }
            ]
            Item {
                id: mark
                required property var modelData
                // The middle of the knob at this gain.
                y: 8 + (1 - (modelData.gain + equaliser.highest) / (2 * equaliser.highest)) * (128 - 16)
                width: field.width
                LuLabel {
                    anchors.verticalCenter: parent.verticalCenter
                    kind: LuLabel.Caption
                    text: mark.modelData.text
                }
                Rectangle {
                    x: columns.x
                    width: columns.width
                    height: 1
                    color: LuStyle.line
                }
            }
        }
        Row {
            id: columns
            x: LuStyle.scaled(40)
            width: parent.width - x
            Repeater {
                model: equaliser.bands
                Column {
                    id: band
                    required property var modelData
                    width: columns.width / equaliser.bands.length
                    spacing: LuStyle.spaceHalf
                    LuSlider {
                        anchors.horizontalCenter: parent.horizontalCenter
                        objectName: "gain" + band.modelData.text
                        height: 128
                        orientation: Qt.Vertical
                        text: band.modelData.text
                        Accessible.description: qsTr("Equalizer Setting")
                        from: -equaliser.highest
                        to: equaliser.highest
                        origin: 0
                        stepSize: 1
                        snapMode: T.Slider.SnapOnRelease
                        confirmedValue: equaliser.volume?.frequencyGainHash.get(band.modelData.frequency) ?? 0
                        onMoved: equaliser.volume.setGain(band.modelData.frequency, Math.round(value))
                    }
                    LuLabel {
                        anchors.horizontalCenter: parent.horizontalCenter
                        kind: LuLabel.Caption
                        repeatsName: true
                        text: band.modelData.text
                    }
                }
            }
        }
    }
}
