// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// One row of a LuList: name, second line, a word at its end, an arrow or a bin, or controls of its own.
T.ItemDelegate {
    id: row

    property string description
    // A word at the end, in a chip: "On", "Manual".
    property string badge
    property bool emphasized: false
    property bool selected: ListView.isCurrentItem
    property bool arrowVisible: false
    property string arrowText: qsTr("Edit")
    property bool deleteVisible: false
    default property alias content: side.data
    signal arrowClicked()
    signal deleteClicked()

    // Beside the bar of a list that scrolls.
    width: ListView.view ? ListView.view.width - (ListView.view.interactive ? LuStyle.space : 0) : implicitWidth
    implicitHeight: Math.max(36, words.implicitHeight + 2 * 6, side.childrenRect.height + 2 * 3)
    horizontalPadding: LuStyle.space
    focusPolicy: Qt.NoFocus
    hoverEnabled: true
    opacity: LuStyle.dim(row)

    Accessible.role: Accessible.ListItem
    Accessible.name: text
    Accessible.description: badge && description ? badge + ", " + description : badge + description
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: row.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: row.selected || row.checked ? LuStyle.accentSoft : row.down ? LuStyle.press : row.hovered && row.enabled ? LuStyle.hover : "transparent"
        border.width: (row.selected || row.checked) && LuStyle.highContrast ? 2 : 0
        border.color: LuStyle.focus
        LuFocusRing {
            control: row
            gap: -2
        }
    }
    contentItem: Item {
        Column {
            id: words
            anchors.left: parent.left
            anchors.right: ends.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            LuLabel {
                width: parent.width
                repeatsName: true
                text: row.text
                font.weight: row.emphasized ? LuStyle.weightStrong : Font.Normal
            }
            LuLabel {
                width: parent.width
                visible: text.length > 0
                repeatsName: true
                kind: LuLabel.Caption
                text: row.description
            }
        }
        Row {
            id: ends
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: LuStyle.spaceHalf
            LuChip {
                anchors.verticalCenter: parent.verticalCenter
                visible: text.length > 0
                kind: row.emphasized ? LuChip.Accent : LuChip.Normal
                text: row.badge
            }
            Row {
                id: side
                anchors.verticalCenter: parent.verticalCenter
                spacing: LuStyle.spaceHalf
            }
            LuIconButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.deleteVisible
                text: qsTr("Delete")
                iconName: "delete"
                onClicked: row.deleteClicked()
            }
            LuIconButton {
                anchors.verticalCenter: parent.verticalCenter
                visible: row.arrowVisible
                text: row.arrowText
                iconName: row.mirrored ? "back" : "forward"
                onClicked: row.arrowClicked()
            }
        }
    }
}
