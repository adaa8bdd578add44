// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."

LuBasicWidget {
    id: _self

    readonly property var autoPivot: monitor?.autoPivot ?? null

    text: qsTr("Auto Pivot")
    functionSupported: autoPivot?.autoPivotEnable || false
    active: functionSupported && (autoPivot?.state || false)
    deactivateOnRemoved: true
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_active.svg", _self, LuStyle.colorScheme)

    bindings: [
        // Not tied to the window: the desktop follows the monitor's turn while the window is hidden, too.
        Component {
            LuBinding {
                target: _self.autoPivot
                property: "syncEnable"
                value: _self.isCurrentModel
                defaultValue: false
            }
        }
    ]

    function setActive(state: var): void {
        if (autoPivot)
            autoPivot.state = state
    }

    page: Component {
        LuPage {
            id: _page

            title: qsTr("Screen pivot")

            Component.onCompleted: _self.autoPivot?.takePropertySnapshot()
            Component.onDestruction: _self?.autoPivot?.fireUpdateSettingEvent()

            LuAbsenceNote { needs: ["rotation"] }
            LuPageRow {
                text: qsTr("Auto Pivot")
                strong: true
                LuSwitch {
                    objectName: "autoPivotSwitch"
                    text: qsTr("Auto Pivot")
                    confirmed: _self.autoPivot?.state || false
                    onToggled: _self.setActive(checked)
                }
            }
            LuLabel {
                width: parent.width
                kind: LuLabel.Strong
                wrapMode: Text.WordWrap
                text: qsTr("Screen pivot")
            }
            Row {
                width: parent.width
                spacing: Math.floor((width - 4 * LuStyle.scaled(48)) / 3)
                Accessible.role: Accessible.Grouping
                Accessible.name: qsTr("Screen pivot")
                Repeater {
                    model: [0, 90, 180, 270]
                    LuImageRadio {
                        required property int modelData

                        text: "%1°".arg(modelData)
                        width: LuStyle.scaled(48)
                        enabled: !_self.active
                        confirmed: _self.autoPivot?.currentPivot === modelData
                        normalImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_%1.svg".arg(modelData), _self, LuStyle.colorScheme)
                        checkedImage: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_%1_active.svg".arg(modelData), _self, LuStyle.colorScheme)
                        onToggled: {
                            if (_self.autoPivot)
                                _self.autoPivot.currentPivot = modelData
                        }
                    }
                }
            }
        }
    }
}
