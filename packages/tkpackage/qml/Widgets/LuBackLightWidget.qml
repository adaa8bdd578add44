// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "eyecare"

LuBasicWidget {
    id: _self

    readonly property var backLight: monitor?.backLight ?? null
    readonly property var abSetting: monitor?.abSetting ?? null
    readonly property bool bundled: abSetting?.abSensorEnable || false

    text: qsTr("BackGlow")
    functionSupported: backLight?.backLightEnable || false
    active: functionSupported && backLight?.state !== LuBackLight.Off
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_backlight.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_backlight_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.backLight
            }
        }
    ]

    page: Component {
        LuPage {
            id: _page

            title: _self.text
            module: _self.backLight

            BackLightStateChoice {
                backLight: _self.backLight
                abSetting: _self.abSetting
            }
            LuLabel {
                width: parent.width
                visible: _self.bundled
                kind: LuLabel.Caption
                wrapMode: Text.WordWrap
                text: qsTr("Auto Dimming automatically adjusts BackGlow's brightness based on ambient light detection, safeguarding your eyes in low-light environments. Auto Dimming can only be used when A.B. Gen2 is enabled.")
            }
            LuSeparator { }
            BackLightControls {
                backLight: _self.backLight
            }
            LuSeparator { }
            LuPageLink {
                page: _page
                target: _more
                description: _self.bundled ? qsTr("Bundling of Color Mode") + " · " + qsTr("Non-stop Mode") : qsTr("Non-stop Mode")
            }
            subPages: [
                LuSubPage {
                    id: _more
                    title: qsTr("More")

                    Column {
                        width: parent.width
                        visible: _self.bundled
                        spacing: LuStyle.spaceHalf
                        LuPageRow {
                            text: qsTr("Bundling of Color Mode")
                            strong: true
                        }
                        LuLabel {
                            width: parent.width
                            kind: LuLabel.Caption
                            wrapMode: Text.WordWrap
                            text: qsTr("The system will automatically switch to the bundled BackGlow settings when you change the color mode.")
                        }
                    }
                    LuSeparator {
                        visible: _self.bundled
                    }
                    Column {
                        width: parent.width
                        spacing: LuStyle.spaceHalf
                        LuPageRow {
                            text: qsTr("Non-stop Mode")
                            strong: true
                            LuSwitch {
                                objectName: "backLightNonStop"
                                text: qsTr("Non-stop Mode")
                                confirmed: _self.backLight?.nonStopMode || false
                                onToggled: _self.backLight.nonStopMode = checked
                            }
                        }
                        LuLabel {
                            width: parent.width
                            kind: LuLabel.Caption
                            wrapMode: Text.WordWrap
                            text: qsTr("To activate BackGlow while the monitor is in sleep mode, you can enable the non-stop mode.")
                        }
                    }
                }
            ]
        }
    }
}
