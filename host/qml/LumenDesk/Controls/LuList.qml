// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk.Style

// A framed list with selection that grows to `maximumHeight` and then scrolls. Its delegate is a LuListRow, whose
// `index` is required. An empty list shows `placeholder` as one disabled row.
FocusScope {
    id: list

    property string text
    property string placeholder
    property real maximumHeight: 251
    property alias model: view.model
    property alias delegate: view.delegate
    property alias currentIndex: view.currentIndex
    readonly property alias count: view.count
    readonly property alias view: view
    readonly property bool hasSelection: currentIndex >= 0 && currentIndex < count
    // Return or a double step of the keyboard on the selected row, and its removal.
    signal activated(int index)
    signal removeRequested(int index)

    width: parent ? parent.width : implicitWidth
    implicitWidth: 200
    implicitHeight: Math.min(maximumHeight, 2 * LuStyle.spaceHalf + (view.count > 0 ? view.contentHeight : empty.implicitHeight))
    activeFocusOnTab: view.count > 0
    opacity: LuStyle.dim(list)

    Accessible.role: Accessible.List
    Accessible.name: text

    Keys.onDownPressed: view.incrementCurrentIndex()
    Keys.onUpPressed: view.decrementCurrentIndex()
    Keys.onReturnPressed: {
        if (list.hasSelection)
            list.activated(list.currentIndex)
    }
    Keys.onDeletePressed: {
        if (list.hasSelection)
            list.removeRequested(list.currentIndex)
    }

    Rectangle {
        anchors.fill: parent
        radius: LuStyle.radius
        color: LuStyle.card
        border.width: 1
        border.color: LuStyle.highContrast ? LuStyle.outline : LuStyle.line
        LuFocusRing {
            control: list
            innerRadius: LuStyle.radius
            gap: -1
            shown: list.activeFocus && view.activeFocus
        }
    }
    ListView {
        id: view
        anchors.fill: parent
        anchors.margins: LuStyle.spaceHalf
        focus: true
        clip: true
        spacing: 1
        currentIndex: -1
        keyNavigationEnabled: false
        highlightMoveDuration: LuStyle.motion
        boundsBehavior: Flickable.StopAtBounds
        // Rows are cheap: none is made ahead and late.
        cacheBuffer: 0
        interactive: contentHeight > height
        T.ScrollBar.vertical: LuScrollBar { }
    }
    LuListRow {
        id: empty
        x: LuStyle.spaceHalf
        y: LuStyle.spaceHalf
        width: parent.width - 2 * LuStyle.spaceHalf
        visible: view.count === 0 && text.length > 0
        enabled: false
        text: list.placeholder
    }
}
