// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Style

// The round picture of a tile: filled while the feature is active.
Rectangle {
    id: disc

    required property LuWidgetImage images
    property url image
    property bool active: false
    property bool hovered: false
    property bool pressed: false
    readonly property bool lit: hovered || pressed

    implicitWidth: LuStyle.tile
    implicitHeight: LuStyle.tile
    width: LuStyle.tile
    height: LuStyle.tile
    radius: width / 2
    color: {
        if (active)
            return lit ? LuStyle.accentHover : LuStyle.accent
        if (images.ownDisc && !LuStyle.highContrast)
            return "transparent"
        return lit ? LuStyle.glyphFillHover : LuStyle.glyphFill
    }
    border.width: LuStyle.highContrast ? 1 : 0
    border.color: LuStyle.outline
    scale: pressed ? 0.94 : 1
    Behavior on color {
        ColorAnimation { duration: LuStyle.motion }
    }
    Behavior on scale {
        NumberAnimation { duration: LuStyle.motion; easing.type: Easing.OutCubic }
    }

    LuImage {
        anchors.centerIn: parent
        size: disc.images.ownDisc ? LuStyle.tile : LuStyle.glyphSize
        drawing: disc.image
        revision: disc.images.revision
        // A picture drawn for a light surface takes the dark one's ink.
        tint: disc.images.ownDisc && LuStyle.dark ? "#FFFFFFFF" : "#00000000"
    }
}
