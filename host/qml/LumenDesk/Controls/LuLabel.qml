// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A text of the window. It is a label for assistive software too, unless it only repeats a control's name.
Text {
    id: label

    enum Kind { Body, Caption, Title, Strong, Value }

    property int kind: LuLabel.Body
    property bool repeatsName: false

    color: kind === LuLabel.Caption || kind === LuLabel.Value ? LuStyle.textDim : LuStyle.text
    font.family: LuStyle.fontFamily
    font.pixelSize: {
        switch (kind) {
        case LuLabel.Caption:
            return LuStyle.fontCaption
        case LuLabel.Title:
            return LuStyle.fontTitle
        default:
            return LuStyle.fontBody
        }
    }
    font.weight: kind === LuLabel.Title || kind === LuLabel.Strong ? LuStyle.weightStrong : Font.Normal
    textFormat: Text.PlainText
    elide: Text.ElideRight
    lineHeight: kind === LuLabel.Caption ? 1.15 : 1

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: repeatsName || text.length === 0
}
