// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."

LuAdvancedWidget {
    id: _self

    readonly property var colorWeakness: monitor?.colorWeakness ?? null
    readonly property bool colorModeColorWeaknessEnable: monitor?.colorMode?.colorWeaknessEnable === LuVCPNode.FunctionOn
    // Red on the left, green on the right of none.
    readonly property int level: {
        switch (colorWeakness?.mode) {
        case LuColorWeakness.RedFilter:
            return -colorWeakness.weakness
        case LuColorWeakness.GreenFilter:
            return colorWeakness.weakness
        default:
            return 0
        }
    }

    text: qsTr("Color Weakness")
    functionSupported: colorWeakness?.colorWeaknessEnable || false
    active: (colorWeakness?.weakness ?? 0) !== 0
    popupWindow: colorModeColorWeaknessEnable ? null : _warning
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_color_weakness.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_color_weakness_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.colorWeakness
            }
        }
    ]

    // A level of -10 to 10: the filter by its sign, then its strength.
    function setLevel(wanted: int): void {
        if (!colorWeakness)
            return
        colorWeakness.mode = wanted < 0 ? LuColorWeakness.RedFilter : wanted > 0 ? LuColorWeakness.GreenFilter : LuColorWeakness.NoFilter
        colorWeakness.weakness = Math.abs(wanted)
    }

    LuPopupLoader {
        id: _warning
        LuWarningWindow {
            text: _self.text
        }
    }

    page: Component {
        LuPage {
            title: qsTr("Color Weakness")
            module: _self.colorWeakness

            Item {
                width: parent.width
                height: Math.max(_red.implicitHeight, _green.implicitHeight)
                LuLabel {
                    id: _red
                    anchors.left: parent.left
                    text: qsTr("Red: %1").arg(Math.max(0, -_slider.value))
                }
                LuLabel {
                    id: _green
                    anchors.right: parent.right
                    text: qsTr("Green: %1").arg(Math.max(0, _slider.value))
                }
            }
            LuSlider {
                id: _slider
                objectName: "colorWeaknessSlider"
                width: parent.width
                text: _self.text
                from: -10
                to: 10
                stepSize: 1
                origin: 0
                confirmedValue: _self.level
                onMoved: _self.setLevel(Math.round(value))
            }
        }
    }
}
