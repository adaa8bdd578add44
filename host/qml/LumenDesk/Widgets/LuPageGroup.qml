// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// Controls of a page that are off together: disabled and faded as one.
Column {
    id: group

    property real fadedOpacity: LuStyle.disabledOpacity

    width: parent ? parent.width : implicitWidth
    spacing: LuStyle.spaceWide
    opacity: LuStyle.dim(group) < 1 ? fadedOpacity : 1
    // Faded as one picture: what lies behind a knob does not show through it.
    layer.enabled: opacity < 1 && LuStyle.drawsLayers(GraphicsInfo.api, Screen.devicePixelRatio)
}
