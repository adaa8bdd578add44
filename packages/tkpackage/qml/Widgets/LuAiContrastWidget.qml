// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."

LuAdvancedWidget {
    id: _self

    readonly property var aiContrast: monitor?.aiContrast ?? null
    readonly property bool colorModeAiContrastEnable: monitor?.colorMode?.aiContrastEnable === LuVCPNode.FunctionOn

    text: aiContrast?.displayNameType === LuAiContrast.NameLocalContrast ? qsTr("Local Contrast") : qsTr("AI Contrast")
    functionSupported: aiContrast?.aiContrastEnable || false
    active: colorModeAiContrastEnable && (aiContrast?.state || false)
    popupWindow: colorModeAiContrastEnable ? null : _warning
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_aicontrast.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_aicontrast_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuBinding {
                target: _self.aiContrast
                property: "syncEnable"
                value: _self.isCurrentModel && _self.mainWindow?.visible || false
                defaultValue: false
            }
        }
    ]

    function setActive(state: var): void {
        if (aiContrast)
            aiContrast.state = state
    }

    LuPopupLoader {
        id: _warning
        LuWarningWindow {
            text: _self.text
        }
    }
}
