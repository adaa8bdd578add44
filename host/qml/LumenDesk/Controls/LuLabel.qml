// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A text of the window. It is a label for assistive software too, unless it only repeats a control's name.
Text {
    id: label

    enum Kind { Body, Caption, Title, Strong, Value, Notice, Display }

    property int kind: LuLabel.Body
    property bool repeatsName: false

    color: {
        switch (kind) {
        case LuLabel.Caption:
        case LuLabel.Value:
            return LuStyle.textDim
        case LuLabel.Notice:
            return LuStyle.notice
        default:
            return LuStyle.text
        }
    }
    font.family: LuStyle.fontFamily
    font.pixelSize: {
        switch (kind) {
        case LuLabel.Caption:
        case LuLabel.Notice:
            return LuStyle.fontCaption
        case LuLabel.Title:
            return LuStyle.fontTitle
        case LuLabel.Display:
            return LuStyle.fontDisplay
        default:
            return LuStyle.fontBody
        }
    }
    font.weight: kind === LuLabel.Title || kind === LuLabel.Strong || kind === LuLabel.Display ? LuStyle.weightStrong
                                                                                               : Font.Normal
    textFormat: Text.PlainText
    elide: Text.ElideRight
    horizontalAlignment: Text.AlignLeft
    lineHeight: kind === LuLabel.Caption || kind === LuLabel.Notice ? 1.15 : 1
    opacity: LuStyle.dim(label)

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: repeatsName || text.length === 0
}
