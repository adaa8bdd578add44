// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// One option that is on or off, with its text.
T.CheckBox {
    id: control

    // What the monitor holds, where that is known: a press shows at once and falls back if the monitor does not follow.
    property var confirmed

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: Math.max(LuStyle.scaled(24), contentItem.implicitHeight)
    padding: 0
    leftPadding: mirrored ? 0 : indicator.width + spacing
    rightPadding: mirrored ? indicator.width + spacing : 0
    spacing: LuStyle.space
    focusPolicy: Qt.StrongFocus
    checked: confirmed ?? false
    hoverEnabled: true
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.CheckBox
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: control.assistivePress()
    Accessible.onToggleAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        if (checkable) {
            toggle()
            toggled()
        }
        clicked()
    }

    indicator: Rectangle {
        x: control.mirrored ? control.width - width : 0
        y: (control.height - height) / 2
        implicitWidth: LuStyle.scaled(18)
        implicitHeight: LuStyle.scaled(18)
        radius: 5
        color: control.checked ? (control.hovered ? LuStyle.accentHover : LuStyle.accent)
                               : control.hovered ? LuStyle.fieldHover : LuStyle.card
        scale: control.down ? 0.92 : 1
        Behavior on scale {
            NumberAnimation { duration: LuStyle.motion }
        }
        border.width: control.checked ? 0 : 1
        border.color: LuStyle.outline
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        LuIcon {
            anchors.centerIn: parent
            name: "check"
            size: 14
            color: LuStyle.accentInk
            visible: control.checked
        }
        LuFocusRing {
            control: control
            innerRadius: 5
        }
    }
    contentItem: LuLabel {
        repeatsName: true
        text: control.text
        verticalAlignment: Text.AlignVCenter
    }
    LuConfirmedState {
        control: control
    }
}
