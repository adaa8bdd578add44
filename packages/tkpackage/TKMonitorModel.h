// SPDX-License-Identifier: Apache-2.0
#pragma once

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
#include <LuHidpi.h>
#include <LuInputSource.h>
#include <LuKvmSwitch.h>
#include <LuLowBlueLight.h>
#include <LuMultiMonitorSync.h>
#include <LuNightProtection.h>
#include <LuOsdSetting.h>
#include <LuPartition.h>
#include <LuPipPbp.h>
#include <LuResolution.h>
#include <LuShortcuts.h>
#include <LuSmartKvmBasic.h>
#include <LuVolume.h>

#include <LuShared/LuMonitorModel.h>

/// A monitor of the TK series: the model with its 27 feature modules.
class TKMonitorModel : public LuMonitorModel
{
    Q_OBJECT
    Q_PROPERTY(LuAiContrast* aiContrast READ aiContrast CONSTANT)
    Q_PROPERTY(LuApplicationMode* applicationMode READ applicationMode CONSTANT)
    Q_PROPERTY(LuAutoPivot* autoPivot READ autoPivot CONSTANT)
    Q_PROPERTY(LuBackLight* backLight READ backLight CONSTANT)
    Q_PROPERTY(LuABPlus* abPlus READ abPlus CONSTANT)
    Q_PROPERTY(LuABSetting* abSetting READ abSetting CONSTANT)
    Q_PROPERTY(LuBrightness* brightness READ brightness CONSTANT)
    Q_PROPERTY(LuColorWeakness* colorWeakness READ colorWeakness CONSTANT)
    Q_PROPERTY(LuDaisyChain* daisyChain READ daisyChain CONSTANT)
    Q_PROPERTY(LuDirectSearch* directSearch READ directSearch CONSTANT)
    Q_PROPERTY(LuDpiScaling* dpiScaling READ dpiScaling CONSTANT)
    Q_PROPERTY(LuDualView* dualView READ dualView CONSTANT)
    Q_PROPERTY(LuEcoPrivacy* ecoPrivacy READ ecoPrivacy CONSTANT)
    Q_PROPERTY(LuFlow* flow READ flow CONSTANT)
    Q_PROPERTY(LuHidpi* hidpi READ hidpi CONSTANT)
    Q_PROPERTY(LuInputSource* inputSource READ inputSource CONSTANT)
    Q_PROPERTY(LuKvmSwitch* kvmSwitch READ kvmSwitch CONSTANT)
    Q_PROPERTY(LuLowBlueLight* lowBlueLight READ lowBlueLight CONSTANT)
    Q_PROPERTY(LuMultiMonitorSync* multiMonitorSync READ multiMonitorSync CONSTANT)
    Q_PROPERTY(LuNightProtection* nightProtection READ nightProtection CONSTANT)
    Q_PROPERTY(LuOsdSetting* osdSetting READ osdSetting CONSTANT)
    Q_PROPERTY(LuPartition* partition READ partition CONSTANT)
    Q_PROPERTY(LuPipPbp* pipPbp READ pipPbp CONSTANT)
    Q_PROPERTY(LuShortcuts* shortcuts READ shortcuts CONSTANT)
    Q_PROPERTY(LuSmartKvmBasic* smartKvmBasic READ smartKvmBasic CONSTANT)
    Q_PROPERTY(LuResolution* resolution READ resolution CONSTANT)
    Q_PROPERTY(LuVolume* volume READ volume CONSTANT)

public:
    TKMonitorModel(QObject* parent, QSharedPointer<MonitorInfo> info);
    ~TKMonitorModel() override;

    LuAiContrast* aiContrast() const { return m_aiContrast; }
    LuApplicationMode* applicationMode() const { return m_applicationMode; }
    LuAutoPivot* autoPivot() const { return m_autoPivot; }
    LuBackLight* backLight() const { return m_backLight; }
    LuABPlus* abPlus() const { return m_abPlus; }
    LuABSetting* abSetting() const { return m_abSetting; }
    LuBrightness* brightness() const { return m_brightness; }
    LuColorWeakness* colorWeakness() const { return m_colorWeakness; }
    LuDaisyChain* daisyChain() const { return m_daisyChain; }
    LuDirectSearch* directSearch() const { return m_directSearch; }
    LuDpiScaling* dpiScaling() const { return m_dpiScaling; }
    LuDualView* dualView() const { return m_dualView; }
    LuEcoPrivacy* ecoPrivacy() const { return m_ecoPrivacy; }
    LuFlow* flow() const { return m_flow; }
    LuHidpi* hidpi() const { return m_hidpi; }
    LuInputSource* inputSource() const { return m_inputSource; }
    LuKvmSwitch* kvmSwitch() const { return m_kvmSwitch; }
    LuLowBlueLight* lowBlueLight() const { return m_lowBlueLight; }
    LuMultiMonitorSync* multiMonitorSync() const { return m_multiMonitorSync; }
    LuNightProtection* nightProtection() const { return m_nightProtection; }
    LuOsdSetting* osdSetting() const { return m_osdSetting; }
    LuPartition* partition() const { return m_partition; }
    LuPipPbp* pipPbp() const { return m_pipPbp; }
    LuShortcuts* shortcuts() const { return m_shortcuts; }
    LuSmartKvmBasic* smartKvmBasic() const { return m_smartKvmBasic; }
    LuResolution* resolution() const { return m_resolution; }
    LuVolume* volume() const { return m_volume; }

private:
    LuAiContrast* m_aiContrast = nullptr;
    LuApplicationMode* m_applicationMode = nullptr;
    LuAutoPivot* m_autoPivot = nullptr;
    LuBackLight* m_backLight = nullptr;
    LuABPlus* m_abPlus = nullptr;
    LuABSetting* m_abSetting = nullptr;
    LuBrightness* m_brightness = nullptr;
    LuColorWeakness* m_colorWeakness = nullptr;
    LuDaisyChain* m_daisyChain = nullptr;
    LuDirectSearch* m_directSearch = nullptr;
    LuDpiScaling* m_dpiScaling = nullptr;
    LuDualView* m_dualView = nullptr;
    LuEcoPrivacy* m_ecoPrivacy = nullptr;
    LuFlow* m_flow = nullptr;
    LuHidpi* m_hidpi = nullptr;
    LuInputSource* m_inputSource = nullptr;
    LuKvmSwitch* m_kvmSwitch = nullptr;
    LuLowBlueLight* m_lowBlueLight = nullptr;
    LuMultiMonitorSync* m_multiMonitorSync = nullptr;
    LuNightProtection* m_nightProtection = nullptr;
    LuOsdSetting* m_osdSetting = nullptr;
    LuPartition* m_partition = nullptr;
    LuPipPbp* m_pipPbp = nullptr;
    LuShortcuts* m_shortcuts = nullptr;
    LuSmartKvmBasic* m_smartKvmBasic = nullptr;
    LuResolution* m_resolution = nullptr;
    LuVolume* m_volume = nullptr;
};
