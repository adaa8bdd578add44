// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Style

// The details of a widget: a column below a title. The shell draws the title, the surface and the way out.
//
// `module` makes one event of one visit: what the page changed is told of when it goes.
Column {
    id: page

    property string title
    // At the usual size of the desktop's font.
    property int pageWidth: 270
    readonly property int shownWidth: LuStyle.scaled(pageWidth)
    // Stands in the line of the title: the feature's switch, a help button.
    property Component titleControl: null
    // What this page leads to, and which of them is shown in its place, or null.
    property list<LuSubPage> subPages
    property LuSubPage openSubPage: null
    property var module: null
    property var snapshotOf: null

    spacing: LuStyle.spaceWide

    // The choices for the left and the right of a screen or desk, in the order of the reading: a page that is mirrored
    // has them at the same sides as any other.
    function sides(left: var, right: var): var {
        return LuContext.rightToLeft ? [right, left] : [left, right]
    }

    Component.onCompleted: {
        snapshotOf = module
        snapshotOf?.takePropertySnapshot()
    }
    Component.onDestruction: snapshotOf?.fireUpdateSettingEvent()
}
