// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuKvmSwitch.h>
#include <LuShared/LuKvm.h>
#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

class LuInputSource;
class LuPipPbp;

/// One keyboard and mouse for two computers that share the picture: as the pointer crosses the screen's edge
/// towards the other computer, the monitor's USB hub is switched to it.
///
/// LuKvm watches the edge. This module says which upstream port is the other computer's, tells LuKvm where
/// the monitor lies, and is on only while the picture is divided. Signals of the other modules are taken on
/// the sender's thread.
class LuSmartKvmBasic : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool smartKvmBasicEnable READ smartKvmBasicEnable CONSTANT)
    Q_PROPERTY(bool basicState READ basicState WRITE setBasicState NOTIFY basicStateChanged)
    Q_PROPERTY(LuKvm::KvmDeviceLocation deviceLocation READ deviceLocation WRITE setDeviceLocation NOTIFY
                   deviceLocationChanged)

public:
    LuSmartKvmBasic(LuMonitorModel* model, LuPipPbp* pipPbp, LuInputSource* inputSource,
                    LuKvmSwitch* kvmSwitch);
    ~LuSmartKvmBasic() override;

    bool smartKvmBasicEnable() const { return m_smartKvmBasicEnable; }

    bool basicState() const { return m_basicState; }
    /// At once, on the caller's thread; the hub's way back to its automatic is posted. Any thread.
    void setBasicState(bool state);

    /// On which side of the monitor this computer's picture lies.
    LuKvm::KvmDeviceLocation deviceLocation() const;

    void readSchema(const QByteArray& schema) override;
    void onInitialSync() override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;

    // The order of these operations is part of the binary interface.

    /// At once; computes the target anew. Any thread.
    virtual void setDeviceLocation(LuKvm::KvmDeviceLocation location);
    /// Brings LuKvm in line with the state.
    virtual void updateKvmActivation();
    /// Tells LuKvm this monitor's rectangle, while the feature is on.
    virtual void updateScreenRect();

Q_SIGNALS:
    void basicStateChanged();
    void deviceLocationChanged();

protected:
    /// The model has the feature.
    virtual bool isEnabled() const;
    /// The feature is on.
    virtual bool isOn() const;
    /// The picture is no longer divided: the feature goes off.
    virtual void turnOff();
    /// LuKvm saw the pointer cross the edge, or its connection changed. GUI thread.
    virtual void onKvmChanged();

    void loadDeviceLocation();
    /// The hub follows the pointer: the job of a crossing is posted.
    void switchHub();
    LuKvmSwitch* kvmSwitch() const { return m_kvmSwitch; }

private:
    void connectModules();
    void activate();
    void onLayoutChanged();
    void onSwapped();
    void onMainSourceChanged();
    /// Which upstream is the other computer's, from the input on this computer's side.
    void updateTargetKvmUsb();
    void setTarget(LuKvmSwitch::KvmSwitch target);

    LuPipPbp* const m_pipPbp;
    LuKvm* const m_kvm;
    LuKvmSwitch* const m_kvmSwitch;
    bool m_smartKvmBasicEnable = false;
    ZrShared<bool> m_basicState{false};
    ZrShared<LuKvmSwitch::KvmSwitch> m_targetKvmUsb{LuKvmSwitch::TypeC};
    LuInputSource* const m_inputSource;
};
