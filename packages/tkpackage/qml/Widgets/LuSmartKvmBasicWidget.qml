// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "inputs"

LuWidget {
    id: _self

    readonly property var smartKvmBasic: monitor?.smartKvmBasic ?? null
    readonly property var kvmSwitch: monitor?.kvmSwitch ?? null
    readonly property var pipPbp: monitor?.pipPbp ?? null
    readonly property bool kvmOn: smartKvmBasic?.basicState || false
    readonly property var kvmList: _ports.list
    readonly property int location: smartKvmBasic?.deviceLocation ?? 0
    // Sides of the monitor, as the service numbers them.
    readonly property int leftSide: 0
    readonly property int rightSide: 1

    text: qsTr("KVM")
    functionSupported: smartKvmBasic?.smartKvmBasicEnable || false
    active: functionSupported && kvmOn
    targetWidth: 308
    targetHeight: 48

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.smartKvmBasic
            }
        },
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.kvmSwitch
            }
        }
    ]

    KvmPorts {
        id: _ports
        kvmSwitch: _self.kvmSwitch
    }

    function portName(port: int): string {
        return _ports.name(port)
    }

    function chooseKvm(port: int): void {
        kvmSwitch.kvmSwitch = port
    }

    function chooseLocation(side: int): void {
        smartKvmBasic.deviceLocation = side
    }

    // The feature works only while the picture is divided.
    function toggleKvm(): void {
        if (pipPbp?.state && pipPbp.isPbpMode)
            smartKvmBasic.basicState = !smartKvmBasic.basicState
        else
            _openPbp.open()
    }

    function openPbpAndTurnOn(): void {
        pipPbp.forceOpenPbp()
        smartKvmBasic.basicState = true
        LuContext.checkToUpdateMonitorList()
    }

    KvmRow {
        widget: _self
        kvmOn: _self.kvmOn
        enabledText: qsTr("Smart KVM Basic is enabled")
    }
    LuPopupLoader {
        id: _openPbp
        LuSelectionWindow {
            title: qsTr("Do you want to switch to PBP Mode?")
            message: qsTr("Smart KVM Basic works only in PBP Mode. Turning off PBP Mode will also disable Smart KVM Basic.")
            onConfirmed: _self.openPbpAndTurnOn()
        }
    }

    page: Component {
        KvmPage {
            widget: _self
            portsEnabled: !_self.kvmOn
            kvmOn: _self.kvmOn
            kvmTitle: qsTr("Smart KVM Basic")
            switchVisible: !LuContext.isLinux
            locations: sides({ "location": _self.leftSide, "name": qsTr("Left") },
                             { "location": _self.rightSide, "name": qsTr("Right") })
            explanation: qsTr("Orvane Smart KVM Basic makes multitasking effortless - use one keyboard and mouse to control two computers. With automatic switching when your cursor crosses the screen edge, you can work seamlessly across systems. Just install Lumen Desk 2 on both devices and enable PBP Mode to get started.")
        }
    }
}
