// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// One theme to choose, shown as a small window in its colours.
T.RadioButton {
    id: card

    required property string theme
    readonly property bool black: theme === "dark"
    readonly property bool contrast: theme === "contrast"

    objectName: "theme." + theme
    implicitHeight: preview.height + label.implicitHeight + LuStyle.spaceWide
    checked: LuContext.theme === theme
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    onClicked: LuContext.theme = theme

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: card.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }
    Keys.forwardTo: [arrows]
    LuChoiceKeys {
        id: arrows
        control: card
    }
    Keys.onReturnPressed: card.assistivePress()
    Keys.onEnterPressed: card.assistivePress()

    component Half: Item {
        id: half
        property bool dark: false
        property real dotsAt: 10
        readonly property color ink: card.contrast ? (dark ? "#FFFFFF" : "#000000") : dark ? "#5A6270" : "#C3CAD4"
        Rectangle {
            anchors.fill: parent
            radius: LuStyle.radius - 4
            color: card.contrast ? (half.dark ? "#000000" : "#FFFFFF") : half.dark ? "#1C1F24" : "#F7F8FA"
        }
        Rectangle {
            x: half.dotsAt
            y: 12
            width: 28
            height: 5
            radius: 2.5
            color: half.ink
        }
        Rectangle {
            x: 10
            y: 24
            width: parent.width - 20
            height: 5
            radius: 2.5
            color: half.ink
            opacity: card.contrast ? 1 : 0.6
        }
        Row {
            x: half.dotsAt
            y: 38
            spacing: 6
            Rectangle {
                width: 14
                height: 14
                radius: 7
                color: card.contrast ? (half.dark ? "#6CB4FF" : "#0050B0") : "#097BF8"
            }
            Rectangle {
                width: 14
                height: 14
                radius: 7
                color: half.ink
            }
        }
    }

    background: Item { }
    indicator: null
    contentItem: Item {
        Rectangle {
            id: preview
            width: parent.width
            height: 66
            radius: LuStyle.radius
            color: "transparent"
            border.width: card.checked ? 2 : 1
            border.color: card.checked ? LuStyle.accent : card.hovered ? LuStyle.outline : LuStyle.line
            Item {
                anchors.fill: parent
                anchors.margins: 4
                Half {
                    width: parent.width
                    height: parent.height
                    dark: card.black || (card.contrast && LuStyle.dark)
                }
                // The desktop's choice is one of two: the right half is the dark one, from its own middle on.
                Item {
                    x: parent.width / 2
                    width: parent.width / 2
                    height: parent.height
                    visible: card.theme === "system"
                    clip: true
                    Half {
                        x: -parent.width
                        width: 2 * parent.width
                        height: parent.height
                        dark: true
                        dotsAt: width / 2 + 10
                    }
                }
            }
            LuFocusRing {
                control: card
                innerRadius: LuStyle.radius
            }
        }
        LuLabel {
            id: label
            anchors.top: preview.bottom
            anchors.topMargin: LuStyle.space
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WordWrap
            repeatsName: true
            font.weight: card.checked ? LuStyle.weightStrong : Font.Normal
            text: card.text
        }
    }
}
