// SPDX-License-Identifier: Apache-2.0
import QtQml
import LumenDesk

// The words that panels use for a monitor's values; a package redefines those that its monitors call otherwise.
QtObject {
    function colorTemperature(mode: int): string {
        return OsdTranslator.colorTemperature(mode)
    }

    function gamma(mode: int): string {
        return OsdTranslator.gamma(mode)
    }
}
