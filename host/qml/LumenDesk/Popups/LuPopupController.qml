// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQuick
import LumenDesk

// Opens the popups that panels and sections share, over the window in which the user is at work.
QtObject {
    id: controller

    // The popup that is open, or null: one at a time. An item, or a window of feedback.
    property var current: null
    readonly property bool opened: current !== null
    // File of each action's editor in the package's folder "Popups", by the action's title.
    readonly property var editors: ({
        2: "LuPopupColorModeAction",
        3: "LuPopupColorModeAction",
        4: "LuPopupVolumeAction",
        5: "LuPopupNightHoursProtectionAction",
        6: "LuPopupEcoPrivacyAction",
        8: "LuPopupABPlusAction",
        9: "LuPopupLowBlueLightAction",
        10: "LuPopupABAction",
        11: "LuPopupBackLightAction",
        12: "LuPopupOpenApplication"
    })

    // The window that a popup belongs over: the settings while they are in use, else the main window.
    function place(): Item {
        const main = LuContext.mainWindow
        const settings = main?.settingsWindow ?? null
        return settings && settings.visible ? settings.contentItem : main?.contentItem ?? null
    }

    // What an action is called.
    function actionName(monitor: var, title: int): string {
        switch (title) {
        case 2:
        case 3:
            return qsTr("Color mode")
        case 4:
            return qsTr("Audio")
        case 5:
            return qsTr("Night Hours Protection")
        case 6:
            return qsTr("EcoPrivacy")
        case 8:
            return monitor?.abPlus?.displayNameType === 2 ? qsTr("Visual Optimizer") : qsTr("A.B.+ Gen2")
        case 9:
            return qsTr("Low Blue Light")
        case 10:
            return qsTr("A.B. Gen2")
        case 11:
            return qsTr("BackGlow")
        case 12:
            return qsTr("Open applications")
        }
        return ""
    }

    // Shows the popup of a file; null if there is no window for it. The files are no part of this one: they belong to
    // the same module, and would wait for each other.
    function show(file: url, properties: var): var {
        close()
        const parent = place()
        if (!parent)
            return null
        const component = Qt.createComponent(file)
        const popup = component.status === Component.Ready ? component.createObject(parent, properties) : null
        if (!popup) {
            console.warn(component.errorString())
            return null
        }
        popup.closed.connect(() => controller.release(popup))
        current = popup
        popup.open()
        return popup
    }

    function release(popup: var): void {
        if (current === popup)
            current = null
        popup.destroy()
    }

    // Leaves the popup that is open, as its Cancel does.
    function close(): void {
        if (typeof current?.cancel === "function")
            current.cancel()
        else
            current?.close()
    }

    // Asks for the name of a new flow of the module `flow`.
    function openFlowAddName(flow: var): var {
        const popup = show("LuNamePopup.qml", { "title": qsTr("Add a flow"), "taken": flowNames(flow) })
        popup?.confirmed.connect(() => flow.appendFlowName(popup.wanted))
        return popup
    }

    // Asks for another name of the flow `info`.
    function openFlowRename(flow: var, info: var): var {
        const popup = show("LuNamePopup.qml", {
            "title": qsTr("Rename the flow"),
            "name": info.name,
            "taken": flowNames(flow).filter(name => name !== info.name)
        })
        popup?.confirmed.connect(() => flow.replaceFlow(info.id, popup.wanted))
        return popup
    }

    // Edits `period` of the flow `info`, or adds one where it is null.
    function openFlowSchedulePopup(info: var, period: var): var {
        const minutes = time => time.getHours() * 60 + time.getMinutes()
        const time = minute => new Date(1970, 0, 1, Math.floor(minute / 60), minute % 60)
        const popup = show("LuSchedulePopup.qml", period ? {
            "startMinute": minutes(period.startTime),
            "endMinute": minutes(period.endTime),
            "repeatDays": Array.from(period.repeatDays)
        } : {})
        popup?.confirmed.connect(() => {
            const start = time(popup.startMinute)
            const end = time(popup.endMinute)
            if (period)
                info.replaceFlowTimePeriodList(period, start, end, popup.repeatDays)
            else
                info.appendFlowTimePeriodList(start, end, popup.repeatDays)
        })
        return popup
    }

    // Lets the user choose one of the actions that the flow `modeId` lacks, and opens its editor.
    function openFlowActionSelection(monitor: var, modeId: string): var {
        const used = LuFlowActions.titles(monitor, modeId)
        const free = Array.from(monitor?.flow?.actions ?? []).filter(title => !used.includes(title))
        const popup = show("LuActionSelectionPopup.qml", {
            "choices": free.map(title => ({ "title": title, "name": actionName(monitor, title) }))
        })
        popup?.confirmed.connect(() => {
            const title = popup.chosen
            Qt.callLater(() => controller.openFlowAction(monitor, modeId, title))
        })
        return popup
    }

    // Opens the editor of the action `title` of the flow `modeId`; null if the package has none.
    function openFlowAction(monitor: var, modeId: string, title: int): var {
        const url = LuContext.packageFile("Popups/" + (editors[title] ?? "") + ".qml")
        if (!String(url)) {
            console.warn("no editor for the action", title)
            return null
        }
        const popup = show(url, {
            "monitor": monitor,
            "modeId": modeId,
            "actionTitle": title,
            "storedProperties": LuFlowActions.properties(monitor, modeId, title)
        })
        popup?.accepted.connect((module, properties) => {
            if (!LuFlowActions.store(monitor, modeId, title, module, properties))
                console.warn("the action could not be stored:", title)
        })
        return popup
    }

    // Opens the popup `name` of the current monitor's package, as "LuPopupFlowNotify", or one of this folder for
    // something new; false if there is none.
    function openNamed(name: string): bool {
        const url = LuContext.packageFile("Popups/" + name + ".qml")
        if (!String(url))
            return openOwn(name)
        const title = Object.keys(editors).find(key => editors[key] === name)
        const popup = show(url, title ? {
            "monitor": LuContext.currentMonitor,
            "actionTitle": Number(title)
        } : { "monitor": LuContext.currentMonitor })
        return popup !== null
    }

    function openOwn(name: string): bool {
        const monitor = LuContext.currentMonitor
        // Without flows every action that has an editor of its own.
        const own = Object.keys(editors).filter((title, index, all) => all.findIndex(each => editors[each] === editors[title]) === index)
        const titles = Array.from(monitor?.flow?.actions ?? own.map(Number))
        const properties = {
            "LuNamePopup": { "title": qsTr("Add a flow") },
            "LuSchedulePopup": {},
            "LuActionSelectionPopup": { "choices": titles.map(title => ({ "title": title, "name": actionName(monitor, title) })) }
        }[name]
        return properties !== undefined && show(name + ".qml", properties) !== null
    }

    function flowNames(flow: var): var {
        return Array.from(flow?.modeList ?? []).map(info => info.name)
    }
}
