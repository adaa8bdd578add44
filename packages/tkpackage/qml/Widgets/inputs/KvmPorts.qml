// SPDX-License-Identifier: Apache-2.0
import QtQuick
import "../.."

// The ports of the hub as panels list and call them.
QtObject {
    property var kvmSwitch: null
    readonly property var list: {
        const offered = plain(kvmSwitch?.kvmSwitchList)
        return [LuKvmSwitch.Auto, LuKvmSwitch.TypeC, LuKvmSwitch.TypeB, LuKvmSwitch.TBT].filter(port => offered.includes(port))
    }

    function plain(numbers: var): var {
        const result = []
        for (let i = 0; i < (numbers?.length ?? 0); ++i)
            result.push(numbers[i])
        return result
    }

    function name(port: int): string {
        switch (port) {
        case LuKvmSwitch.Auto:
            return qsTr("Auto Switch")
        case LuKvmSwitch.TypeC:
            return qsTr("USB-C Upstream")
        case LuKvmSwitch.TypeB:
            return qsTr("USB-B Upstream")
        case LuKvmSwitch.TBT:
            return qsTr("TBT Upstream")
        }
        return ""
    }
}
