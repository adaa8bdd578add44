// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// One colour of several to choose from. `text` is the colour's name.
T.RadioButton {
    id: control

    property var confirmed
    property color swatch

    implicitWidth: LuStyle.scaled(28)
    implicitHeight: LuStyle.scaled(28)
    padding: 0
    checked: confirmed ?? false
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: control.assistivePress()
    Accessible.onToggleAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        if (!checked) {
            toggle()
            toggled()
        }
        clicked()
    }

    indicator: Rectangle {
        x: (control.width - width) / 2
        y: (control.height - height) / 2
        width: LuStyle.scaled(28)
        height: width
        radius: width / 2
        color: "transparent"
        border.width: control.checked ? 2 : 0
        border.color: LuStyle.text
        Rectangle {
            anchors.centerIn: parent
            width: LuStyle.scaled(control.checked ? 20 : 24) + (control.down ? -2 : control.hovered ? 1 : 0)
            height: width
            radius: width / 2
            color: control.swatch
            border.width: 1
            border.color: LuStyle.outline
            Behavior on width {
                NumberAnimation { duration: LuStyle.motion }
            }
        }
        LuFocusRing {
            control: control
            innerRadius: LuStyle.scaled(14)
        }
    }
    contentItem: null
    LuToolTip {
        visible: control.hovered && !control.down
        text: control.text
    }
    Keys.forwardTo: [arrows]
    LuChoiceKeys {
        id: arrows
        control: control
    }
    LuConfirmedState {
        control: control
    }
}
