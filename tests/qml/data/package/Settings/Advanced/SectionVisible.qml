// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Settings

AdvancedSection {
    id: _self

    title: "Second section"
    visible: !(monitor?.autoPivot?.state ?? false)

    LuLabel {
        text: "Second body"
    }
}
