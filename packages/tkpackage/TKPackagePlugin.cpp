// SPDX-License-Identifier: Apache-2.0
#include <ZrCore/ZrQmlPlugin.h>

#include <QtPlugin>

extern void qml_register_types_TKPackage();
Q_GHS_KEEP_REFERENCE(qml_register_types_TKPackage)

/// The QML side of the package: a static plug-in that registers itself when the library is loaded.
class TKPackagePlugin : public ZrQmlPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    explicit TKPackagePlugin(QObject* parent = nullptr) : ZrQmlPlugin(parent)
    {
        // Keeps the registration in the library even where a linker drops what nobody calls.
        volatile auto registration = &qml_register_types_TKPackage;
        Q_UNUSED(registration)
    }
};

#include "TKPackagePlugin.moc"

Q_IMPORT_PLUGIN(TKPackagePlugin)
