// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// The surface of a list, a dialog or a hint that lies above the window.
Rectangle {
    id: surface

    property real reach: LuStyle.elevationPopup

    radius: LuStyle.radius
    color: LuStyle.raised
    border.width: 1
    border.color: LuStyle.line

    LuShadow {
        reach: surface.reach
        cornerRadius: surface.radius
    }
}
