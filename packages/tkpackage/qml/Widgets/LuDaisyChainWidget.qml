// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."

LuBasicWidget {
    id: _self

    readonly property var daisyChain: monitor?.daisyChain ?? null
    readonly property string aboutAddress: LuContext.env("knowledge.daisyChain.api", "")

    text: qsTr("Daisy Chain (MST)")
    functionSupported: daisyChain?.daisyChainEnable || false
    active: functionSupported && (daisyChain?.state || false)
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_DC.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_DC_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        Component {
            LuSyncBinding {
                widget: _self
                module: _self.daisyChain
            }
        }
    ]

    function setActive(state: var): void {
        if (daisyChain)
            daisyChain.state = state
    }

    page: Component {
        LuPage {
            title: _self.text
            pageWidth: 270
            titleControl: Component {
                LuSwitch {
                    objectName: "daisyChainSwitch"
                    text: _self.text
                    confirmed: _self.active
                    onToggled: _self.setActive(checked)
                }
            }

            Image {
                anchors.horizontalCenter: parent.horizontalCenter
                source: LuContext.resolvedResourceUrl("qrc:/images/packages/%1.svg".arg(_self.active ? "img_dv_action" : "img_dv_defaul"), _self, LuStyle.colorScheme)
                Accessible.role: Accessible.Graphic
                Accessible.name: _self.text
            }
            LuLabel {
                width: parent.width
                wrapMode: Text.WordWrap
                text: qsTr("One cable to easily connect all your monitors.")
            }
            LuButton {
                anchors.left: parent.left
                kind: LuButton.Link
                horizontalPadding: 0
                text: qsTr("About Daisy Chain (MST)")
                visible: _self.aboutAddress.length > 0
                onClicked: Qt.openUrlExternally(_self.aboutAddress)
            }
        }
    }
}
