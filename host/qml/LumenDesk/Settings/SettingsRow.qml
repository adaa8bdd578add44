// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// One setting: what it is, what it does, and its control at the end of the line.
Item {
    id: row

    property string text
    property string description
    property bool last: false
    default property alias content: side.data

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(48, words.implicitHeight + 2 * LuStyle.spaceWide, side.implicitHeight + LuStyle.spaceLarge)

    Column {
        id: words
        anchors.left: parent.left
        anchors.right: side.left
        anchors.rightMargin: LuStyle.spaceLarge
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        LuLabel {
            width: parent.width
            wrapMode: Text.WordWrap
            repeatsName: side.children.length > 0
            text: row.text
        }
        LuLabel {
            width: parent.width
            kind: LuLabel.Caption
            wrapMode: Text.WordWrap
            visible: text.length > 0
            text: row.description
        }
    }
    Row {
        id: side
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: LuStyle.space
    }
    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: LuStyle.line
        visible: !row.last
    }
}
