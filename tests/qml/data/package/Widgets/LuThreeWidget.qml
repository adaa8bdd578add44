// SPDX-License-Identifier: Apache-2.0
import QtQuick
import LumenDesk.Widgets

LuBasicWidget {
    id: _self

    property int removals: 0

    text: "Tile Three"
    active: true
    deactivateOnRemoved: true
    page: LuPage {
        title: "Page Three"
    }

    function setActive(state: var): void {
        active = state
        ++removals
    }
}
