// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Style

// The icon of an application, at the size of the screen's pixels; a generic one where it is not known.
Image {
    id: icon

    // As LuPlatformProgram knows it.
    property string appId
    property int size: 24

    width: LuStyle.scaled(size)
    height: LuStyle.scaled(size)
    sourceSize.width: Math.round(width * Screen.devicePixelRatio)
    sourceSize.height: Math.round(height * Screen.devicePixelRatio)
    fillMode: Image.PreserveAspectFit
    // An installation may bring another one.
    cache: false
    source: appId ? "image://programicon/" + encodeURIComponent(appId) : ""
    opacity: LuStyle.dim(icon)
    Accessible.ignored: true
}
