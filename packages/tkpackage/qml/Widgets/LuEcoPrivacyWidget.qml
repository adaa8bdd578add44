// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "eyecare"

LuBasicWidget {
    id: _self

    readonly property var ecoPrivacy: monitor?.ecoPrivacy ?? null
    readonly property EcoPrivacyTexts words: EcoPrivacyTexts { }
    readonly property var times: {
        const offered = Array.from(ecoPrivacy?.activeTimeList ?? [], time => Number(time))
        return words.times.filter(entry => offered.includes(entry.time))
    }

    text: qsTr("EcoPrivacy")
    functionSupported: ecoPrivacy?.ecoPrivacyEnable || false
    active: ecoPrivacy?.state || false
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_ecoPrivacy.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_ecoPrivacy_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.ecoPrivacy
            }
        }
    ]

    page: Component {
        LuPage {
            title: _self.text
            titleControl: Component {
                LuSwitch {
                    objectName: "ecoPrivacySwitch"
                    text: _self.text
                    confirmed: _self.active
                    onToggled: _self.ecoPrivacy.state = checked
                }
            }

            LuPageGroup {
                enabled: _self.active
                fadedOpacity: 0.3

                LuPageRow {
                    text: qsTr("Dim your monitor after a period of inactivity.")
                    LuComboBox {
                        objectName: "ecoPrivacyTime"
                        text: qsTr("Dim your monitor after a period of inactivity.")
                        model: _self.times
                        textOf: entry => entry?.text ?? ""
                        confirmedIndex: _self.times.findIndex(entry => entry.time === _self.ecoPrivacy?.activeTime)
                        onActivated: index => _self.ecoPrivacy.activeTime = _self.times[index].time
                    }
                }
            }
            LuSeparator { }
            LuPageGroup {
                enabled: _self.active
                fadedOpacity: 0.3

                Column {
                    width: parent.width
                    spacing: LuStyle.space
                    visible: _self.ecoPrivacy?.type === LuEcoPrivacy.BackGlow
                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Mode")
                    LuLabel {
                        width: parent.width
                        kind: LuLabel.Strong
                        wrapMode: Text.WordWrap
                        text: qsTr("Mode")
                    }
                    LuRadio {
                        anchors.left: parent.left
                        text: qsTr("Display + BackGlow")
                        confirmed: _self.ecoPrivacy?.mode === LuEcoPrivacy.DisplayAndBackGlow
                        onToggled: _self.ecoPrivacy.mode = LuEcoPrivacy.DisplayAndBackGlow
                    }
                    LuRadio {
                        anchors.left: parent.left
                        text: qsTr("Display")
                        confirmed: _self.ecoPrivacy?.mode === LuEcoPrivacy.Display
                        onToggled: _self.ecoPrivacy.mode = LuEcoPrivacy.Display
                    }
                }
                Column {
                    width: parent.width
                    spacing: LuStyle.space
                    LuLabel {
                        width: parent.width
                        kind: LuLabel.Strong
                        wrapMode: Text.WordWrap
                        text: qsTr("Sensor Sensitivity")
                    }
                    Flow {
                        width: parent.width
                        spacing: LuStyle.spaceWide
                        Accessible.role: Accessible.Grouping
                        Accessible.name: qsTr("Sensor Sensitivity")
                        Repeater {
                            model: _self.words.sensitivities
                            LuRadio {
                                required property var modelData
                                text: modelData.text
                                confirmed: _self.ecoPrivacy?.sensorSensitivity === modelData.sensitivity
                                onToggled: _self.ecoPrivacy.sensorSensitivity = modelData.sensitivity
                            }
                        }
                    }
                }
            }
            LuSeparator { }
            LuLabel {
                width: parent.width
                kind: LuLabel.Caption
                wrapMode: Text.WordWrap
                text: qsTr("EcoPrivacy helps protect your screen privacy and dims your monitor after inactivity through your built-in monitor sensor.")
            }
        }
    }
}
