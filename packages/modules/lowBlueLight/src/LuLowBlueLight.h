// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LuWeather.h"

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The monitor's blue-light filter on VCP 0x19: a level for each colour mode, set by the user or, in
/// circadian mode, through the day by LuWeather.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuLowBlueLight : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool lowBlueLightEnable READ lowBlueLightEnable CONSTANT)
    Q_PROPERTY(LowBlueLight type READ type CONSTANT)
    Q_PROPERTY(bool state READ state NOTIFY stateChanged)
    Q_PROPERTY(int level READ level WRITE setLevel NOTIFY levelChanged)
    Q_PROPERTY(LuWeather* weather READ weather CONSTANT)
    Q_PROPERTY(bool circadianState READ circadianState WRITE setCircadianState NOTIFY circadianStateChanged)
    Q_PROPERTY(LuWeather::Circadian circadianMode READ circadianMode NOTIFY circadianModeChanged)

public:
    enum LowBlueLight {
        LowBlueLightNotSupport = 0,
        LowBlueLightNormal = 1,
        LowBlueLightPlus = 2,
    };
    Q_ENUM(LowBlueLight)

    explicit LuLowBlueLight(LuMonitorModel* model);
    ~LuLowBlueLight() override;

    bool lowBlueLightEnable() const { return m_type != LowBlueLightNotSupport; }
    LowBlueLight type() const { return m_type; }

    /// The filter counts as on: the level is not 0, or the schedule runs.
    bool state() const { return m_state; }

    /// Strength, 0 to 5 on the monitors of the series; the setter posts a job.
    int level() const { return m_level; }
    void setLevel(int level);

    LuWeather* weather() const { return m_weather; }
    bool circadianState() const { return m_weather->circadianState(); }
    /// Takes effect at once; the level follows from the schedule's next check.
    void setCircadianState(bool state);
    LuWeather::Circadian circadianMode() const { return m_weather->circadianMode(); }

    void readSchema(const QByteArray& schema) override;
    void onInitialSync() override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    void fireExitEvent() override;

Q_SIGNALS:
    void stateChanged();
    void levelChanged();
    void circadianStateChanged();
    /// Never emitted: who shows the mode binds to the weather's.
    void circadianModeChanged();

private:
    bool updateState();
    void syncLevel(bool firstConnection);
    LuDataCollection::Action action() const;
    QList<QString> levelParameters() const;
    QList<QString> circadianParameters() const;
    void fireOnOff(LuDataCollection::TriggerSource source);
    void fireUpdate(LuDataCollection::TriggerSource source);
    void fireCircadian(LuDataCollection::TriggerSource source);

    LuWeather* const m_weather;
    LowBlueLight m_type = LowBlueLightNotSupport;
    ZrShared<bool> m_state{false};
    ZrShared<int> m_level{0};
    /// The level before the settings were loaded.
    int m_previousLevel = 0;
};
