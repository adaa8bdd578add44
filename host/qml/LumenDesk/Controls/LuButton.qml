// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A push button: plain, highlighted (the one that is meant), caution (what cannot be undone) or a link.
T.Button {
    id: control

    enum Kind { Normal, Highlighted, Caution, Link }

    property int kind: LuButton.Normal
    readonly property bool filled: kind === LuButton.Highlighted || kind === LuButton.Caution
    readonly property color fill: {
        switch (kind) {
        case LuButton.Highlighted:
            return hovered || down ? LuStyle.accentFillHover : LuStyle.accentFill
        case LuButton.Caution:
            return hovered || down ? LuStyle.cautionFillHover : LuStyle.cautionFill
        case LuButton.Link:
            return "transparent"
        default:
            return down ? LuStyle.fieldPress : hovered ? LuStyle.fieldHover : LuStyle.field
        }
    }

    implicitWidth: Math.max(kind === LuButton.Link ? 0 : 72, contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(LuStyle.controlHeight, contentItem.implicitHeight + topPadding + bottomPadding)
    horizontalPadding: kind === LuButton.Link ? LuStyle.spaceHalf : LuStyle.spaceWide
    verticalPadding: LuStyle.spaceHalf
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(control)

    Accessible.role: kind === LuButton.Link ? Accessible.Link : Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: control.fill
        border.width: LuStyle.highContrast && control.kind !== LuButton.Link ? 1 : 0
        border.color: LuStyle.outline
        scale: control.down ? 0.98 : 1
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
        }
    }
    contentItem: LuLabel {
        repeatsName: true
        text: control.text
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.weight: control.filled ? LuStyle.weightStrong : Font.Medium
        opacity: control.down && control.enabled && control.kind === LuButton.Link ? 0.7 : 1
        font.underline: control.kind === LuButton.Link && control.hovered
        color: control.kind === LuButton.Link ? LuStyle.accentText : control.filled ? LuStyle.accentInk : LuStyle.text
    }
    Keys.onReturnPressed: control.assistivePress()
    Keys.onEnterPressed: control.assistivePress()
}
