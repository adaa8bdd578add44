// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The connection to a second computer on the same monitor: on and off, the paired computer, and pairing.
LuPage {
    id: page

    readonly property var computers: LuComputers
    readonly property bool pairing: computers.phase !== "idle"

    objectName: "computersPage"
    title: qsTr("Two computers")
    spacing: LuStyle.spaceLarge

    LuLabel {
        width: page.width
        wrapMode: Text.WordWrap
        color: LuStyle.textDim
        text: qsTr("Two computers that share a monitor can hand over keyboard and mouse at the edge of the screen. Connected, they agree who has the pointer, and it enters where it left.")
    }
    LuAbsenceNote { needs: ["pointerEdge"] }
    SettingsNotice {
        objectName: "computersProblem"
        text: page.computers.problem
        closable: page.computers.on
        onClosed: page.computers.clearProblem()
    }
    SettingsCard {
        SettingsRow {
            text: qsTr("Connection to a second computer")
            description: qsTr("Only the computer that you pair can connect, encrypted, on your local network. It learns where the pointer is: no keys, texts or files are sent. While it is on, the network sees this computer's name.")
            last: !page.computers.on
            LuSwitch {
                objectName: "computersSwitch"
                text: qsTr("Connection to a second computer")
                enabled: page.computers.available
                confirmed: page.computers.on
                onToggled: page.computers.setOn(checked)
            }
        }
        SettingsRow {
            visible: page.computers.on
            text: qsTr("This computer")
            description: page.computers.addresses.length > 0 ? page.computers.addresses.join("  ·  ") : qsTr("It has no address on a local network.")
            last: true
            LuLabel {
                objectName: "ownName"
                anchors.verticalCenter: parent?.verticalCenter
                kind: LuLabel.Value
                text: page.computers.name
            }
        }
    }
    Column {
        width: page.width
        spacing: LuStyle.space
        visible: page.computers.paired
        LuLabel {
            kind: LuLabel.Strong
            text: qsTr("Paired computer")
        }
        PairedComputer {
            computers: page.computers
        }
    }
    Column {
        width: page.width
        spacing: LuStyle.space
        // Who is connected has what they want.
        visible: page.computers.on && (page.pairing || !page.computers.connected)
        LuLabel {
            kind: LuLabel.Strong
            text: page.computers.paired ? qsTr("Pair again") : qsTr("Pair a computer")
        }
        ComputerPairing {
            visible: page.pairing
            computers: page.computers
        }
        ComputerChoice {
            visible: !page.pairing
            computers: page.computers
        }
    }
}
