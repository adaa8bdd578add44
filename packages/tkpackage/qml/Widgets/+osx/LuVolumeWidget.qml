// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
// The file stands for the one of its name: paths are those of the folder above.
import ".."
import "audio"

// Where the system has keys for the volume of its own: they may set that of the monitor.
LuWidget {
    id: _self

    readonly property var volume: monitor?.volume ?? null
    // The keys of the system, or null: {state, triggered(monitors)}.
    property var keyboard: LuContext.volumeIKeyboard ?? null
    readonly property MonitorVolume state: MonitorVolume {
        volume: _self.volume
    }

    text: qsTr("Audio")
    functionSupported: volume?.volumeEnable || false
    targetWidth: 308
    targetHeight: 48

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.volume
            }
        }
    ]

    // The feedback on each monitor whose volume the keys have moved, by the monitor's id. It has no parent: a window below
    // one that is hidden stays hidden, too.
    property var feedback: ({})
    Component.onDestruction: Object.values(feedback).forEach(window => window.destroy())
    Component {
        id: _feedback
        LuPopupVolumeShortcut { }
    }
    Connections {
        target: _self.inMainWindow ? _self.keyboard : null
        function onTriggered(monitors: var): void {
            for (const monitor of monitors) {
                _self.feedback[monitor.id] = _self.feedback[monitor.id] ?? _feedback.createObject(null, { "monitor": monitor })
                _self.feedback[monitor.id].monitor = monitor
                _self.feedback[monitor.id].open()
            }
        }
    }

    VolumeRow {
        widget: _self
        state: _self.state
        onSettled: value => _self.volume.fireCustomEvent(LuDataCollection.ACT_VOLUME, "", LuDataCollection.SOURCE_USER,
                                                         [String(value), "n/a"])
    }

    page: Component {
        VolumePage {
            title: _self.text
            monitor: _self.monitor
            state: _self.state
            systemVolumeShown: false
        }
    }
    settingsInnerPage: Component {
        LuPage {
            title: qsTr("Audio")

            LuLabel {
                width: parent.width
                wrapMode: Text.WordWrap
                text: qsTr("Volume can be adjusted in main page at anytime. You can also expand the menu to choose the audio source.")
            }
            LuPageRow {
                text: qsTr("iKeyboard Control")
                description: qsTr("Enable iKeyboard Control to use the F11/F12 volume keys on Mac keyboard to adjust the volume of the selected audio output.")
                LuSwitch {
                    objectName: "volumeKeyboard"
                    text: qsTr("iKeyboard Control")
                    enabled: _self.keyboard !== null
                    confirmed: _self.keyboard?.state || false
                    onToggled: _self.keyboard.state = checked
                }
            }
        }
    }
}
