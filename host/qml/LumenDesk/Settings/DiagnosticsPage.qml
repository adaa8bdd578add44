// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// How the program gets on with the monitors, and a report of it for a bug ticket.
LuPage {
    id: page

    objectName: "diagnosticsPage"
    title: qsTr("Diagnostics")
    spacing: LuStyle.spaceLarge

    // Facts are looked up only while somebody sees them.
    Binding {
        target: LuDiagnostics
        property: "watched"
        value: page.visible && (!page.Window.window || page.Window.window.visible)
    }
    // At once, so that the page is never seen without its facts.
    Component.onCompleted: LuDiagnostics.refresh()
    Component.onDestruction: LuDiagnostics.watched = false

    Repeater {
        model: LuDiagnostics.troubles
        Rectangle {
            id: trouble
            required property string modelData
            width: page.width
            implicitHeight: words.implicitHeight + 2 * LuStyle.spaceWide
            radius: LuStyle.radius
            color: LuStyle.card
            border.width: 1
            border.color: LuStyle.caution
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
                anchors.right: parent.right
                anchors.leftMargin: LuStyle.spaceWide
                anchors.rightMargin: LuStyle.spaceLarge
                anchors.verticalCenter: parent.verticalCenter
                wrapMode: Text.WordWrap
                text: trouble.modelData
            }
        }
    }
    LuLabel {
        width: page.width
        wrapMode: Text.WordWrap
        visible: LuDiagnostics.monitors.length === 0
        text: qsTr("No monitor is connected.")
    }
    Repeater {
        model: LuDiagnostics.monitors
        Column {
            id: entry
            required property var modelData
            width: page.width
            spacing: LuStyle.space
            LuLabel {
                width: parent.width
                kind: LuLabel.Strong
                text: entry.modelData.model
            }
            Rectangle {
                width: parent.width
                implicitHeight: facts.implicitHeight + 2 * LuStyle.spaceWide
                radius: LuStyle.radius
                color: LuStyle.card
                border.width: 1
                border.color: LuStyle.line
                Column {
                    id: facts
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.margins: LuStyle.spaceLarge
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: LuStyle.space
                    Repeater {
                        model: entry.modelData.lines
                        Item {
                            id: line
                            required property var modelData
                            width: facts.width
                            implicitHeight: Math.max(name.implicitHeight, value.implicitHeight)
                            LuLabel {
                                id: name
                                anchors.left: parent.left
                                width: Math.round(parent.width * 0.36)
                                kind: LuLabel.Value
                                repeatsName: true
                                text: line.modelData.name
                            }
                            LuLabel {
                                id: value
                                anchors.left: name.right
                                anchors.right: parent.right
                                anchors.leftMargin: LuStyle.spaceWide
                                horizontalAlignment: Text.AlignLeft
                                wrapMode: Text.WordWrap
                                color: line.modelData.bad ? LuStyle.caution : LuStyle.text
                                text: line.modelData.value
                                Accessible.name: line.modelData.name + ": " + line.modelData.value
                            }
                        }
                    }
                }
            }
        }
    }
    Column {
        width: page.width
        spacing: LuStyle.space
        LuLabel {
            width: parent.width
            kind: LuLabel.Caption
            wrapMode: Text.WordWrap
            text: qsTr("The report holds what is shown here and the log of the monitors' buses. Serial numbers, your name and your folders are left out.")
        }
        LuButton {
            anchors.left: parent.left
            objectName: "exportReport"
            text: qsTr("Export report")
            onClicked: LuDiagnostics.exportReport()
        }
        LuLabel {
            objectName: "exportResult"
            width: parent.width
            kind: LuLabel.Caption
            wrapMode: Text.WrapAnywhere
            visible: text.length > 0
            color: LuDiagnostics.exportProblem ? LuStyle.caution : LuStyle.textDim
            text: LuDiagnostics.exportProblem || (LuDiagnostics.exportedFile ? qsTr("Written to %1").arg(LuDiagnostics.exportedFile) : "")
        }
    }
}
