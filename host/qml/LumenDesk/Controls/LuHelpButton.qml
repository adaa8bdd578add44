// SPDX-License-Identifier: Apache-2.0
import QtQuick

// The round question mark that opens or closes a hint.
LuIconButton {
    text: qsTr("Help")
    iconName: "help"
}
