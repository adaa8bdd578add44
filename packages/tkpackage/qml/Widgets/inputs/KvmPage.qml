// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// The hub's port, the pointer feature with its switch, and where this computer stands.
LuPage {
    id: page

    // Offers portName(), chooseKvm(), toggleKvm(), chooseLocation(), and what stands below.
    required property var widget
    // The hub's choice is the user's.
    property bool portsEnabled: true
    property bool kvmOn: false
    property string kvmTitle
    property bool switchVisible: true
    property bool switchOn: kvmOn
    property string picture: "img_kvm"
    property string status
    property var locations: []
    property string explanation

    title: widget?.text ?? ""
    pageWidth: 270

    LuPageGroup {
        enabled: page.portsEnabled
        fadedOpacity: 0.5
        spacing: LuStyle.spaceHalf
        Accessible.role: Accessible.Grouping
        Accessible.name: page.title
        Repeater {
            model: page.widget?.kvmList ?? []
            LuRadio {
                required property int modelData

                anchors.left: parent?.left
                text: page.widget?.portName(modelData) ?? ""
                confirmed: page.widget?.kvmSwitch?.kvmSwitch === modelData
                onToggled: page.widget.chooseKvm(modelData)
            }
        }
    }
    LuSeparator { }
    LuAbsenceNote { needs: ["pointerEdge"] }
    LuPageRow {
        visible: page.switchVisible
        text: page.kvmTitle
        strong: true
        LuSwitch {
            objectName: "smartKvmSwitch"
            text: page.kvmTitle
            confirmed: page.switchOn
            checkable: false
            onClicked: page.widget.toggleKvm()
        }
    }
    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        width: 126
        height: 45
        source: LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(page.picture), page.widget, LuStyle.colorScheme)
        Accessible.role: Accessible.Graphic
        Accessible.name: page.status || page.kvmTitle
    }
    LuLabel {
        objectName: "smartKvmStatus"
        anchors.horizontalCenter: parent.horizontalCenter
        visible: text.length > 0
        kind: LuLabel.Caption
        text: page.status
    }
    LuPageGroup {
        enabled: page.kvmOn
        spacing: LuStyle.space
        LuLabel {
            width: parent.width
            wrapMode: Text.WordWrap
            kind: LuLabel.Strong
            text: qsTr("Current Device Location")
        }
        Flow {
            width: parent.width
            spacing: LuStyle.spaceLarge
            Accessible.role: Accessible.Grouping
            Accessible.name: qsTr("Current Device Location")
            Repeater {
                model: page.locations
                LuRadio {
                    required property var modelData

                    text: modelData.name
                    confirmed: page.widget?.location === modelData.location
                    onToggled: page.widget.chooseLocation(modelData.location)
                }
            }
        }
    }
    LuLabel {
        width: parent.width
        visible: text.length > 0
        wrapMode: Text.WordWrap
        kind: LuLabel.Caption
        lineHeight: 1.2
        text: page.explanation
    }
    LuButton {
        objectName: "secondComputer"
        visible: LuComputers.available
        kind: LuButton.Link
        leftPadding: 0
        text: LuComputers.connected ? qsTr("Connected to the other computer") : qsTr("Connect the other computer")
        onClicked: LuContext.openSettings("computers")
    }
}
