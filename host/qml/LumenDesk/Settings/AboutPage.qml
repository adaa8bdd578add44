// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "notices.js" as Notices

// What the program is, and whose work it stands on.
LuPage {
    id: page

    readonly property string version: Qt.application.version
    readonly property var notices: Notices.notices
    signal introductionRequested()

    objectName: "aboutPage"
    title: qsTr("About")
    spacing: LuStyle.spaceLarge

    Row {
        width: page.width
        spacing: LuStyle.spaceLarge
        Image {
            id: picture
            width: 64
            height: 64
            sourceSize.width: 128
            sourceSize.height: 128
            source: "../icons/app/lumen-desk.svg"
            Accessible.ignored: true
        }
        Column {
            anchors.verticalCenter: picture.verticalCenter
            width: parent.width - picture.width - parent.spacing
            spacing: 2
            LuLabel {
                width: parent.width
                kind: LuLabel.Title
                wrapMode: Text.WordWrap
                text: "Lumen Desk"
            }
            LuLabel {
                width: parent.width
                kind: LuLabel.Caption
                wrapMode: Text.WordWrap
                text: page.version ? qsTr("Version %1 · Apache License 2.0").arg(page.version) : qsTr("Apache License 2.0")
            }
            LuLabel {
                width: parent.width
                wrapMode: Text.WordWrap
                text: qsTr("Puts you in control of your monitors.")
            }
        }
    }
    LuButton {
        anchors.left: parent.left
        text: qsTr("Show the introduction")
        visible: String(LuContext.walkthroughUrl).length > 0
        onClicked: page.introductionRequested()
    }
    LuLabel {
        width: page.width
        kind: LuLabel.Strong
        wrapMode: Text.WordWrap
        text: qsTr("Open-source notices")
    }
    SettingsCard {
        Repeater {
            model: page.notices
            SettingsRow {
                required property var modelData
                required property int index
                text: modelData.name
                description: modelData.licence + " · " + modelData.address
                last: index === page.notices.length - 1
            }
        }
    }
}
