// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.BrightnessSync
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import "picture"

LuWidget {
    id: _self

    readonly property var brightness: monitor?.brightness ?? null
    readonly property bool supported: monitor?.isModelSupported ?? false
    readonly property PictureRules rules: PictureRules {
        monitor: _self.monitor
    }

    text: qsTr("Brightness")
    functionSupported: true
    page: supported ? _page : null

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.brightness
            }
        },
        Component {
            LuBinding {
                target: _self.monitor
                property: "syncCurrentColorMode"
                value: _self.isCurrentModel && _self.mainWindow?.visible || false
                defaultValue: false
            }
        },
        Component {
            LuBinding {
                target: _self.brightness
                property: "backlightControlEnabled"
                value: _self.rules.backlightControlEnabled
            }
        },
        Component {
            LuBinding {
                target: _self.brightness
                property: "hardwareBrightnessEnable"
                value: _self.rules.brightnessEnabled
            }
        },
        Component {
            LuBinding {
                target: _self.brightness?.softwareDimming ?? null
                property: "enabled"
                value: _self.rules.dimmingEnabled
            }
        }
    ]

    Component.onCompleted: LuBrightnessSyncManager.brightnessSync.connectSoftwareDimming(monitor)

    Column {
        width: parent.width
        spacing: LuStyle.spaceHalf

        Item {
            width: parent.width
            height: Math.max(title.implicitHeight, LuStyle.controlHeight)

            LuRowTitle {
                id: title
                anchors.left: parent.left
                anchors.leftMargin: -LuStyle.spaceHalf
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - (modes.visible ? modes.width : 0))
                widget: _self
                iconName: "sun"
                strong: true
                description: qsTr("Color Mode / Brightness")
            }
            ColorModeChoice {
                id: modes
                objectName: "colorModeChoice"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - title.implicitWidth - LuStyle.spaceLarge)
                visible: _self.supported && count > 0
                monitor: _self.monitor
            }
        }
        BrightnessSliders {
            rules: _self.rules
            owner: _self
        }
    }

    Component {
        id: _page
        BrightnessPage {
            monitor: _self.monitor
            rules: _self.rules
            owner: _self
        }
    }
}
