// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// The paired computer: whether it answers, where it is, and how to part with it.
SettingsCard {
    id: card

    required property var computers
    readonly property string name: computers.peerName || qsTr("Computer without a name")
    // "": at rest, "move": another address is typed, "forget": asked once more.
    property string asking

    SettingsRow {
        text: card.name
        description: card.computers.connected || !card.computers.peerAddress ? card.computers.peerAddress
                     : qsTr("Last met at %1").arg(card.computers.peerAddress)
        LuChip {
            objectName: "peerState"
            anchors.verticalCenter: parent?.verticalCenter
            repeatsName: false
            kind: card.computers.connected ? LuChip.Accent : card.computers.forgottenThere ? LuChip.Warning : LuChip.Normal
            text: {
                if (!card.computers.on)
                    return qsTr("Off")
                if (card.computers.connected)
                    return qsTr("Connected")
                return card.computers.forgottenThere ? qsTr("Not paired there") : qsTr("Searching")
            }
        }
    }
    LuLabel {
        width: parent.width
        topPadding: LuStyle.spaceWide
        visible: card.computers.on && !card.computers.connected && card.asking === ""
        kind: LuLabel.Caption
        wrapMode: Text.WordWrap
        text: card.computers.forgottenThere
              ? qsTr("It answers, and does not know this computer any more. Pair the two anew.")
              : qsTr("It is found again by itself once it runs in the same network. If it has another address, you can type it here.")
    }
    Item {
        width: parent.width
        implicitHeight: Math.max(48, line.implicitHeight + 2 * LuStyle.space)
        visible: card.asking === ""
        Flow {
            id: line
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: LuStyle.space
            LuButton {
                objectName: "movePeer"
                visible: card.computers.on && !card.computers.connected
                text: qsTr("Another address")
                onClicked: card.asking = "move"
            }
            LuButton {
                objectName: "forgetPeer"
                text: qsTr("Forget")
                onClicked: card.asking = "forget"
            }
        }
    }
    AddressLine {
        objectName: "moveLine"
        visible: card.asking === "move"
        text: qsTr("Another address")
        buttonText: qsTr("Connect")
        cancelable: true
        onEntered: address => {
            if (card.computers.movePeer(address))
                card.asking = ""
        }
        onCanceled: card.asking = ""
    }
    SettingsRow {
        visible: card.asking === "forget"
        text: qsTr("Forget %1?").arg(card.name)
        description: qsTr("The two do not connect any more until they are paired again.")
        last: true
        LuButton {
            text: qsTr("Keep")
            onClicked: card.asking = ""
        }
        LuButton {
            objectName: "forgetForGood"
            kind: LuButton.Caution
            text: qsTr("Forget")
            onClicked: {
                card.asking = ""
                card.computers.forget()
            }
        }
    }
}
