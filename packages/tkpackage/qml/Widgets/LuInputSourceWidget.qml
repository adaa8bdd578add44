// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "inputs"

LuWidget {
    id: _self

    readonly property var inputSource: monitor?.inputSource ?? null
    readonly property var sources: inputSource?.inputSourceList ?? []
    readonly property string current: inputSource?.currentMainInputSource ?? ""
    // Nothing beside the main picture shows this computer.
    readonly property bool onlyInput: !(monitor?.pipPbp?.state || false)
    // The input that the user left here; empty when its picture is to be seen.
    property string home

    text: qsTr("Input source")
    targetWidth: 308
    targetHeight: 48

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.inputSource
            }
        }
    ]

    onCurrentChanged: {
        if (current === home)
            home = ""
    }
    onOnlyInputChanged: {
        if (!onlyInput)
            home = ""
    }

    function choose(source: string): void {
        if (source === current)
            return
        // The first of several changes left this computer's own input.
        if (onlyInput && !home)
            home = current
        inputSource.currentMainInputSource = source
    }

    Column {
        width: parent.width
        spacing: LuStyle.space
        Item {
            width: parent.width
            height: Math.max(32, _choice.height)
            LuIcon {
                id: _glyph
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                name: "input"
            }
            LuLabel {
                anchors.left: _glyph.right
                anchors.leftMargin: LuStyle.space
                anchors.right: _choice.left
                anchors.rightMargin: LuStyle.space
                anchors.verticalCenter: parent.verticalCenter
                repeatsName: _choice.visible
                text: qsTr("Input")
            }
            LuComboBox {
                id: _choice
                objectName: "inputSourceChoice"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: qsTr("Input")
                visible: _self.sources.length > 0
                model: _self.sources
                textOf: source => _self.translator.inputSource(source)
                confirmedIndex: _self.sources.indexOf(_self.current)
                onActivated: index => _self.choose(_self.sources[index])
            }
            // A panel has none, and of a monitor without a schema they are not known: nothing to choose from.
            LuLabel {
                objectName: "inputSourceAbsent"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                visible: !_choice.visible
                kind: LuLabel.Value
                text: _self.monitor?.isModelBuiltIn ? qsTr("Built-in") : qsTr("Unknown")
            }
        }
        PictureGoneNote {
            width: parent.width
            visible: _self.home.length > 0
            widget: _self
            home: _self.home
            onBackRequested: _self.inputSource.currentMainInputSource = _self.home
        }
    }
}
