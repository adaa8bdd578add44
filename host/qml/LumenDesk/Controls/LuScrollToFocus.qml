// SPDX-License-Identifier: Apache-2.0
import QtQuick

// Inside a view that scrolls: brings what the keyboard comes to into sight. A click moves nothing, since the pointer is
// where it is wanted.
Item {
    id: follower

    required property Flickable view
    // Any item: controls and text fields tell how they came to it, in classes of their own.
    readonly property var focused: view.Window.activeFocusItem
    // Room that is left around what is shown, for its ring.
    readonly property real margin: 12

    function holds(item: Item): bool {
        for (let each = item; each; each = each.parent) {
            if (each === view.contentItem)
                return true
        }
        return false
    }

    function follow(): void {
        if (!focused || focused.focusReason === Qt.MouseFocusReason || !holds(focused))
            return
        const place = focused.mapToItem(view.contentItem, 0, 0, focused.width, focused.height)
        const highest = Math.max(0, view.contentHeight - view.height)
        const least = place.y + place.height + margin - view.height
        const most = place.y - margin
        // Of what is higher than the view its beginning is shown.
        view.contentY = Math.max(0, Math.min(highest, most, Math.max(least, view.contentY)))
    }

    visible: false
    onFocusedChanged: follow()
}
