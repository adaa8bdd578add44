// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "eyecare"

LuAdvancedWidget {
    id: _self

    readonly property var abPlus: monitor?.abPlus ?? null
    readonly property bool on: abPlus?.state || false
    readonly property SensorRules rules: SensorRules {
        monitor: _self.monitor
    }

    text: abPlus?.displayNameType === LuABPlus.NameVisualOptimizer ? qsTr("Visual Optimizer") : qsTr("A.B.+ Gen2")
    functionSupported: abPlus?.sensorEnable || false
    active: functionSupported && rules.modeAllows && on
    popupWindow: rules.allowed ? null : _warning
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_vo.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_vo_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.abPlus
            }
        }
    ]

    LuPopupLoader {
        id: _warning
        LuWarningWindow {
            text: _self.text
        }
    }
    LuPopupLoader {
        id: _hint
        LuHintWindow {
            text: qsTr("About %1").arg(_self.text)
            message: qsTr("To meet individual preferences, %1 allows manual control of screen brightness. It learns and records your last adjustment, applying it to optimize its automatic brightness adjustment curve to better match your preferences.").arg(_self.text)
        }
    }

    page: Component {
        LuPage {
            title: _self.text
            module: _self.abPlus
            titleControl: Component {
                Row {
                    spacing: LuStyle.space
                    LuHelpButton {
                        anchors.verticalCenter: parent.verticalCenter
                        onClicked: _hint.toggle()
                    }
                    LuSwitch {
                        objectName: "abPlusSwitch"
                        anchors.verticalCenter: parent.verticalCenter
                        text: _self.text
                        confirmed: _self.on
                        onToggled: _self.abPlus.state = checked
                    }
                }
            }

            LuPageGroup {
                enabled: _self.on
                fadedOpacity: 0.3
                spacing: LuStyle.space
                LuLabel {
                    width: parent.width
                    kind: LuLabel.Strong
                    wrapMode: Text.WordWrap
                    text: qsTr("Parameter")
                }
                Column {
                    width: parent.width
                    spacing: LuStyle.space
                    Accessible.role: Accessible.Grouping
                    Accessible.name: qsTr("Parameter")
                    LuRadio {
                        anchors.left: parent.left
                        text: qsTr("Brightness + Color Temperature")
                        confirmed: _self.abPlus?.mode === LuABPlus.ModeABPlus
                        onToggled: _self.abPlus.mode = LuABPlus.ModeABPlus
                    }
                    LuRadio {
                        anchors.left: parent.left
                        text: qsTr("Brightness")
                        confirmed: _self.abPlus?.mode === LuABPlus.ModeAB
                        onToggled: _self.abPlus.mode = LuABPlus.ModeAB
                    }
                }
            }
            LuSeparator { }
            LuPageGroup {
                visible: _self.abPlus?.lightMeterEnable || false
                enabled: _self.on
                fadedOpacity: 0.5
                LuPageRow {
                    text: qsTr("Light Meter")
                    LuSwitch {
                        objectName: "abPlusLightMeter"
                        text: qsTr("Light Meter")
                        confirmed: _self.abPlus?.lightMeterState || false
                        onToggled: _self.abPlus.lightMeterState = checked
                    }
                }
            }
            SensitivitySlider {
                active: _self.on
                sensitivity: _self.abPlus?.sensitivity ?? 0
                from: _self.abPlus?.minSensitivity ?? 1
                to: _self.abPlus?.maxSensitivity ?? 5
                onMoved: value => _self.abPlus.sensitivity = value
            }
        }
    }
}
