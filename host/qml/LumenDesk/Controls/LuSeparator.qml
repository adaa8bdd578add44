// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Style

// A line between two groups of a page.
Rectangle {
    width: parent ? parent.width : 100
    height: 1
    color: LuStyle.line
    Accessible.ignored: true
}
