// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "inputs"

LuBasicWidget {
    id: _self

    readonly property var dualView: monitor?.dualView ?? null

    text: qsTr("DualView")
    functionSupported: dualView?.dualModeEnable || false
    active: functionSupported && (dualView?.state || false)
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dualview.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dualview_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.dualView
            }
        }
    ]

    function setActive(state: var): void {
        if (dualView)
            dualView.state = state
    }

    page: Component {
        DualViewPage {
            id: _page

            widget: _self
            leftLabel: qsTr("Left:")
            rightLabel: qsTr("Right:")
            rightAllowed: mode => _page.leftAllowed(mode)
            pictureOf: (leftOpen, rightOpen) => {
                if (leftOpen)
                    return "ico96_dv_03"
                if (rightOpen)
                    return "ico96_dv_04"
                return _page.dualView?.currentDualMode === _page.current ? "ico96_dv_01" : "ico96_dv_02"
            }
        }
    }
}
