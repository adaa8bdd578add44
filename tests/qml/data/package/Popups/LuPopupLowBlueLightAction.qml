// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Controls
import LumenDesk.Popups

LuPopupAction {
    objectName: "testEditor"
    title: "Editor"

    LuSwitch {
        text: "Level"
    }
    function collectProps(): var {
        return { "level": 2 }
    }
}
