// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Templates as T
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

            T.AbstractButton {
                id: title
                objectName: "LuBrightnessWidget.button"
                anchors.left: parent.left
                anchors.leftMargin: -LuStyle.spaceHalf
                anchors.verticalCenter: parent.verticalCenter
                implicitWidth: Math.min(_head.implicitWidth + 2 * LuStyle.spaceHalf, parent.width - modes.width)
                implicitHeight: LuStyle.controlHeight
                enabled: _self.supported
                hoverEnabled: enabled
                focusPolicy: enabled ? Qt.StrongFocus : Qt.NoFocus
                text: _self.text
                onClicked: _self.trigger()
                Accessible.role: enabled ? Accessible.Button : Accessible.StaticText
                Accessible.name: text
                Accessible.description: enabled ? qsTr("Color Mode / Brightness") : ""
                Accessible.onPressAction: title.assistivePress()

                // What a click does, for the return key, assistive software and scripts.
                function assistivePress(): void {
                    clicked()
                }
                Keys.onReturnPressed: title.assistivePress()
                Keys.onEnterPressed: title.assistivePress()

                background: Rectangle {
                    radius: LuStyle.radiusSmall
                    color: title.down ? LuStyle.press : title.hovered ? LuStyle.hover : "transparent"
                    LuFocusRing {
                        control: title
                    }
                }
                contentItem: Item {
                    Row {
                        id: _head
                        x: LuStyle.spaceHalf
                        height: parent.height
                        spacing: LuStyle.space
                        LuIcon {
                            anchors.verticalCenter: parent.verticalCenter
                            name: "sun"
                        }
                        LuLabel {
                            anchors.verticalCenter: parent.verticalCenter
                            kind: LuLabel.Strong
                            repeatsName: true
                            text: _self.text
                        }
                    }
                }
            }
            ColorModeChoice {
                id: modes
                objectName: "colorModeChoice"
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - _head.implicitWidth - LuStyle.spaceLarge)
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
