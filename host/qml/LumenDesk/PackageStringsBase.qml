// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk

// The words that panels use for a monitor's values; a package redefines those that its monitors call otherwise.
QtObject {
    // A connector is called as it is written beside its socket.
    function inputSource(name: string): string {
        return name
    }

    // @param mode a colour mode of the model, or null.
    function colorMode(mode: var): string {
        return mode?.displayName ?? ""
    }

    function dualViewMode(mode: var): string {
        return colorMode(mode)
    }

    function colorTemperature(mode: int): string {
        return OsdTranslator.colorTemperature(mode)
    }

    function gamma(mode: int): string {
        return OsdTranslator.gamma(mode)
    }

    function gamut(mode: int): string {
        return OsdTranslator.gamut(mode)
    }

    function audioMode(name: string): string {
        return OsdTranslator.audioMode(name)
    }
}
