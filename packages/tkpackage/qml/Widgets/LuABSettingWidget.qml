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

    readonly property var abSetting: monitor?.abSetting ?? null
    readonly property bool on: abSetting?.currentAB || false
    readonly property SensorRules rules: SensorRules {
        monitor: _self.monitor
    }

    text: qsTr("A.B. Gen2")
    functionSupported: abSetting?.abSensorEnable || false
    active: functionSupported && rules.modeAllows && on
    popupWindow: rules.allowed ? null : _warning
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_ab.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_ab_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.abSetting
            }
        }
    ]

    LuPopupLoader {
        id: _warning
        LuWarningWindow {
            text: _self.text
        }
    }

    // No event tells of what a visit changed, so the page takes no snapshot.
    page: Component {
        LuPage {
            title: _self.text
            titleControl: Component {
                LuSwitch {
                    objectName: "abSettingSwitch"
                    text: _self.text
                    confirmed: _self.on
                    onToggled: _self.abSetting.currentAB = checked
                }
            }

            LuPageRow {
                text: qsTr("Light Meter")
                LuSwitch {
                    objectName: "abSettingLightMeter"
                    text: qsTr("Light Meter")
                    confirmed: _self.abSetting?.lightMeterState || false
                    onToggled: _self.abSetting.lightMeterState = checked
                }
            }
            SensitivitySlider {
                active: _self.on
                sensitivity: _self.abSetting?.sensitivity ?? 0
                to: _self.abSetting?.maxSensitivity ?? 10
                onMoved: value => _self.abSetting.sensitivity = value
            }
        }
    }
}
