// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "inputs"

LuAdvancedWidget {
    id: _self

    readonly property var pipPbp: monitor?.pipPbp ?? null
    readonly property var inputSource: monitor?.inputSource ?? null
    readonly property var smartKvm: monitor?.smartKvm ?? null
    readonly property var smartKvmBasic: monitor?.smartKvmBasic ?? null
    readonly property bool fullKvmOn: smartKvm?.state || false
    // Closing the layout takes the pointer feature along: it is asked for.
    readonly property bool smartKvmWarning: (pipPbp?.state || false) && (fullKvmOn || (smartKvmBasic?.basicState || false))
    readonly property string kvmName: fullKvmOn ? qsTr("Smart KVM") : qsTr("Smart KVM Basic")
    readonly property string picture: {
        switch (pipPbp?.mode) {
        case LuPipPbp.PBP:
            return "pbp_a"
        case LuPipPbp.PBP2_1:
        case LuPipPbp.PBP5_9:
            return "pbp_c"
        case LuPipPbp.PBP4:
            return "pbp_b"
        case LuPipPbp.PBP3_1:
            return "pbp_d"
        default:
            return "pip_RT"
        }
    }

    text: {
        const pip = pipPbp?.pipEnable || false
        const pbp = pipPbp?.atLeastOnePbpEnable || false
        return pip === pbp ? qsTr("PIP / PBP") : pip ? qsTr("PIP") : qsTr("PBP")
    }
    functionSupported: pipPbp?.pipEnable || pipPbp?.atLeastOnePbpEnable || false
    active: functionSupported && (pipPbp?.state || false)
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_%1.svg".arg(picture), _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_%1_active.svg".arg(picture), _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.pipPbp
            }
        }
    ]

    function setActive(state: var): void {
        if (pipPbp)
            pipPbp.state = state
        // The monitor lays its picture out anew, and its DDC/CI channel may drop meanwhile.
        LuContext.checkToUpdateMonitorList()
    }

    function chooseMode(mode: int): void {
        pipPbp.mode = mode
        checkMonitorList()
    }

    function checkMonitorList(): void {
        if (pipPbp?.state)
            LuContext.checkToUpdateMonitorList()
    }

    function askToTurnOff(): void {
        _turnOff.open()
    }

    LuPopupLoader {
        id: _turnOff
        LuSelectionWindow {
            title: qsTr("Do you want to turn off PBP Mode and %1?").arg(_self.kvmName)
            message: qsTr("%1 only works in PBP mode. If you choose to turn off PBP mode, %1 will be disabled as well.").arg(_self.kvmName)
            onConfirmed: _self.setActive(false)
        }
    }

    page: Component {
        PipPbpPage {
            widget: _self
        }
    }
}
