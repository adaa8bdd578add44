// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Widgets
import ".."
import "audio"

LuWidget {
    id: _self

    readonly property var volume: monitor?.volume ?? null
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

    VolumeRow {
        widget: _self
        state: _self.state
        onSettled: value => _self.volume.fireCustomEvent(LuDataCollection.ACT_VOLUME, "", LuDataCollection.SOURCE_USER,
                                                         [String(value), String(_self.volume.systemVolume)])
    }

    page: Component {
        VolumePage {
            title: _self.text
            monitor: _self.monitor
            state: _self.state
        }
    }
}
