// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQml
import LumenDesk

// Values of a monitor's own menu in words, with their physical meaning.
QtObject {
    function colorTemperature(mode: int): string {
        switch (mode) {
        case LuVCPNode.ColorTemperature_5000:
            return qsTr("5000 K")
        case LuVCPNode.ColorTemperature_6500:
            return qsTr("6500 K")
        case LuVCPNode.ColorTemperature_9300:
            return qsTr("9300 K")
        case LuVCPNode.ColorTemperature_DCI:
            return qsTr("DCI")
        case LuVCPNode.ColorTemperature_UserDefine:
            return qsTr("User defined")
        }
        return ""
    }

    function gamma(mode: int): string {
        switch (mode) {
        case LuVCPNode.Gamma_16:
            return "1.6"
        case LuVCPNode.Gamma_18:
            return "1.8"
        case LuVCPNode.Gamma_20:
            return "2.0"
        case LuVCPNode.Gamma_22:
            return "2.2"
        case LuVCPNode.Gamma_24:
            return "2.4"
        case LuVCPNode.Gamma_26:
            return "2.6"
        case LuVCPNode.Gamma_BT1886:
            return "BT.1886"
        case LuVCPNode.Gamma_sRGB:
            return "sRGB"
        }
        return ""
    }

    function gamut(mode: int): string {
        switch (mode) {
        case LuVCPNode.Gamut_Native:
            return qsTr("Native")
        case LuVCPNode.Gamut_sRGB:
            return "sRGB"
        case LuVCPNode.Gamut_Rec709:
            return "Rec. 709"
        case LuVCPNode.Gamut_DCIP3:
            return "DCI-P3"
        case LuVCPNode.Gamut_AdobeRGB:
            return "Adobe RGB"
        case LuVCPNode.Gamut_Rec2020:
            return "Rec. 2020"
        }
        return ""
    }

    // An audio mode that has no words of its own is called as the monitor calls it.
    function audioMode(name: string): string {
        switch (name) {
        case "Standard":
            return qsTr("Standard")
        case "Dialogue":
            return qsTr("Dialogue")
        case "Music":
            return qsTr("Music")
        case "Cinema":
            return qsTr("Cinema")
        case "Game":
            return qsTr("Game")
        case "Studio":
            return qsTr("Studio")
        case "User":
            return qsTr("User")
        }
        return name
    }
}
