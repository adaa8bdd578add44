// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Style

// A drawing at the size of the screen's pixels. With `tint` its lines are drawn in that colour, at their own opacity.
Image {
    id: image

    // The drawing; `source` is what is loaded for it.
    property url drawing
    property color tint: "transparent"
    property int size: 48
    // Counts new contents of the same file: a picture that may change is not cached.
    property int revision: -1

    width: size
    height: size
    sourceSize.width: Math.round(width * Screen.devicePixelRatio)
    sourceSize.height: Math.round(height * Screen.devicePixelRatio)
    fillMode: Image.PreserveAspectFit
    cache: revision < 0
    source: {
        const address = String(drawing)
        if (!address || (tint.a === 0 && revision < 0))
            return drawing
        const part = v => Math.round(v * 255).toString(16).padStart(2, "0")
        const ink = part(tint.a) + part(tint.r) + part(tint.g) + part(tint.b)
        return "image://lumen/" + revision + "/" + ink + "/" + encodeURIComponent(address)
    }
    opacity: LuStyle.dim(image)
    Accessible.ignored: true
}
