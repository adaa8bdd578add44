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

    readonly property var lowBlueLight: monitor?.lowBlueLight ?? null
    readonly property bool colorModeLowBlueLightEnable: monitor?.colorMode?.lowBlueLightEnable === LuVCPNode.FunctionOn

    text: lowBlueLight?.type === LuLowBlueLight.LowBlueLightPlus ? qsTr("Low Blue Light Plus") : qsTr("Low Blue Light")
    functionSupported: lowBlueLight?.lowBlueLightEnable || false
    active: functionSupported && colorModeLowBlueLightEnable && (lowBlueLight?.state || false)
    popupWindow: colorModeLowBlueLightEnable ? null : _warning
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_lbl.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_lbl_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.lowBlueLight
            }
        }
    ]

    LuPopupLoader {
        id: _warning
        LuWarningWindow {
            text: _self.text
        }
    }

    page: Component {
        LuPage {
            title: _self.text
            pageWidth: 270
            module: _self.lowBlueLight

            LuLabeledSlider {
                objectName: "lowBlueLightLevel"
                text: qsTr("Level")
                from: 0
                to: 5
                confirmedValue: _self.lowBlueLight?.level ?? 0
                onMoved: value => _self.lowBlueLight.level = Math.round(value)
            }
            LuSeparator { }
            CircadianControls {
                widget: _self
                lowBlueLight: _self.lowBlueLight
            }
        }
    }
}
