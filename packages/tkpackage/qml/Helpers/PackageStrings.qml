// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk

// The words of these monitors' own menu, so that the panel and the menu say the same.
PackageStringsBase {
    // The names of the modes are also keys of settings and shortcuts, so they are translated only here.
    function colorMode(mode: var): string {
        switch (mode?.displayName) {
        case "Coding - Light Theme":
            return qsTr("Coding - Light Theme")
        case "Coding - Dark Theme":
            return qsTr("Coding - Dark Theme")
        case "Coding - Paper Color":
            return qsTr("Coding - Paper Color")
        case "M-book":
            return qsTr("M-book")
        case "Cinema":
            return qsTr("Cinema")
        case "Game":
            return qsTr("Game")
        case "ePaper":
            return qsTr("ePaper")
        case "User":
            return qsTr("User")
        }
        return mode?.displayName ?? ""
    }

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
