// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A choice from a list that opens below. `text` names it for assistive software.
T.ComboBox {
    id: control

    property string text

    implicitWidth: Math.max(72, Math.ceil(metrics.advanceWidth) + leftPadding + rightPadding + 1)
    implicitHeight: LuStyle.controlHeight
    leftPadding: mirrored ? 26 : LuStyle.space + 2
    rightPadding: mirrored ? LuStyle.space + 2 : 26
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    font.family: LuStyle.fontFamily
    font.pixelSize: LuStyle.fontBody
    opacity: enabled ? 1 : LuStyle.disabledOpacity

    Accessible.role: Accessible.ComboBox
    Accessible.name: text
    Accessible.onPressAction: control.popup.open()

    // Chooses the entry of that text, as a click on it does. False if there is none.
    function assistiveSet(wanted: var): bool {
        const index = find(String(wanted))
        if (index < 0)
            return false
        currentIndex = index
        activated(index)
        return true
    }

    TextMetrics {
        id: metrics
        font: control.font
        text: control.displayText
    }

    background: Rectangle {
        radius: LuStyle.radiusSmall
        color: control.hovered || control.down ? LuStyle.fieldHover : LuStyle.field
        border.width: LuStyle.highContrast ? 1 : 0
        border.color: LuStyle.outline
        Behavior on color {
            ColorAnimation { duration: LuStyle.motion }
        }
        LuFocusRing {
            control: control
        }
    }
    contentItem: LuLabel {
        repeatsName: true
        text: control.displayText
        verticalAlignment: Text.AlignVCenter
    }
    indicator: LuIcon {
        x: control.mirrored ? 8 : control.width - width - 8
        y: (control.height - height) / 2
        name: "down"
        size: 14
        color: LuStyle.textDim
    }
    delegate: T.ItemDelegate {
        id: entry

        required property int index

        width: ListView.view ? ListView.view.width : implicitWidth
        implicitWidth: entryLabel.implicitWidth + leftPadding + rightPadding
        implicitHeight: LuStyle.controlHeight
        horizontalPadding: LuStyle.space
        text: control.textAt(index)
        highlighted: control.highlightedIndex === index
        hoverEnabled: true
        Accessible.role: Accessible.ListItem
        Accessible.name: text
        background: Rectangle {
            radius: 6
            color: entry.highlighted ? LuStyle.hover : "transparent"
        }
        contentItem: LuLabel {
            id: entryLabel
            repeatsName: true
            text: entry.text
            verticalAlignment: Text.AlignVCenter
            font.weight: control.currentIndex === entry.index ? LuStyle.weightStrong : Font.Normal
            color: control.currentIndex === entry.index ? LuStyle.accentText : LuStyle.text
        }
    }
    popup: T.Popup {
        y: control.height + LuStyle.spaceHalf
        width: Math.max(control.width, 120)
        height: Math.min(contentItem.implicitHeight + 2 * padding, 280)
        padding: LuStyle.spaceHalf
        margins: LuStyle.space
        background: Rectangle {
            radius: LuStyle.radius
            color: LuStyle.raised
            border.width: 1
            border.color: LuStyle.line
        }
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: control.delegateModel
            currentIndex: control.highlightedIndex
            highlightMoveDuration: 0
            T.ScrollBar.vertical: LuScrollBar { }
        }
        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: LuStyle.motion }
        }
        exit: Transition {
            NumberAnimation { property: "opacity"; from: 1; to: 0; duration: LuStyle.motion }
        }
    }
}
