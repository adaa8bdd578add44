// SPDX-License-Identifier: Apache-2.0
import QtQuick

// A tile that starts something and has no state.
LuTile {
    id: shortcut

    readonly property LuWidgetImage imageSource: LuWidgetImage { }
    signal clicked()

    checkable: false
    widgetImage.normal: imageSource.normal
    widgetImage.hovered: imageSource.hovered

    function trigger(): void {
        if (popupWindow)
            popupWindow.open()
        else
            clicked()
    }
}
