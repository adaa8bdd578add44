// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A short explanation that appears when the pointer rests on its parent.
T.ToolTip {
    id: control

    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + LuStyle.spaceHalf : 0
    implicitWidth: Math.min(LuStyle.scaled(240), contentItem.implicitWidth + leftPadding + rightPadding)
    implicitHeight: contentItem.implicitHeight + topPadding + bottomPadding
    horizontalPadding: LuStyle.space
    verticalPadding: LuStyle.spaceHalf
    margins: LuStyle.space
    delay: 600
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent | T.Popup.CloseOnReleaseOutsideParent

    background: LuSurface {
        radius: LuStyle.radiusSmall
        reach: 6
    }
    contentItem: LuLabel {
        repeatsName: true
        text: control.text
        font.pixelSize: LuStyle.fontCaption
        wrapMode: Text.Wrap
    }
}
