// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// The widgets of the current monitor, in their places: which of them the window shows, and in which order.
Column {
    id: list

    // Items with widgetName, text, placement, widgetHidable and functionSupported.
    property var widgets: []
    readonly property var groups: [
        { "placement": "row", "title": qsTr("Rows") },
        { "placement": "tile", "title": qsTr("Tiles") },
        { "placement": "wide", "title": qsTr("Wide tiles") },
        { "placement": "footer", "title": qsTr("At the bottom") }
    ]
    readonly property var names: widgets.map(widget => widget.widgetName)

    spacing: LuStyle.spaceLarge

    // The supported widgets of a place in the user's order; `stamp` is what the answer depends on.
    function members(placement: string, stamp: var): var {
        const here = widgets.filter(widget => widget.functionSupported && widget.placement === placement)
        const byName = name => here.find(widget => widget.widgetName === name)
        return LuPreferences.arranged(names).map(byName).filter(widget => widget !== undefined)
    }

    function move(widget: var, step: int): void {
        const group = members(widget.placement, null).map(each => each.widgetName)
        const place = group.indexOf(widget.widgetName) + step
        if (!LuPreferences.moveWidget(widget.widgetName, place, group, names))
            return
        // The entries are made anew: the one that was moved keeps the keyboard.
        Qt.callLater(focusOn, widget.widgetName, step)
    }

    function focusOn(widgetName: string, step: int): void {
        for (let i = 0; i < blocks.count; ++i)
            tell(blocks.itemAt(i), widgetName, step)
    }

    function tell(item: var, widgetName: string, step: int): void {
        item?.focusOn(widgetName, step)
    }

    component Entry: Item {
        id: entry

        required property var modelData
        required property int index
        property int count: 0
        readonly property string widgetName: modelData?.widgetName ?? ""
        readonly property string label: modelData?.text ?? ""
        readonly property bool hiddenByUser: LuPreferences.hiddenWidgets.includes(widgetName)

        objectName: "arrange." + widgetName
        implicitHeight: Math.max(LuStyle.controlHeight + LuStyle.space, name.implicitHeight + LuStyle.space)

        function focusOn(name: string, step: int): void {
            if (name !== widgetName)
                return
            const button = step < 0 ? up : down
            const target = button.enabled ? button : step < 0 ? down : up
            target.forceActiveFocus(Qt.TabFocusReason)
        }

        LuLabel {
            id: name
            anchors.left: parent.left
            anchors.right: buttons.left
            anchors.rightMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            wrapMode: Text.WordWrap
            repeatsName: true
            text: entry.label
            opacity: entry.hiddenByUser ? LuStyle.disabledOpacity : 1
        }
        Row {
            id: buttons
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: LuStyle.spaceHalf
            LuIconButton {
                id: up
                objectName: entry.widgetName + ".up"
                anchors.verticalCenter: parent.verticalCenter
                iconName: "up"
                text: qsTr("Move %1 forward").arg(entry.label)
                enabled: entry.index > 0
                onClicked: list.move(entry.modelData, -1)
            }
            LuIconButton {
                id: down
                objectName: entry.widgetName + ".down"
                anchors.verticalCenter: parent.verticalCenter
                iconName: "down"
                text: qsTr("Move %1 back").arg(entry.label)
                enabled: entry.index < entry.count - 1
                onClicked: list.move(entry.modelData, 1)
            }
            Item {
                width: LuStyle.spaceHalf
                height: 1
            }
            LuSwitch {
                objectName: entry.widgetName + ".shown"
                anchors.verticalCenter: parent.verticalCenter
                text: entry.label
                enabled: entry.modelData?.widgetHidable ?? false
                confirmed: !entry.hiddenByUser
                onToggled: LuPreferences.setWidgetHidden(entry.widgetName, !checked)
            }
        }
    }

    component Block: Column {
        id: block

        required property var modelData
        readonly property var entries: list.members(modelData.placement, LuPreferences.widgetOrder)

        width: list.width
        spacing: LuStyle.space
        visible: entries.length > 0

        function focusOn(widgetName: string, step: int): void {
            for (let i = 0; i < rows.count; ++i)
                list.tell(rows.itemAt(i), widgetName, step)
        }

        LuLabel {
            width: parent.width
            kind: LuLabel.Strong
            text: block.modelData.title
        }
        Rectangle {
            width: parent.width
            height: lines.implicitHeight + LuStyle.space
            radius: LuStyle.radius
            color: LuStyle.card
            border.width: 1
            border.color: LuStyle.line
            Column {
                id: lines
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.leftMargin: LuStyle.spaceWide
                anchors.rightMargin: LuStyle.spaceWide
                anchors.verticalCenter: parent.verticalCenter
                Repeater {
                    id: rows
                    model: block.entries
                    Entry {
                        width: lines.width
                        count: block.entries.length
                    }
                }
            }
        }
    }

    Repeater {
        id: blocks
        model: list.groups
        Block { }
    }
    LuButton {
        anchors.left: parent.left
        objectName: "resetArrangement"
        text: qsTr("Reset to the original order")
        enabled: LuPreferences.widgetOrder.length > 0 || LuPreferences.hiddenWidgets.length > 0
        onClicked: LuPreferences.resetArrangement()
    }
}
