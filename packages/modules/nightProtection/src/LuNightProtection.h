// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// Softens the picture in a dark room: on, off or by the monitor's own light sensor (VCP 0xD1), with a level
/// (VCP 0xD0), both kept for each colour mode.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuNightProtection : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool nightProtectionEnable READ nightProtectionEnable CONSTANT)
    Q_PROPERTY(NightHourState state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(int level READ level WRITE setLevel NOTIFY levelChanged)

public:
    enum NightHourState : int {
        Auto = 0, ///< The monitor's light sensor switches.
        On = 1,
        Off = 2,
    };
    Q_ENUM(NightHourState)

    explicit LuNightProtection(LuMonitorModel* model);
    ~LuNightProtection() override;

    bool nightProtectionEnable() const { return m_nightProtectionEnable; }

    /// The setters post a job; what it writes is taken whether or not the monitor answers, and the next
    /// read-back corrects it.
    NightHourState state() const { return m_state; }
    void setState(NightHourState state);

    /// 1 to 10, and 0 while none was ever read or set. The setter drops a number outside 1 to 10.
    int level() const { return m_level; }
    void setLevel(int level);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void registerShortcutActions() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    void fireExitEvent() override;
    /// The level.
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void stateChanged();
    void levelChanged();

private:
    QString stateKey() const;
    QString levelKey() const;
    bool stepLevel(const QKeyEvent& event, int step);
    void syncState(LuSyncTasks* tasks, bool firstConnection);
    void syncLevel();
    void fireState(LuDataCollection::TriggerSource source);
    void fireUpdate(LuDataCollection::TriggerSource source);
    void keepStartTime();

    bool m_nightProtectionEnable = false;
    ZrShared<NightHourState> m_state{Off};
    ZrShared<int> m_level{0};
    /// The state before the settings were loaded.
    NightHourState m_previousState = Off;
    /// A shortcut's handler runs; GUI thread.
    bool m_shortcutInProgress = false;
};
