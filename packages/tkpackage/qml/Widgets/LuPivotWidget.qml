// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk
import LumenDesk.Controls
import LumenDesk.Style
import LumenDesk.Widgets
import ".."

LuAdvancedWidget {
    id: _self

    readonly property var autoPivot: monitor?.autoPivot ?? null
    readonly property int currentPivot: autoPivot?.currentPivot ?? 0

    text: qsTr("Pivot")
    functionSupported: autoPivot !== null && !autoPivot.autoPivotEnable
    active: functionSupported && currentPivot !== 0
    widgetImage.normal: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_0.svg", _self, LuStyle.colorScheme)
    widgetImage.checked: LuContext.resolvedResourceUrl("qrc:/images/packages/btn_pivot_%1_active.svg".arg(currentPivot), _self, LuStyle.colorScheme)

    page: Component {
        LuPage {
            title: qsTr("Screen pivot")

            Component.onCompleted: _self.autoPivot?.takePropertySnapshot()
            Component.onDestruction: _self?.autoPivot?.fireUpdateSettingEvent()

            LuAbsenceNote { needs: ["rotation"] }
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
                        confirmed: _self.currentPivot === modelData
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
