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
    readonly property var pipPbp: monitor?.pipPbp ?? null
    readonly property var inputSource: monitor?.inputSource ?? null
    readonly property bool isSingleInput: !(pipPbp?.state || false)
    readonly property bool isPip: pipPbp?.mode === LuPipPbp.PIP
    // The picture of the layout: as it is, with the left list open, with the right list open.
    readonly property var pictures: {
        if (isSingleInput)
            return ["05", "07", "06"]
        switch (pipPbp?.mode) {
        case LuPipPbp.PBP2_1:
        case LuPipPbp.PBP3_1:
            return ["11", "13", "12"]
        case LuPipPbp.PIP:
            break
        default:
            return ["08", "10", "09"]
        }
        switch (pipPbp.pipPosition) {
        case LuPipPbp.PIPLowerLeft:
            return ["17", "18", "19"]
        case LuPipPbp.PIPUpperRight:
            return ["20", "21", "22"]
        case LuPipPbp.PIPLowerRight:
            return ["23", "24", "25"]
        default:
            return ["14", "15", "16"]
        }
    }

    text: qsTr("DualView Plus")
    functionSupported: dualView?.dualModePlusEnable || false
    active: functionSupported && (dualView?.state || false)
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dualview_plus.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_dualview_plus_active.svg", _self, LuStyle.colorScheme)

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
            leftLabel: _self.isPip ? qsTr("Main: ") : qsTr("Left: ")
            rightLabel: _self.isPip ? qsTr("Sub: ") : qsTr("Right: ")
            // One input: both parts show the same signal. Else the second part follows what it shows now.
            rightAllowed: mode => mode?.isHdr === (_self.isSingleInput ? _page.current?.isHdr : _page.dualView?.currentDualMode?.isHdr)
            pictureOf: (leftOpen, rightOpen) => "ico96_dv_" + _self.pictures[leftOpen ? 1 : rightOpen ? 2 : 0]
        }
    }
}
