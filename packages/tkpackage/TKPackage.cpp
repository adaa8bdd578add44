// SPDX-License-Identifier: Apache-2.0
#include "TKPackage.h"

#include "TKMonitorModel.h"

namespace {

constexpr int SeriesPackage = 3;

/// Widgets in the order in which the window shows them.
constexpr const char* WidgetNames[] = {
    "LuVolumeWidget",        "LuBrightnessWidget",   "LuBuiltInBrightnessWidget", "LuResolutionWidget",
    "LuDpiScalingWidget",    "LuBackLightWidget",    "LuNightProtectionWidget",   "LuABPlusWidget",
    "LuABSettingWidget",     "LuLowBlueLightWidget", "LuEcoPrivacyWidget",        "LuAutoPivotWidget",
    "LuPivotWidget",         "LuDaisyChainWidget",   "LuPartitionWidget",         "LuShortcutsWidget",
    "LuHDRWidget",           "LuHiDPIWidget",        "LuColorWeaknessWidget",     "LuPIPPBPWidget",
    "LuDualViewPlusWidget",  "LuFlowWidget",         "LuAiContrastWidget",        "LuMultiMonitorSyncWidget",
    "LuSmartKvmBasicWidget", "LuInputSourceWidget",  "LuDirectSearchWidget",      "LuFocusAssistWidget",
};

} // namespace

TKPackage::TKPackage() : m_version(versionText()) {}

TKPackage::~TKPackage() = default;

QString TKPackage::versionText()
{
    return QStringLiteral("1.11.0.0");
}

TKPackage::ModelConstructor TKPackage::modelConstructor()
{
    return [](QObject* parent, QSharedPointer<MonitorInfo> info) -> LuMonitorModel* {
        return new TKMonitorModel(parent, std::move(info));
    };
}

QList<QUrl> TKPackage::widgetUrls()
{
    static const QList<QUrl> urls = [this] {
        QList<QUrl> list;
        for (const char* name : WidgetNames)
            list.append(
                QUrl(QStringLiteral("qrc:///%1/Widgets/%2.qml").arg(qmlBasePath(), QLatin1String(name))));
        return list;
    }();
    return urls;
}

QStringList TKPackage::supportedModels()
{
    static const QStringList models{
        QStringLiteral("TK10"),  QStringLiteral("TK20"), QStringLiteral("TK30"),  QStringLiteral("TK30X"),
        QStringLiteral("TK30Z"), QStringLiteral("TK40"), QStringLiteral("TK40X"),
    };
    return models;
}

int TKPackage::packageKind()
{
    return SeriesPackage;
}
