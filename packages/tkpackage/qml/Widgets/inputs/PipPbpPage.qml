// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "../.."

// The layout, what each of its windows shows, and the exchange of the windows.
LuPage {
    id: page

    required property var widget
    readonly property var pipPbp: widget?.pipPbp ?? null
    readonly property bool active: widget?.active ?? false
    readonly property int mode: pipPbp?.mode ?? LuPipPbp.PIP
    readonly property var modes: [
        { "mode": LuPipPbp.PIP, "enabled": pipPbp?.pipEnable, "picture": "ico48_pip", "name": qsTr("Picture in picture") },
        { "mode": LuPipPbp.PBP, "enabled": pipPbp?.pbpEnable, "picture": "ico48_pbp_a", "name": qsTr("Half and half") },
        { "mode": LuPipPbp.PBP4, "enabled": pipPbp?.pbp4Enable, "picture": "ico48_pbp_c", "name": qsTr("Four windows") },
        { "mode": LuPipPbp.PBP5_9, "enabled": pipPbp?.pbp5_9Enable, "picture": "ico48_pbp_b", "name": qsTr("16 : 9 and 9 : 5") },
        { "mode": LuPipPbp.PBP2_1, "enabled": pipPbp?.pbp2_1Enable, "picture": "ico48_pbp_b", "name": qsTr("Two to one") },
        { "mode": LuPipPbp.PBP3_1, "enabled": pipPbp?.pbp3_1Enable, "picture": "ico48_pbp_d", "name": qsTr("Three to one") }
    ].filter(entry => entry.enabled)
    readonly property string modeName: modes.find(entry => entry.mode === mode)?.name ?? ""

    title: widget?.text ?? ""
    module: widget?.pipPbp ?? null
    pageWidth: mode === LuPipPbp.PBP4 ? 372 : 296
    titleControl: Component {
        LuSwitch {
            objectName: "pipPbpSwitch"
            text: page.title
            confirmed: page.active
            checkable: !(page.widget?.smartKvmWarning ?? false)
            onToggled: page.widget.setActive(checked)
            onClicked: {
                if (page.widget?.smartKvmWarning)
                    page.widget.askToTurnOff()
            }
        }
    }

    Column {
        width: parent.width
        spacing: LuStyle.space
        Flow {
            width: parent.width
            spacing: LuStyle.space
            Accessible.role: Accessible.Grouping
            Accessible.name: page.title
            Repeater {
                model: page.modes
                LuImageRadio {
                    required property var modelData

                    text: modelData.name
                    showText: false
                    imageSize: 48
                    confirmed: page.mode === modelData.mode
                    normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(modelData.picture), page.widget, LuStyle.colorScheme)
                    onToggled: page.widget.chooseMode(modelData.mode)
                }
            }
        }
        LuLabel {
            width: parent.width
            kind: LuLabel.Caption
            visible: text.length > 0
            text: page.modeName
        }
    }
    Loader {
        id: windows
        width: parent.width
        active: page.active
        visible: active
        sourceComponent: page.mode === LuPipPbp.PBP4 ? four : two
    }
    PipOptions {
        width: parent.width
        widget: page.widget
        visible: page.active && page.mode === LuPipPbp.PIP
    }
    Column {
        width: parent.width
        spacing: LuStyle.space
        visible: page.active && (page.pipPbp?.isPbpMode ?? false) && (page.pipPbp?.pbpAudioSourceEnable ?? false)
        LuLabel {
            anchors.left: parent.left
            kind: LuLabel.Strong
            text: qsTr("Audio Source")
        }
        Row {
            anchors.left: parent.left
            spacing: LuStyle.spaceLarge
            Accessible.role: Accessible.Grouping
            Accessible.name: qsTr("Audio Source")
            Repeater {
                model: page.sides({ "window": LuPipPbp.AudioSourceMainWindow, "name": qsTr("Left") },
                                  { "window": LuPipPbp.AudioSourceSubWindow, "name": qsTr("Right") })
                LuRadio {
                    required property var modelData

                    text: modelData.name
                    confirmed: page.pipPbp?.pbpAudioSource === modelData.window
                    onToggled: page.pipPbp.pbpAudioSource = modelData.window
                }
            }
        }
    }
    LuSeparator {
        visible: swap.visible
    }
    LuButton {
        id: swap
        objectName: "pipPbpSwap"
        width: parent.width
        visible: page.active && (page.pipPbp?.swapPipPbpEnable ?? false)
        text: qsTr("Swap")
        onClicked: {
            page.pipPbp.swapPipPbp()
            page.widget.checkMonitorList()
        }
    }

    Component {
        id: two
        TwoWindows {
            widget: page.widget
        }
    }
    Component {
        id: four
        FourWindows {
            widget: page.widget
        }
    }
}
