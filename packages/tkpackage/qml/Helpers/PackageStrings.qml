// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk

// The words of these monitors' own menu, so that the panel and the menu say the same.
PackageStringsBase {
    function colorTemperature(mode: int): string {
        switch (mode) {
        case LuVCPNode.ColorTemperature_6500:
            return qsTr("Normal")
        case LuVCPNode.ColorTemperature_9300:
            return qsTr("Bluish")
        case LuVCPNode.ColorTemperature_5000:
            return qsTr("Reddish")
        }
        return OsdTranslator.colorTemperature(mode)
    }

    function gamma(mode: int): string {
        switch (mode) {
        case LuVCPNode.Gamma_18:
            return "1"
        case LuVCPNode.Gamma_20:
            return "2"
        case LuVCPNode.Gamma_22:
            return "3"
        case LuVCPNode.Gamma_24:
            return "4"
        case LuVCPNode.Gamma_26:
            return "5"
        }
        return OsdTranslator.gamma(mode)
    }
}
