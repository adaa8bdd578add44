// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A short word in a frame: a key of a combination, a state beside a name. A warning is yellow and has no frame.
Rectangle {
    id: chip

    enum Kind { Normal, Accent, Warning }

    property string text
    property int kind: LuChip.Normal
    property bool repeatsName: true

    implicitWidth: Math.max(implicitHeight, label.implicitWidth + 2 * 6)
    implicitHeight: label.implicitHeight + 2 * 3
    radius: 5
    color: {
        switch (kind) {
        case LuChip.Accent:
            return LuStyle.accentFill
        case LuChip.Warning:
            return LuStyle.warningFill
        default:
            return LuStyle.field
        }
    }
    border.width: kind === LuChip.Normal ? 1 : 0
    border.color: LuStyle.highContrast ? LuStyle.outline : LuStyle.line

    LuLabel {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, chip.width - 6)
        horizontalAlignment: Text.AlignHCenter
        repeatsName: chip.repeatsName
        kind: LuLabel.Caption
        lineHeight: 1
        font.weight: Font.Medium
        color: {
            switch (chip.kind) {
            case LuChip.Accent:
                return LuStyle.accentInk
            case LuChip.Warning:
                return LuStyle.warningInk
            default:
                return LuStyle.text
            }
        }
        text: chip.text
    }
}
