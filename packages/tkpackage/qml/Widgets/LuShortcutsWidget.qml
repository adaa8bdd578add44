// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "automation"

LuBasicWidget {
    id: _self

    readonly property var shortcuts: monitor?.shortcuts ?? null

    text: qsTr("Shortcuts")
    functionSupported: shortcuts?.shortcutsEnable || false
    active: functionSupported && (shortcuts?.active || false)
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_shortcuts.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_shortcuts_active.svg", _self, LuStyle.colorScheme)

    function setActive(state: var): void {
        if (!shortcuts)
            return
        shortcuts.active = state
        if (!state)
            shortcuts.modifyShortcuts = false
    }

    // Tells on the monitor how far a step has gone. It has no parent: a window below one that is hidden stays hidden, too.
    property LuPopupBrightnessShortcut brightnessFeedback: null
    property LuPopupVolumeShortcut volumeFeedback: null
    Component.onDestruction: {
        brightnessFeedback?.destroy()
        volumeFeedback?.destroy()
    }
    Component {
        id: _brightnessFeedback
        LuPopupBrightnessShortcut {
            monitor: _self.monitor
        }
    }
    Component {
        id: _volumeFeedback
        LuPopupVolumeShortcut {
            monitor: _self.monitor
        }
    }
    Connections {
        target: _self.inMainWindow ? _self.shortcuts : null
        function onShortcutUsed(name: int): void {
            switch (name) {
            case LuShortcutAction.Brightness_Decrease:
            case LuShortcutAction.Brightness_Increase:
                _self.volumeFeedback?.close()
                _self.brightnessFeedback = _self.brightnessFeedback ?? _brightnessFeedback.createObject(null)
                _self.brightnessFeedback.open()
                break
            case LuShortcutAction.Volume_Decrease:
            case LuShortcutAction.Volume_Increase:
            case LuShortcutAction.Volume_Mute:
                // The keys do nothing while the system plays elsewhere.
                if (!_self.monitor?.volume?.isCurrentAudioOutput)
                    break
                _self.brightnessFeedback?.close()
                _self.volumeFeedback = _self.volumeFeedback ?? _volumeFeedback.createObject(null)
                _self.volumeFeedback.open()
                break
            }
        }
    }

    page: Component {
        LuPage {
            id: _page

            // Changes of combinations so far.
            property int revision: 0
            property var groups: []

            function refresh(): void {
                ++revision
                // Rows that stay keep their place and the focus.
                const now = _rows.groups()
                if (JSON.stringify(now) !== JSON.stringify(groups))
                    groups = now
            }

            title: _self.text
            pageWidth: 440
            titleControl: Component {
                LuSwitch {
                    objectName: "shortcutsSwitch"
                    text: _self.text
                    confirmed: _self.shortcuts?.active || false
                    onToggled: _self.setActive(checked)
                }
            }

            Component.onCompleted: refresh()
            Component.onDestruction: {
                if (_self?.shortcuts)
                    _self.shortcuts.modifyShortcuts = false
            }

            Connections {
                target: _self.shortcuts
                function onModifyShortcutsChanged(): void {
                    _page.refresh()
                }
                // Another row takes a choice over without ending it.
                function onPressKeyNameChanged(): void {
                    ++_page.revision
                }
                function onRepeatShortcutsChanged(): void {
                    if (_self.shortcuts.repeatShortcuts)
                        _refused.open()
                    else
                        _refused.close()
                }
            }
            ShortcutRows {
                id: _rows
                monitor: _self.monitor
                shortcuts: _self.shortcuts
                translator: _self.translator
            }
            LuPopupLoader {
                id: _refused
                LuWarningWindow {
                    text: qsTr("The key combination can not be used.")
                    message: qsTr("This shortcut cannot be used as it is currently being used by another function.")
                    onClosed: {
                        if (_self?.shortcuts)
                            _self.shortcuts.repeatShortcuts = false
                    }
                }
            }
            LuPopupLoader {
                id: _reset
                LuSelectionWindow {
                    title: qsTr("Reset All Shortcuts")
                    message: qsTr("To reset your keyboard shortcuts, click on the 'Reset' button below. Once confirmed, the app will immediately restore the default settings.")
                    confirmText: qsTr("Reset")
                    cancelText: qsTr("Cancel")
                    onConfirmed: {
                        _self.shortcuts.modifyShortcuts = false
                        _self.shortcuts.resetToDefaultSetting()
                    }
                }
            }

            LuAbsenceNote { needs: ["globalShortcuts", "copyPasteKeys"] }
            LuPageGroup {
                enabled: _self.active
                spacing: LuStyle.spaceLarge
                Repeater {
                    model: _page.groups
                    ShortcutGroup {
                        required property var modelData

                        shortcuts: _self.shortcuts
                        topic: modelData
                        revision: _page.revision
                    }
                }
            }
            LuButton {
                anchors.left: parent.left
                objectName: "resetShortcuts"
                text: qsTr("Reset All Shortcuts")
                onClicked: _reset.open()
            }
        }
    }
}
