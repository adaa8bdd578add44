// SPDX-License-Identifier: Apache-2.0
// The QML types of the package, registered in a fixed order.

#include <LuABPlus.h>
#include <LuABSetting.h>
#include <LuAiContrast.h>
#include <LuApplicationMode.h>
#include <LuAutoPivot.h>
#include <LuBackLight.h>
#include <LuBrightness.h>
#include <LuColorWeakness.h>
#include <LuDaisyChain.h>
#include <LuDirectSearch.h>
#include <LuDpiScaling.h>
#include <LuDualView.h>
#include <LuEcoPrivacy.h>
#include <LuFlow.h>
#include <LuFrequencyGainHash.h>
#include <LuHidpi.h>
#include <LuInputSource.h>
#include <LuKvmSwitch.h>
#include <LuLowBlueLight.h>
#include <LuMultiMonitorSync.h>
#include <LuNightProtection.h>
#include <LuOsdSetting.h>
#include <LuPartition.h>
#include <LuPartitionView.h>
#include <LuPipPbp.h>
#include <LuResolution.h>
#include <LuShortcuts.h>
#include <LuSmartKvm.h>
#include <LuSmartKvmBasic.h>
#include <LuSoftwareDimming.h>
#include <LuVolume.h>
#include <LuWeather.h>

#include <QQuickWindow>
#include <QWindow>
#include <QtQml/qqml.h>
#include <QtQml/qqmlmoduleregistration.h>

namespace {

constexpr const char* Uri = "TKPackage";
constexpr int Major = 1;

} // namespace

Q_DECL_EXPORT void qml_register_types_TKPackage()
{
    qmlRegisterTypesAndRevisions<LuAiContrast>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuApplicationMode>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuAutoPivot>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuABPlus>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuABSetting>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuBackLight>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuBrightness>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuColorWeakness>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuDaisyChain>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuDirectSearch>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuDpiScaling>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuDualView>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuEcoPrivacy>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuFlow>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuFrequencyGainHash>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuHidpi>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuInputSource>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuKvmSwitch>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuLowBlueLight>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuMultiMonitorSync>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuNightProtection>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuOsdSetting>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuPartition>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuPartitionView>(Uri, Major);
    // Base types of the windows, without a name in QML.
    qmlRegisterAnonymousTypesAndRevisions<QQuickWindow>(Uri, Major);
    qmlRegisterAnonymousTypesAndRevisions<QWindow>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuPipPbp>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuResolution>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuShortcuts>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuSmartKvm>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuSmartKvmBasic>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuSoftwareDimming>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuVolume>(Uri, Major);
    qmlRegisterTypesAndRevisions<LuWeather>(Uri, Major);
    qmlRegisterModule(Uri, Major, 0);
}

namespace {

/// Hands the function to the QML engine, which calls it at the first import of the module.
const QQmlModuleRegistration registration(Uri, qml_register_types_TKPackage);

} // namespace
