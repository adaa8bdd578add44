// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style

// The introduction that the current monitor's package gives: a page at a time, each with its animation.
Window {
    id: window

    required property LuWalkthroughBase walkthrough
    readonly property string system: LuContext.isWindows ? "windows" : LuContext.isMacOS ? "osx" : "linux"
    readonly property var pages: shownPages(walkthrough?.pages ?? [])
    readonly property var page: pages[index] ?? null
    readonly property bool last: index >= pages.length - 1
    property int index: 0
    // Frame to stand still at; negative lets the animation run.
    property real stillFrame: -1
    signal finished()

    objectName: "walkthroughWindow"
    title: qsTr("Welcome to Lumen Desk")
    width: 480
    height: content.implicitHeight
    minimumWidth: width
    maximumWidth: width
    color: LuStyle.background
    flags: Qt.Dialog
    onClosing: finished()

    LayoutMirroring.enabled: LuContext.rightToLeft
    LayoutMirroring.childrenInherit: true

    // Those for this system: a page that names none is for all.
    function shownPages(all: var): var {
        const list = []
        for (let i = 0; i < all.length; ++i) {
            const os = all[i].os
            const names = !os ? [] : Array.isArray(os) ? os : typeof os === "string" ? [os] : Array.from(os)
            if (names.filter(name => name.length > 0).length === 0 || names.includes(system))
                list.push(all[i])
        }
        return list
    }

    function next(): void {
        if (last)
            finished()
        else
            ++index
    }

    Column {
        id: content
        width: parent.width

        Rectangle {
            width: parent.width
            height: 300
            color: LuStyle.dark ? "#12151A" : "#E9EFF7"
            LuLottieItem {
                id: player
                anchors.fill: parent
                source: window.page?.animationSource ?? ""
                Accessible.role: Accessible.Graphic
                Accessible.name: window.page?.title ?? ""
                NumberAnimation on frame {
                    id: run
                    running: player.ready && window.visible && window.stillFrame < 0 && LuStyle.motion > 0
                    from: player.firstFrame
                    to: player.lastFrame
                    duration: player.duration
                    loops: Animation.Infinite
                }
                Binding {
                    target: player
                    property: "frame"
                    // Without motion the end of the story is shown.
                    value: window.stillFrame >= 0 ? window.stillFrame : player.lastFrame - 1
                    when: !run.running && player.ready
                    restoreMode: Binding.RestoreNone
                }
            }
        }
        Column {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: LuStyle.spaceHuge
            anchors.rightMargin: LuStyle.spaceHuge
            topPadding: LuStyle.spaceHuge
            bottomPadding: LuStyle.spaceHuge
            spacing: LuStyle.space
            LuLabel {
                width: parent.width
                kind: LuLabel.Title
                font.pixelSize: LuStyle.fontTitle + 3
                wrapMode: Text.WordWrap
                text: window.page?.title ?? ""
            }
            LuLabel {
                width: parent.width
                wrapMode: Text.WordWrap
                color: LuStyle.textDim
                lineHeight: 1.25
                text: window.page?.description ?? ""
            }
            LuButton {
                kind: LuButton.Link
                visible: (window.page?.tryItUrl ?? "").length > 0
                text: qsTr("Try it")
                onClicked: Qt.openUrlExternally(window.page.tryItUrl)
            }
            Item {
                width: parent.width
                height: buttons.height + LuStyle.spaceWide
                Row {
                    anchors.left: parent.left
                    anchors.verticalCenter: buttons.verticalCenter
                    spacing: LuStyle.space
                    Repeater {
                        model: window.pages.length
                        Rectangle {
                            required property int index
                            width: window.index === index ? 20 : 8
                            height: 8
                            radius: 4
                            color: window.index === index ? LuStyle.accent : LuStyle.track
                            border.width: LuStyle.highContrast ? 1 : 0
                            border.color: LuStyle.outline
                            Behavior on width {
                                NumberAnimation { duration: LuStyle.motion }
                            }
                        }
                    }
                }
                Row {
                    id: buttons
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    spacing: LuStyle.space
                    LuButton {
                        objectName: "walkthroughBack"
                        text: qsTr("Back")
                        visible: window.index > 0
                        onClicked: --window.index
                    }
                    LuButton {
                        objectName: "walkthroughNext"
                        kind: LuButton.Highlighted
                        text: window.last ? qsTr("Done") : qsTr("Next")
                        onClicked: window.next()
                    }
                }
            }
        }
    }
    Shortcut {
        sequences: [StandardKey.Cancel]
        onActivated: window.finished()
    }
}
