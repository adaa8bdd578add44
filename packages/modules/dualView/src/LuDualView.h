// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

class LuVCPNode;

/// Two colour modes side by side: the left part keeps the current one, the right part shows a second. VCP
/// 0xF4 carries the switch and the second mode.
///
/// The plus variant works with several inputs in one picture too. Without either variant in the schema the
/// object is inactive.
class LuDualView : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool dualModeEnable READ dualModeEnable CONSTANT)
    Q_PROPERTY(bool dualModePlusEnable READ dualModePlusEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(LuVCPNode* currentDualMode READ currentDualMode WRITE setCurrentDualMode NOTIFY
                   currentDualModeChanged)

public:
    explicit LuDualView(LuMonitorModel* model);
    ~LuDualView() override;

    bool dualModeEnable() const { return m_dualModeEnable; }
    bool dualModePlusEnable() const { return m_dualModePlusEnable; }

    bool state() const { return m_state; }
    /// Posts a job. Turning on without a second mode is refused with a warning.
    void setState(bool state);

    /// The second mode, one of the model's nodes, or null.
    LuVCPNode* currentDualMode() const { return m_currentDualMode; }
    /// Posts a job that writes the mode as shown, also while the view is off.
    void setCurrentDualMode(LuVCPNode* node);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void fireExitEvent() override;
    /// Names of the current colour mode and of the second one.
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void stateChanged();
    void currentDualModeChanged();

private:
    bool isInert() const { return !m_dualModeEnable && !m_dualModePlusEnable; }
    LuVCPNode* nodeOf(int reading) const;
    QString dualModeName() const;
    void syncReading(bool firstConnection);
    void fireState(bool on, LuDataCollection::TriggerSource source);
    void fireModeOfPlainView(LuDataCollection::TriggerSource source);

    bool m_dualModeEnable = false;
    bool m_dualModePlusEnable = false;
    ZrShared<bool> m_state{false};
    ZrShared<LuVCPNode*> m_currentDualMode{nullptr};
};
