// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// Something went wrong, in plain words; takes no room where nothing did.
Rectangle {
    id: notice

    property string text
    // The person may put it away.
    property bool closable: false
    signal closed()

    width: parent ? parent.width : implicitWidth
    implicitHeight: Math.max(words.implicitHeight, LuStyle.scaled(28)) + 2 * LuStyle.spaceWide
    visible: text.length > 0
    radius: LuStyle.radius
    color: LuStyle.card
    border.width: 1
    border.color: LuStyle.caution
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    LuIcon {
        id: sign
        anchors.left: parent.left
        anchors.leftMargin: LuStyle.spaceLarge
        anchors.verticalCenter: parent.verticalCenter
        name: "warning"
        color: LuStyle.caution
    }
    LuLabel {
        id: words
        anchors.left: sign.right
        anchors.right: bin.visible ? bin.left : parent.right
        anchors.leftMargin: LuStyle.spaceWide
        anchors.rightMargin: bin.visible ? LuStyle.space : LuStyle.spaceLarge
        anchors.verticalCenter: parent.verticalCenter
        wrapMode: Text.WordWrap
        text: notice.text
    }
    LuIconButton {
        id: bin
        objectName: notice.objectName + ".close"
        anchors.right: parent.right
        anchors.rightMargin: LuStyle.spaceWide
        anchors.verticalCenter: parent.verticalCenter
        visible: notice.closable
        text: qsTr("Close")
        iconName: "close"
        onClicked: notice.closed()
    }
}
