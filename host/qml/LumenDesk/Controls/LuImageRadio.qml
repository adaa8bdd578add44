// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// One choice of several, shown as a picture. `text` says what it chooses. Without a `checkedImage` the chosen one keeps
// its picture in a tinted box.
T.RadioButton {
    id: control

    // What the monitor holds, where that is known: a press shows at once and falls back if the monitor does not follow.
    property var confirmed
    property url normalImage
    property url checkedImage
    property int imageSize: 28
    property bool showText: true
    // Counts new contents of the same file.
    property int imageRevision: -1
    readonly property bool tinted: !String(checkedImage)
    readonly property url image: checked && String(checkedImage) ? checkedImage : normalImage

    implicitWidth: Math.max(indicator.width, showText ? label.implicitWidth : 0)
    implicitHeight: indicator.height + (showText ? label.implicitHeight + LuStyle.spaceHalf : 0)
    padding: 0
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
        x: (control.width - width) / 2
        implicitWidth: LuStyle.scaled(48)
        implicitHeight: LuStyle.scaled(48)
        radius: LuStyle.radius
        color: {
            if (control.checked)
                return control.tinted ? (control.hovered ? LuStyle.accentSoftHover : LuStyle.accentSoft)
                                      : control.hovered ? LuStyle.accentHover : LuStyle.accent
            return control.hovered ? LuStyle.glyphFillHover : LuStyle.glyphFill
        }
        border.width: control.checked && control.tinted ? 2 : LuStyle.highContrast ? 1 : 0
        border.color: control.checked && control.tinted ? LuStyle.accentText : LuStyle.outline
        scale: control.down ? 0.96 : 1
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        Behavior on scale {
            NumberAnimation { duration: LuStyle.motion }
        }
        LuImage {
            anchors.centerIn: parent
            size: LuStyle.scaled(control.imageSize)
            revision: control.imageRevision
            drawing: control.image
        }
        LuFocusRing {
            control: control
            innerRadius: LuStyle.radius
        }
    }
    contentItem: Item {
        LuLabel {
            id: label
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.bottom: parent.bottom
            visible: control.showText
            repeatsName: true
            width: Math.min(implicitWidth, control.width + 8)
            horizontalAlignment: Text.AlignHCenter
            kind: LuLabel.Caption
            color: control.checked ? LuStyle.text : LuStyle.textDim
            text: control.text
        }
    }
    LuToolTip {
        visible: control.hovered && !control.down && !control.showText
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
