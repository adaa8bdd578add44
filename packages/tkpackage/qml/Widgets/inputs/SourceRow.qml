// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// One window of a layout: where it lies, its name, and the connector that it shows.
Item {
    id: row

    required property var widget
    // The visible label, which may be missing; `name` is what the choice is called.
    property string label
    property string name: label.replace(/\s*:\s*$/, "")
    property string picture
    property string current
    readonly property var sources: widget?.inputSource?.inputSourceList ?? []
    // A connector's name.
    signal chosen(string source)

    width: parent ? parent.width : implicitWidth
    implicitWidth: 202
    implicitHeight: 42

    LuImage {
        id: image
        size: 42
        Accessible.ignored: false
        Accessible.role: Accessible.Graphic
        Accessible.name: row.name
        drawing: LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(row.picture), row.widget, LuStyle.colorScheme)
    }
    LuLabel {
        id: caption
        anchors.left: image.right
        anchors.leftMargin: LuStyle.space
        anchors.right: choice.left
        anchors.rightMargin: LuStyle.space
        anchors.verticalCenter: parent.verticalCenter
        visible: text.length > 0
        repeatsName: true
        text: row.label
    }
    LuComboBox {
        id: choice
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: caption.visible ? Math.max(128, Math.min(implicitWidth, 150)) : parent.width - image.width - LuStyle.space
        text: row.name
        model: row.sources
        textOf: source => row.widget?.translator.inputSource(source) ?? source
        confirmedIndex: row.sources.indexOf(row.current)
        onActivated: index => row.chosen(row.sources[index])
    }
}
