// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The newer form of ambient brightness: the monitor's light sensor steers brightness and, in one mode,
/// colour temperature (VCP 0x81), with a sensitivity (0xE5) and a light meter on the screen (0xE3), all kept
/// for each colour mode.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuABPlus : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(ABPlusDisplayNameType displayNameType READ displayNameType CONSTANT)
    Q_PROPERTY(bool sensorEnable READ sensorEnable CONSTANT)
    Q_PROPERTY(int minSensitivity READ minSensitivity CONSTANT)
    Q_PROPERTY(int maxSensitivity READ maxSensitivity CONSTANT)
    Q_PROPERTY(int transitionStepInterval READ transitionStepInterval CONSTANT)
    Q_PROPERTY(bool lightMeterEnable READ lightMeterEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(ABPlusMode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(int sensitivity READ sensitivity WRITE setSensitivity NOTIFY sensitivityChanged)
    Q_PROPERTY(
        bool lightMeterState READ lightMeterState WRITE setLightMeterState NOTIFY lightMeterStateChanged)

public:
    /// What the sensor steers. Another number that a monitor reports is kept as it is.
    enum ABPlusMode : int {
        ModeABPlus = 1, ///< Brightness and colour temperature.
        ModeAB = 2,     ///< Brightness only.
    };
    Q_ENUM(ABPlusMode)

    /// The name under which the series sells the feature.
    enum ABPlusDisplayNameType : int {
        NameABPlus = 1,
        NameVisualOptimizer = 2,
    };
    Q_ENUM(ABPlusDisplayNameType)

    explicit LuABPlus(LuMonitorModel* model);
    ~LuABPlus() override;

    ABPlusDisplayNameType displayNameType() const { return m_displayNameType; }
    bool sensorEnable() const { return m_sensorEnable; }
    int minSensitivity() const { return m_minSensitivity; }
    int maxSensitivity() const { return m_maxSensitivity; }
    /// Milliseconds in which the monitor moves its brightness by one step.
    int transitionStepInterval() const { return m_transitionStepInterval; }
    bool lightMeterEnable() const { return m_lightMeterEnable; }

    /// The setters post a job; what it writes is taken whether or not the monitor answers, and the next
    /// read-back corrects it.
    bool state() const { return m_state; }
    void setState(bool state);

    ABPlusMode mode() const { return m_mode; }
    /// Writes the mode also while the feature is off, which switches it on at the monitor. 0 is no mode and
    /// switches off.
    void setMode(ABPlusMode mode);

    int sensitivity() const { return m_sensitivity; }
    void setSensitivity(int sensitivity);

    bool lightMeterState() const { return m_lightMeterState; }
    void setLightMeterState(bool state);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    void fireExitEvent() override;
    /// "brightness_colorTemp" or "brightness_only", and the sensitivity.
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void stateChanged();
    void modeChanged();
    void sensitivityChanged();
    void lightMeterStateChanged();

private:
    QString key(const QString& name) const;
    int stateValue() const { return m_state ? int(m_mode.get()) : 0; }
    void syncState(LuSyncTasks* tasks, bool firstConnection);
    void syncSensitivity();
    void syncLightMeter();
    void fireOnOff(LuDataCollection::TriggerSource source);
    void fireUpdate(LuDataCollection::TriggerSource source);

    ABPlusDisplayNameType m_displayNameType = NameABPlus;
    bool m_sensorEnable = false;
    int m_minSensitivity = 1;
    int m_maxSensitivity = 5;
    int m_transitionStepInterval = 0;
    bool m_lightMeterEnable = false;
    ZrShared<bool> m_state{false};
    ZrShared<ABPlusMode> m_mode{ModeABPlus};
    ZrShared<int> m_sensitivity{0};
    ZrShared<bool> m_lightMeterState{false};
    /// The state before the settings were loaded.
    bool m_previousState = false;
};
