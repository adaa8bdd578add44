// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style

// One entry of the settings window's list of pages.
T.AbstractButton {
    id: tab

    property string iconName
    // An arrow key asks for the neighbour: 1 below, -1 above.
    signal neighbourRequested(Item tab, int step)

    implicitHeight: Math.max(36, label.implicitHeight + LuStyle.spaceLarge)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.selectable: true
    Accessible.selected: checked
    Accessible.onPressAction: tab.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }
    Keys.onReturnPressed: tab.assistivePress()
    Keys.onEnterPressed: tab.assistivePress()
    Keys.onDownPressed: tab.neighbourRequested(tab, 1)
    Keys.onUpPressed: tab.neighbourRequested(tab, -1)

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: tab.checked ? LuStyle.accentSoft : tab.down ? LuStyle.press : tab.hovered ? LuStyle.hover : "transparent"
        border.width: LuStyle.highContrast && tab.checked ? 2 : 0
        border.color: LuStyle.outline
        LuFocusRing {
            control: tab
            gap: 0
        }
    }
    contentItem: Item {
        LuIcon {
            id: picture
            anchors.left: parent.left
            anchors.leftMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            name: tab.iconName
            size: 18
            color: tab.checked ? LuStyle.accentText : LuStyle.textDim
        }
        LuLabel {
            id: label
            anchors.left: picture.right
            anchors.leftMargin: LuStyle.space + 2
            anchors.right: parent.right
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.WordWrap
            repeatsName: true
            font.weight: tab.checked ? LuStyle.weightStrong : Font.Normal
            color: tab.checked ? LuStyle.accentText : LuStyle.text
            text: tab.text
        }
    }
}
