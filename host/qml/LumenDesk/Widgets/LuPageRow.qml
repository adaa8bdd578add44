// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// A line of a page: its name on the left, its control on the right. In a language that is read from the right they
// change sides.
Item {
    id: row

    property string text
    // A second, quieter line below the name.
    property string description
    property bool strong: false
    property bool repeatsName: true
    default property alias content: side.data

    width: parent ? parent.width : implicitWidth
    implicitWidth: label.implicitWidth + LuStyle.spaceWide + side.width
    implicitHeight: Math.max(24, words.implicitHeight, side.height)

    Column {
        id: words
        anchors.left: parent.left
        anchors.right: side.left
        anchors.rightMargin: side.width > 0 ? LuStyle.spaceWide : 0
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        LuLabel {
            id: label
            width: parent.width
            kind: row.strong ? LuLabel.Strong : LuLabel.Body
            repeatsName: row.repeatsName && side.children.length > 0
            wrapMode: Text.WordWrap
            text: row.text
        }
        LuLabel {
            width: parent.width
            visible: text.length > 0
            kind: LuLabel.Caption
            wrapMode: Text.WordWrap
            text: row.description
        }
    }
    Row {
        id: side
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: LuStyle.space
    }
}
