// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A small square button with an icon; `text` names it and is its tooltip.
T.Button {
    id: control

    property string iconName

    implicitWidth: LuStyle.scaled(28)
    implicitHeight: LuStyle.scaled(28)
    padding: 4
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    background: Rectangle {
        radius: 8
        color: control.down ? LuStyle.press : control.hovered ? LuStyle.hover : "transparent"
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
            innerRadius: 8
            gap: 0
        }
    }
    contentItem: Item {
        LuIcon {
            anchors.centerIn: parent
            name: control.iconName
            size: 20
        }
    }
    LuToolTip {
        visible: control.hovered && !control.down
        text: control.text
    }
    Keys.onReturnPressed: control.assistivePress()
    Keys.onEnterPressed: control.assistivePress()
}
