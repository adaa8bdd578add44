// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// On or off, at once. `text` names it for assistive software; the visible label stands beside it.
T.Switch {
    id: control

    // What the monitor holds, where that is known: a press shows at once and falls back if the monitor does not follow.
    property var confirmed

    implicitWidth: LuStyle.scaled(36)
    implicitHeight: LuStyle.scaled(20)
    padding: 0
    focusPolicy: Qt.StrongFocus
    checked: confirmed ?? false
    hoverEnabled: true
    opacity: LuStyle.dim(control)
    layer.enabled: opacity < 1 && LuStyle.drawsLayers(GraphicsInfo.api, Screen.devicePixelRatio)

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
        implicitWidth: LuStyle.scaled(36)
        implicitHeight: LuStyle.scaled(20)
        radius: height / 2
        color: control.checked ? (control.hovered ? LuStyle.accentHover : LuStyle.accent)
                               : control.hovered ? LuStyle.trackHover : LuStyle.track
        border.width: control.checked && !LuStyle.highContrast ? 0 : 1
        border.color: LuStyle.outline
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }

        Rectangle {
            readonly property int inset: 2
            x: inset + (parent.width - width - 2 * inset) * control.visualPosition
            y: inset
            width: parent.height - 2 * inset
            height: width
            radius: width / 2
            color: LuStyle.highContrast && control.checked ? LuStyle.accentInk : LuStyle.thumb
            border.width: 1
            border.color: control.checked ? "#14000000" : LuStyle.outline
            scale: control.pressed ? 0.9 : 1
            Behavior on x {
                enabled: !control.pressed
                NumberAnimation { duration: LuStyle.motion; easing.type: Easing.OutCubic }
            }
            Behavior on scale {
                NumberAnimation { duration: LuStyle.motion }
            }
        }

        LuFocusRing {
            control: control
            innerRadius: LuStyle.scaled(10)
        }
    }
    contentItem: Item { }
    Keys.onReturnPressed: control.assistivePress()
    Keys.onEnterPressed: control.assistivePress()
    LuConfirmedState {
        control: control
    }
}
