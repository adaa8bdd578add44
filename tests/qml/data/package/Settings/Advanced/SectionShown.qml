// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Settings

AdvancedSection {
    id: _self

    title: "Shown section"
    description: "It is there while the contrast may be switched."
    requirements: monitor?.aiContrast?.state ?? false

    LuSwitch {
        text: "Section switch"
    }
}
