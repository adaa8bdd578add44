// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A button that is a picture, in the forms that panels name. `text` names it and is its tooltip.
T.Button {
    id: control

    property url normalImage
    property url hoveredImage
    property url checkedImage
    property int imageSize: 24
    readonly property url image: {
        if (checked && String(checkedImage))
            return checkedImage
        return hovered && String(hoveredImage) ? hoveredImage : normalImage
    }

    implicitWidth: LuStyle.scaled(imageSize) + 2 * padding
    implicitHeight: LuStyle.scaled(imageSize) + 2 * padding
    padding: LuStyle.spaceHalf
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: LuStyle.dim(control)

    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.onPressAction: control.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        if (checkable) {
            toggle()
            toggled()
        }
        clicked()
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall + 1
        color: control.checked ? LuStyle.accent : control.down ? LuStyle.press : control.hovered ? LuStyle.hover : "transparent"
        border.width: LuStyle.highContrast ? 1 : 0
        border.color: LuStyle.outline
        LuFocusRing {
            control: control
            innerRadius: LuStyle.radiusSmall + 1
            gap: 0
        }
    }
    contentItem: Item {
        LuImage {
            anchors.centerIn: parent
            size: LuStyle.scaled(control.imageSize)
            drawing: control.image
        }
    }
    LuToolTip {
        visible: control.hovered && !control.down && text.length > 0
        text: control.text
    }
    Keys.onReturnPressed: control.assistivePress()
    Keys.onEnterPressed: control.assistivePress()
}
