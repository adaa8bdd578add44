// SPDX-License-Identifier: Apache-2.0
pragma Singleton

import QtQml
import LumenDesk

// The words for a monitor's values: those of the package that an item belongs to, made once a package.
QtObject {
    id: translators

    property var made: ({})
    readonly property PackageStringsBase shared: PackageStringsBase { }

    function of(item: QtObject): PackageStringsBase {
        const name = LuContext.packageOf(item)
        if (!name)
            return shared
        if (!made[name])
            made[name] = make("qrc:/" + name + "/qml/" + name + "/Helpers/PackageStrings.qml") ?? shared
        return made[name]
    }

    // A package need not have words of its own.
    function make(url: url): PackageStringsBase {
        if (!LuContext.exists(url))
            return null
        const component = Qt.createComponent(url)
        if (component.status === Component.Ready)
            return component.createObject(translators) as PackageStringsBase
        console.warn(component.errorString())
        return null
    }
}
