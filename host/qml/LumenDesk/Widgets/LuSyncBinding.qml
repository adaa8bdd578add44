// SPDX-License-Identifier: Apache-2.0
import QtQml

// Lets a module read its monitor back while the widget's monitor is the current one and the window shows.
LuBinding {
    required property LuWidgetBase widget
    property var module: null

    target: module
    property: "syncEnable"
    value: widget.isCurrentModel && widget.mainWindow?.visible || false
    defaultValue: false
}
