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

    readonly property var smartKvm: monitor?.smartKvm ?? null
    readonly property var kvmSwitch: monitor?.kvmSwitch ?? null
    readonly property var pipPbp: monitor?.pipPbp ?? null
    readonly property bool isLandscape: monitor?.autoPivot?.isLandscape ?? true
    readonly property bool kvmOn: smartKvm?.state || false
    readonly property bool driverInstallRequired: smartKvm !== null && smartKvm.isDriverRequired && !smartKvm.isDriverInstalled
    readonly property var kvmList: _ports.list
    readonly property int location: smartKvm?.deviceLocation ?? 0
    // What the status says: picture and text.
    readonly property var status: {
        if (driverInstallRequired)
            return ["kvm_01_nodriver", qsTr("Driver installation is required")]
        if (!kvmOn)
            return ["kvm_02_off", "-"]
        return smartKvm.isConnected ? ["kvm_04_connected", qsTr("Connected")] : ["kvm_03_connecting", qsTr("Searching")]
    }

    text: qsTr("KVM")
    functionSupported: smartKvm?.smartKvmEnable || false
    active: functionSupported && kvmOn
    targetWidth: 308
    targetHeight: 48

    bindings: [
        Component {
            // Not tied to the window: the other computer comes and goes while it is hidden, too.
            LuBinding {
                target: _self.smartKvm
                property: "syncEnable"
                value: _self.isCurrentModel
                defaultValue: false
            }
        },
        Component {
            LuBinding {
                target: _self.kvmSwitch
                property: "syncEnable"
                value: _self.isCurrentModel
                defaultValue: false
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
        smartKvm.deviceLocation = side
    }

    function toggleKvm(): void {
        if (driverInstallRequired)
            _driver.open()
        else if (kvmOn || (pipPbp?.state && pipPbp.isPbpMode))
            smartKvm.state = !smartKvm.state
        else
            _openPbp.open()
    }

    // The driver's channel is opened before the layout: both jobs go to the front of the monitor's queue in this order.
    function openPbpAndTurnOn(): void {
        smartKvm.state = true
        pipPbp.forceOpenPbp()
        LuContext.checkToUpdateMonitorList()
    }

    KvmRow {
        widget: _self
        kvmOn: _self.kvmOn
        enabledText: qsTr("Smart KVM Enabled")
    }
    LuPopupLoader {
        id: _driver
        LuSelectionWindow {
            title: qsTr("Driver installation is required.")
            message: qsTr("Smart KVM requires your permission to install its driver. Would you like to install it now?")
            onConfirmed: _self.smartKvm.installDriver()
        }
    }
    LuPopupLoader {
        id: _openPbp
        LuSelectionWindow {
            title: qsTr("Do you want to switch to PBP Mode?")
            message: qsTr("Smart KVM only works in PBP mode. If you'd like to continue using Smart KVM, we can switch to PBP mode for you.")
            onConfirmed: _self.openPbpAndTurnOn()
        }
    }

    page: Component {
        KvmPage {
            widget: _self
            portsEnabled: !(_self.smartKvm?.isConnected ?? false)
            kvmOn: _self.kvmOn
            kvmTitle: qsTr("Smart KVM")
            switchOn: _self.kvmOn && !_self.driverInstallRequired
            picture: _self.status[0]
            status: _self.status[1]
            // As LuKvm numbers the sides.
            locations: _self.isLandscape
                       ? sides({ "location": 0, "name": qsTr("Left") }, { "location": 1, "name": qsTr("Right") })
                       : [{ "location": 2, "name": qsTr("Top") }, { "location": 3, "name": qsTr("Bottom") }]
        }
    }
}
