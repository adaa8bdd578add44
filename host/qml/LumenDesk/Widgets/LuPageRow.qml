// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// A line of a page: its name on the left, its control on the right.
Item {
    id: row

    property string text
    property bool strong: false
    property bool repeatsName: true
    default property alias content: side.data

    width: parent ? parent.width : implicitWidth
    implicitWidth: label.implicitWidth + LuStyle.spaceWide + side.width
    implicitHeight: Math.max(24, label.implicitHeight, side.height)

    LuLabel {
        id: label
        anchors.left: parent.left
        anchors.right: side.left
        anchors.rightMargin: LuStyle.spaceWide
        anchors.verticalCenter: parent.verticalCenter
        kind: row.strong ? LuLabel.Strong : LuLabel.Body
        repeatsName: row.repeatsName && side.children.length > 0
        wrapMode: Text.WordWrap
        text: row.text
    }
    Row {
        id: side
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: LuStyle.space
    }
}
