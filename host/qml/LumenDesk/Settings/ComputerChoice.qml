// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls

// With which computer to pair: one that waits is chosen on the other, from those nearby or by its address.
SettingsCard {
    id: card

    required property var computers

    SettingsRow {
        text: qsTr("1. On one computer")
        description: qsTr("It waits for two minutes, for one call.")
        LuButton {
            objectName: "waitForOther"
            text: qsTr("Wait for the other computer")
            onClicked: card.computers.waitForOther()
        }
    }
    SettingsRow {
        text: qsTr("2. On the other computer")
        description: {
            if (!card.computers.findsOthers)
                return qsTr("Type the address of the computer that waits. Where the service Avahi runs, it is found by itself.")
            return card.computers.nearby.length > 0 ? qsTr("Choose the computer that waits, or type its address.")
                                                    : qsTr("No computer nearby has this switched on. You can also type its address.")
        }
        last: true
    }
    Repeater {
        model: card.computers.nearby
        SettingsRow {
            id: other
            required property var modelData
            required property int index
            text: modelData.name
            description: modelData.address
            LuButton {
                text: qsTr("Pair")
                Accessible.name: qsTr("Pair with %1").arg(other.modelData.name)
                onClicked: card.computers.pairWith(other.modelData.address)
            }
        }
    }
    AddressLine {
        objectName: "pairLine"
        text: qsTr("Address of the other computer")
        buttonText: qsTr("Pair")
        onEntered: address => card.computers.pairWith(address)
    }
}
