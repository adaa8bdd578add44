// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Style

// A line icon of the shell, drawn in any colour at the size of the screen's pixels.
Image {
    id: icon

    property string name
    property color color: LuStyle.text
    property int size: 20

    width: LuStyle.scaled(size)
    height: LuStyle.scaled(size)
    sourceSize.width: Math.round(width * Screen.devicePixelRatio)
    sourceSize.height: Math.round(width * Screen.devicePixelRatio)
    source: name ? "image://lumen/" + name + "/" + hex(color) : ""
    Accessible.ignored: true

    function hex(value: color): string {
        const part = v => Math.round(v * 255).toString(16).padStart(2, "0")
        return part(value.a) + part(value.r) + part(value.g) + part(value.b)
    }
}
