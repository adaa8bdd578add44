// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk

// Makes a popup over the main window when it is opened, and removes it when it has closed.
//
// A popup is an item or a window with open() and the signal closed().
QtObject {
    id: loader

    default property Component sourceComponent
    // The popup while it is open, else null.
    property var item: null
    readonly property bool opened: item !== null

    function open(): void {
        openWith({})
    }

    // @param properties first values of the popup's properties, such as a title.
    function openWith(properties: var): void {
        if (item)
            return
        const window = LuContext.mainWindow
        if (!window || !sourceComponent)
            return
        item = sourceComponent.createObject(window.contentItem, properties)
        if (!item) {
            console.warn("popup cannot be made:", sourceComponent.errorString())
            return
        }
        item.closed.connect(close)
        item.open()
    }

    function toggle(): void {
        if (item)
            close()
        else
            open()
    }

    function close(): void {
        const popup = item
        item = null
        if (popup) {
            // It goes with the next turn of the event loop and takes nothing until then.
            popup.visible = false
            popup.destroy()
        }
    }

    Component.onDestruction: close()
}
