// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets

// Two colour modes with the picture of what they mean between them.
LuPage {
    id: page

    required property var widget
    property string leftLabel
    property string rightLabel
    // Name of the picture, from which list is open.
    property var pictureOf: (leftOpen, rightOpen) => ""
    // Whether a mode may be the second one now.
    property var rightAllowed: mode => true

    readonly property var monitor: widget?.monitor ?? null
    readonly property var dualView: widget?.dualView ?? null
    readonly property var modes: plainList(monitor?.colorModeList)
    readonly property var seconds: modes.filter(mode => mode.dualViewEnable === LuVCPNode.FunctionOn)
    readonly property var current: monitor?.colorMode ?? null

    title: widget?.text ?? ""
    pageWidth: 377
    titleControl: Component {
        LuSwitch {
            objectName: "dualViewSwitch"
            text: page.title
            confirmed: page.widget?.active ?? false
            onToggled: page.widget.setActive(checked)
        }
    }

    function plainList(list: var): var {
        const result = []
        for (let i = 0; i < (list?.length ?? 0); ++i)
            result.push(list[i])
        return result
    }

    function isHdri(mode: var): bool {
        return /HDRi|^HDR dynamic/i.test(mode?.displayName ?? "")
    }

    // The rule of the left part, which the plain view's right part follows too.
    function leftAllowed(mode: var): bool {
        return isHdri(mode) || mode?.isHdr === current?.isHdr
    }

    LuPageGroup {
        enabled: page.widget?.active ?? false
        // The names beside the picture, the lists below it: a mode's name needs half the page. Each stands at the side
        // of the screen that it is for, whatever the direction of the texts.
        Item {
            id: parts
            readonly property real side: (width - LuStyle.spaceHalf) / 2
            width: parent.width
            height: 96 + firstChoice.height
            LuLabel {
                LayoutMirroring.enabled: false
                anchors.left: parent.left
                anchors.bottom: firstChoice.top
                anchors.bottomMargin: LuStyle.spaceHalf
                width: (parent.width - 96) / 2
                repeatsName: true
                text: page.leftLabel
            }
            LuLabel {
                LayoutMirroring.enabled: false
                anchors.right: parent.right
                anchors.bottom: secondChoice.top
                anchors.bottomMargin: LuStyle.spaceHalf
                width: (parent.width - 96) / 2
                horizontalAlignment: Text.AlignRight
                repeatsName: true
                text: page.rightLabel
            }
            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                y: -LuStyle.spaceHalf
                width: 96
                height: 96
                // The part of the screen whose list is open is transparent in the picture.
                Rectangle {
                    x: 14
                    y: 24
                    width: 68
                    height: 43
                    color: LuStyle.accent
                    visible: firstChoice.opened || secondChoice.opened
                }
                LuImage {
                    objectName: "dualViewPicture"
                    size: 96
                    Accessible.ignored: false
                    Accessible.role: Accessible.Graphic
                    Accessible.name: page.title
                    drawing: {
                        const name = page.pictureOf(firstChoice.opened, secondChoice.opened)
                        return name ? LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(name), page.widget, LuStyle.colorScheme) : ""
                    }
                }
            }
            LuComboBox {
                id: firstChoice
                objectName: "dualViewLeft"
                anchors.bottom: parent.bottom
                width: parts.side
                text: page.leftLabel.replace(/\s*:\s*$/, "")
                model: page.modes
                textOf: mode => page.widget?.translator.colorMode(mode) ?? ""
                enabledOf: mode => page.leftAllowed(mode)
                confirmedIndex: page.modes.indexOf(page.current)
                onActivated: index => page.monitor.colorMode = page.modes[index]
            }
            LuComboBox {
                id: secondChoice
                objectName: "dualViewRight"
                x: parent.width - width
                anchors.bottom: parent.bottom
                width: parts.side
                text: page.rightLabel.replace(/\s*:\s*$/, "")
                model: page.seconds
                textOf: mode => page.widget?.translator.dualViewMode(mode) ?? ""
                enabledOf: mode => page.rightAllowed(mode)
                confirmedIndex: page.seconds.indexOf(page.dualView?.currentDualMode ?? null)
                onActivated: index => page.dualView.currentDualMode = page.seconds[index]
            }
        }
    }
}
