// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."
import "eyecare"

LuAdvancedWidget {
    id: _self

    readonly property var nightProtection: monitor?.nightProtection ?? null
    readonly property bool off: nightProtection?.state === LuNightProtection.Off

    text: qsTr("Night Hours Protection")
    functionSupported: nightProtection?.nightProtectionEnable || false
    active: functionSupported && !off
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_night_owl.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_night_owl_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.nightProtection
            }
        }
    ]

    page: Component {
        LuPage {
            title: _self.text
            module: _self.nightProtection

            NightStateChoice {
                nightProtection: _self.nightProtection
            }
            LuLabel {
                width: parent.width
                kind: LuLabel.Caption
                wrapMode: Text.WordWrap
                text: qsTr("The Auto Switch automatically activates or deactivates Night Hours Protection based on ambient light detection, ensuring effortless and consistent eye care.")
            }
            LuSeparator { }
            LuPageGroup {
                enabled: !_self.off
                fadedOpacity: 0.3
                LuLabeledSlider {
                    objectName: "nightProtectionLevel"
                    text: qsTr("Level")
                    from: _self.off ? 0 : 1
                    to: 10
                    confirmedValue: _self.off ? 0 : _self.nightProtection?.level ?? 0
                    valueText: _self.off ? "-" : Number(slider.value).toLocaleString(Qt.locale(), "f", 0)
                    onMoved: value => _self.nightProtection.level = Math.round(value)
                }
            }
        }
    }
}
