// SPDX-License-Identifier: Apache-2.0
import QtQuick
import QtQuick.Window
import LumenDesk.Controls
import LumenDesk.Widgets

Window {
    width: 320
    height: 200
    visible: true
    LuAbsenceNote {
        objectName: "note"
        needs: ["translucentWindows", "overlayOnTop"]
    }
    LuProgramIcon {
        objectName: "icon"
        y: 100
        appId: "/opt/my app/100%#run?"
    }
}
