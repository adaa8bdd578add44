// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Controls
import LumenDesk.Style

// The glyph and the name at the start of a row. Where the row has a page, a click on them opens it.
T.AbstractButton {
    id: title

    required property LuWidgetBase widget
    property string iconName
    property string description
    property bool strong: false
    // False: the glyph stands alone, and the text names it to assistive software.
    property bool labelVisible: true
    readonly property real glyphRoom: glyph.visible ? glyph.width + head.spacing : 0
    readonly property bool opens: widget.page !== null || widget.popupWindow !== null

    objectName: widget.widgetName + ".button"
    // From the whole of the words, whatever room they have now: the room may depend on it.
    implicitWidth: (labelVisible ? glyphRoom + words.implicitWidth : glyph.width) + 2 * LuStyle.spaceHalf
    implicitHeight: LuStyle.controlHeight
    hoverEnabled: opens
    focusPolicy: opens ? Qt.StrongFocus : Qt.NoFocus
    text: widget.text
    onClicked: {
        if (opens)
            widget.trigger()
    }

    Accessible.role: opens ? Accessible.Button : Accessible.StaticText
    Accessible.name: text
    Accessible.description: opens ? description : ""
    Accessible.onPressAction: title.assistivePress()

    // What a click does, for the return key, assistive software and scripts.
    function assistivePress(): void {
        clicked()
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: !title.opens ? "transparent" : title.down ? LuStyle.press : title.hovered ? LuStyle.hover : "transparent"
        LuFocusRing {
            control: title
        }
    }
    contentItem: Item {
        Row {
            id: head
            anchors.left: parent.left
            anchors.leftMargin: LuStyle.spaceHalf
            height: parent.height
            spacing: LuStyle.space
            LuIcon {
                id: glyph
                anchors.verticalCenter: parent.verticalCenter
                visible: title.iconName.length > 0
                name: title.iconName
            }
            LuLabel {
                id: words
                visible: title.labelVisible
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, Math.max(0, title.width - 2 * LuStyle.spaceHalf - title.glyphRoom))
                kind: title.strong ? LuLabel.Strong : LuLabel.Body
                repeatsName: true
                text: title.text
            }
        }
    }
    Keys.onReturnPressed: title.assistivePress()
    Keys.onEnterPressed: title.assistivePress()
}
