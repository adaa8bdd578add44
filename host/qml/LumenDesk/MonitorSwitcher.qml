// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// Shows the current monitor and, where there are several, lets the user choose another.
T.ComboBox {
    id: switcher

    readonly property var monitor: LuContext.currentMonitor
    readonly property bool several: count > 1
    // Changes whenever the facts of a monitor may have.
    readonly property int factsStamp: LuContext.factsStamp

    objectName: "monitorSwitcher"
    visible: monitor !== null
    implicitHeight: Math.max(44, facts.implicitHeight + name.implicitHeight + 6)
    model: LuContext.monitors
    textRole: "nickName"
    displayText: monitor?.nickName ?? ""
    enabled: several
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    onActivated: index => LuContext.currentMonitor = LuContext.monitors[index]

    Binding {
        target: switcher
        property: "currentIndex"
        value: LuContext.monitors.indexOf(LuContext.currentMonitor)
    }

    Accessible.role: Accessible.ComboBox
    Accessible.name: qsTr("Monitor")
    Accessible.description: displayText
    Accessible.onPressAction: switcher.popup.open()

    function assistiveSet(wanted: var): bool {
        const index = find(String(wanted))
        if (index < 0)
            return false
        LuContext.currentMonitor = LuContext.monitors[index]
        return true
    }

    background: Rectangle {
        radius: LuStyle.radius
        color: !switcher.several ? "transparent" : switcher.down ? LuStyle.press : switcher.hovered ? LuStyle.hover : "transparent"
        LuFocusRing {
            control: switcher
            innerRadius: LuStyle.radius
            gap: -2
        }
    }
    indicator: null
    contentItem: Item {
        MonitorThumb {
            id: picture
            anchors.left: parent.left
            anchors.leftMargin: LuStyle.space
            anchors.verticalCenter: parent.verticalCenter
            builtIn: switcher.monitor?.isModelBuiltIn ?? false
            upright: LuContext.isUpright(switcher.monitor, switcher.factsStamp)
        }
        Column {
            anchors.left: picture.right
            anchors.leftMargin: LuStyle.space + 2
            anchors.right: parent.right
            anchors.rightMargin: LuStyle.spaceHalf
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1
            Row {
                width: parent.width
                spacing: LuStyle.spaceHalf
                LuLabel {
                    id: name
                    width: Math.min(implicitWidth, parent.width - arrow.width - parent.spacing)
                    kind: LuLabel.Title
                    repeatsName: true
                    // A name that cannot be changed is not faded.
                    opacity: 1
                    text: switcher.displayText
                }
                LuIcon {
                    id: arrow
                    anchors.verticalCenter: parent.verticalCenter
                    name: "down"
                    size: 16
                    visible: switcher.several
                    color: LuStyle.textDim
                }
            }
            LuLabel {
                id: facts
                width: parent.width
                kind: LuLabel.Caption
                opacity: 1
                text: LuContext.monitorFacts(switcher.monitor, switcher.factsStamp)
                visible: text.length > 0
            }
        }
    }
    delegate: T.ItemDelegate {
        id: entry

        required property var modelData
        required property int index
        readonly property bool chosen: switcher.currentIndex === index

        width: ListView.view ? ListView.view.width : implicitWidth
        implicitHeight: 48
        hoverEnabled: true
        highlighted: switcher.highlightedIndex === index
        text: modelData?.nickName ?? ""
        Accessible.role: Accessible.ListItem
        Accessible.name: text
        background: Rectangle {
            radius: LuStyle.radiusSmall
            color: entry.highlighted ? LuStyle.hover : "transparent"
        }
        contentItem: Item {
            MonitorThumb {
                id: entryIcon
                anchors.left: parent.left
                anchors.leftMargin: LuStyle.space
                anchors.verticalCenter: parent.verticalCenter
                builtIn: entry.modelData?.isModelBuiltIn ?? false
                upright: LuContext.isUpright(entry.modelData, switcher.factsStamp)
                frame: entry.chosen ? LuStyle.accentText : LuStyle.text
            }
            Column {
                anchors.left: entryIcon.right
                anchors.leftMargin: LuStyle.space
                anchors.right: check.left
                anchors.verticalCenter: parent.verticalCenter
                LuLabel {
                    width: parent.width
                    repeatsName: true
                    kind: entry.chosen ? LuLabel.Strong : LuLabel.Body
                    text: entry.text
                }
                LuLabel {
                    width: parent.width
                    repeatsName: true
                    kind: LuLabel.Caption
                    text: LuContext.monitorFacts(entry.modelData, switcher.factsStamp)
                    visible: text.length > 0
                }
            }
            LuIcon {
                id: check
                anchors.right: parent.right
                anchors.rightMargin: LuStyle.space
                anchors.verticalCenter: parent.verticalCenter
                name: "check"
                size: 18
                color: LuStyle.accentText
                visible: entry.chosen
            }
        }
    }
    popup: T.Popup {
        y: switcher.height + LuStyle.spaceHalf
        width: switcher.width
        height: Math.min(contentItem.implicitHeight + 2 * padding, 320)
        padding: LuStyle.spaceHalf
        margins: LuStyle.space
        background: Rectangle {
            radius: LuStyle.radius
            color: LuStyle.raised
            border.width: 1
            border.color: LuStyle.line
        }
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: switcher.delegateModel
            currentIndex: switcher.highlightedIndex
            highlightMoveDuration: 0
            T.ScrollBar.vertical: LuScrollBar { }
        }
    }
}
