// SPDX-License-Identifier: Apache-2.0
import QtQuick

// The colour modes of a monitor, in the order of its menu.
FollowingChoice {
    id: choice

    property var monitor: null

    text: qsTr("Color Mode")
    entries: (monitor?.colorModeList ?? []).map(mode => ({ "text": modeText(mode.displayName), "value": mode }))
    confirmed: monitor?.colorMode ?? null

    // The translated name of a mode; settings and shortcuts use the other one.
    function modeText(name: string): string {
        return qsTranslate("ColorModes", name)
    }
}
