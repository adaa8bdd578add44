// SPDX-License-Identifier: Apache-2.0
#include "TKMonitorModel.h"

#include "TKPackage.h"

#include <ZrCore/ZrDispatch.h>

namespace {

VCPNode* makeNode(QObject* parent, int code, int shCode, const QString& type, const QString& name,
                  const QString& category)
{
    return new LuVCPNode(parent, code, shCode, type, name, category);
}

} // namespace

TKMonitorModel::TKMonitorModel(QObject* parent, QSharedPointer<MonitorInfo> info)
    : LuMonitorModel(parent, std::move(info), makeNode)
{
    // The order is that in which modules load, apply and sync; later ones take earlier ones.
    m_aiContrast = new LuAiContrast(this);
    m_applicationMode = new LuApplicationMode(this);
    m_autoPivot = new LuAutoPivot(this);
    m_backLight = new LuBackLight(this);
    m_abPlus = new LuABPlus(this);
    m_abSetting = new LuABSetting(this);
    m_brightness = new LuBrightness(this);
    m_colorWeakness = new LuColorWeakness(this);
    m_daisyChain = new LuDaisyChain(this);
    m_directSearch = new LuDirectSearch(this);
    m_dpiScaling = new LuDpiScaling(this);
    m_dualView = new LuDualView(this);
    m_ecoPrivacy = new LuEcoPrivacy(this);
    m_hidpi = new LuHidpi(this);
    m_inputSource = new LuInputSource(this);
    m_kvmSwitch = new LuKvmSwitch(this);
    m_lowBlueLight = new LuLowBlueLight(this);
    m_nightProtection = new LuNightProtection(this);
    m_partition = new LuPartition(this);
    m_pipPbp = new LuPipPbp(this, m_inputSource);
    m_smartKvmBasic = new LuSmartKvmBasic(this, m_pipPbp, m_inputSource, m_kvmSwitch);
    m_resolution = new LuResolution(this);
    m_volume = new LuVolume(this);
    m_multiMonitorSync = new LuMultiMonitorSync(this);
    m_osdSetting = new LuOsdSetting(this);
    m_flow = new LuFlow(this);
    m_shortcuts = new LuShortcuts(this);

    readModuleSchemaExt();
    registerModuleShortcuts();
    if (loadSettingsEnabled())
        loadModuleSettings();
    initForceSyncConnections();
    readVcpDelays();
    if (autoSyncEnabled()) {
        checkFirstConnected(TKPackage::versionText());
        initialSync();
        syncMonitorPeriodically();
    }
    setFirstTimeConnected(false);
}

TKMonitorModel::~TKMonitorModel()
{
    // Jobs use the modules and this class's properties: none may run from here on.
    dispatch()->close();
}
