// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// A pairing under way: waiting, calling, and the code that two people compare.
SettingsCard {
    id: card

    required property var computers
    readonly property bool comparing: computers.phase === "comparing"
    readonly property bool showsCode: comparing || computers.phase === "confirmed"

    Column {
        width: parent.width
        topPadding: LuStyle.spaceLarge
        bottomPadding: LuStyle.spaceLarge
        spacing: LuStyle.spaceWide

        LuProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: !card.comparing
            size: 28
            text: state.text
        }
        LuLabel {
            id: state
            objectName: "pairingState"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            kind: LuLabel.Strong
            text: {
                switch (card.computers.phase) {
                case "waiting":
                    return qsTr("Waiting for the other computer")
                case "calling":
                    return qsTr("Calling the other computer")
                case "confirmed":
                    return qsTr("Now confirm the code on the other computer")
                default:
                    return card.computers.otherName ? qsTr("Does %1 show the same code?").arg(card.computers.otherName)
                                                    : qsTr("Does the other computer show the same code?")
                }
            }
        }
        LuLabel {
            objectName: "pairingCode"
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            visible: card.showsCode
            font.pixelSize: Math.round(LuStyle.fontDisplay * 1.6)
            font.letterSpacing: 3
            kind: LuLabel.Display
            text: card.computers.code
        }
        LuLabel {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            visible: text.length > 0
            kind: LuLabel.Caption
            text: {
                if (card.computers.phase === "waiting")
                    return qsTr("Choose this computer there, or type its address: %1").arg(card.computers.addresses[0] ?? "-")
                return card.comparing ? qsTr("If the codes differ, somebody else is in between: answer no.") : ""
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: LuStyle.space
            LuButton {
                objectName: "cancelPairing"
                text: card.comparing ? qsTr("No") : qsTr("Cancel")
                onClicked: card.computers.cancel()
            }
            LuButton {
                objectName: "confirmPairing"
                visible: card.comparing
                kind: LuButton.Highlighted
                text: qsTr("Yes, pair")
                onClicked: card.computers.confirm()
            }
        }
    }
}
