// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style

// The row of the hub: a click opens the page; the port can be chosen here while the pointer feature is off.
Item {
    id: row

    required property var widget
    property bool kvmOn: false
    property string enabledText

    width: parent ? parent.width : implicitWidth
    implicitHeight: 32

    T.AbstractButton {
        id: button
        objectName: row.widget.widgetName + ".button"
        anchors.fill: parent
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        text: row.widget.text
        onClicked: row.widget.trigger()

        // What a click does, for the return key, assistive software and scripts.
        function assistivePress(): void {
            clicked()
        }

        Keys.onReturnPressed: button.assistivePress()
        Keys.onEnterPressed: button.assistivePress()
        Accessible.role: Accessible.Button
        Accessible.name: text
        Accessible.onPressAction: button.assistivePress()

        background: Rectangle {
            anchors.fill: parent
            anchors.margins: -LuStyle.spaceHalf
            radius: LuStyle.radiusSmall
            color: button.down ? LuStyle.press : button.hovered ? LuStyle.hover : "transparent"
            LuFocusRing {
                control: button
                gap: 0
            }
        }
    }
    LuIcon {
        id: glyph
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: "kvm"
    }
    LuLabel {
        anchors.left: glyph.right
        anchors.leftMargin: LuStyle.space
        anchors.right: side.left
        anchors.rightMargin: LuStyle.space
        anchors.verticalCenter: parent.verticalCenter
        repeatsName: true
        text: row.widget.text
    }
    Row {
        id: side
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: LuStyle.spaceHalf
        LuComboBox {
            objectName: "kvmChoice"
            anchors.verticalCenter: parent.verticalCenter
            visible: !row.kvmOn
            text: row.widget.text
            model: row.widget.kvmList
            textOf: port => row.widget.portName(port)
            confirmedIndex: row.widget.kvmList.indexOf(row.widget.kvmSwitch?.kvmSwitch)
            onActivated: index => row.widget.chooseKvm(row.widget.kvmList[index])
        }
        LuLabel {
            anchors.verticalCenter: parent.verticalCenter
            visible: row.kvmOn
            kind: LuLabel.Value
            // The row keeps its name: a long text takes two lines.
            width: Math.min(implicitWidth, row.width - 120)
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.WordWrap
            text: row.enabledText
        }
        LuIcon {
            anchors.verticalCenter: parent.verticalCenter
            name: row.LayoutMirroring.enabled ? "back" : "forward"
            size: 14
            color: LuStyle.textDim
        }
    }
}
