// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// One choice of several with its text.
T.RadioButton {
    id: control

    // What the monitor holds, where that is known: a press shows at once and falls back if the monitor does not follow.
    property var confirmed
    // What holds the group among which the arrow keys move.
    property alias group: arrows.group

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

    Accessible.role: Accessible.RadioButton
    Accessible.name: text
    Accessible.checkable: true
    Accessible.checked: checked
    Accessible.onPressAction: control.assistivePress()
    Accessible.onToggleAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        if (!checked && checkable) {
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
        radius: width / 2
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
        Rectangle {
            anchors.centerIn: parent
            width: LuStyle.scaled(7)
            height: width
            radius: width / 2
            color: LuStyle.accentInk
            scale: control.checked ? 1 : 0
            Behavior on scale {
                NumberAnimation { duration: LuStyle.motion }
            }
        }
        LuFocusRing {
            control: control
            innerRadius: LuStyle.scaled(9)
        }
    }
    contentItem: LuLabel {
        repeatsName: true
        text: control.text
        verticalAlignment: Text.AlignVCenter
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
