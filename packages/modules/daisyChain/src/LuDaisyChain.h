// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The monitor passes its DisplayPort signal on to a second monitor (multi-stream transport), on VCP 0xE6.
///
/// The program's environment and the schema must both allow it; else the object is inactive.
class LuDaisyChain : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool daisyChainEnable READ daisyChainEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)

public:
    explicit LuDaisyChain(LuMonitorModel* model);
    ~LuDaisyChain() override;

    bool daisyChainEnable() const { return m_daisyChainEnable; }

    bool state() const { return m_state; }
    /// Posts a job that writes the state; nothing changes if the monitor does not take it.
    void setState(bool state);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void fireExitEvent() override;

Q_SIGNALS:
    void stateChanged();

private:
    void syncState(bool firstConnection);
    void fireState(bool on, LuDataCollection::TriggerSource source);

    bool m_daisyChainEnable = false;
    ZrShared<bool> m_state{false};
};
