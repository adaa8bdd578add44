// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// The shadow of a surface that lies above others: rings that fade outwards, which every renderer draws.
Item {
    id: shadow

    property real reach: LuStyle.elevationPopup
    property real cornerRadius: LuStyle.radius
    readonly property int rings: 6

    anchors.fill: parent
    z: -1
    visible: LuStyle.shadow.a > 0

    Repeater {
        model: shadow.rings
        Rectangle {
            required property int index
            readonly property real grown: shadow.reach * (index + 1) / shadow.rings

            x: -grown
            y: -grown + shadow.reach / 3
            width: shadow.width + 2 * grown
            height: shadow.height + 2 * grown
            radius: shadow.cornerRadius + grown
            color: LuStyle.shadow
            opacity: LuStyle.dark ? 0.05 : 0.022
        }
    }
}
