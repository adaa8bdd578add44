// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

/// The older form of ambient brightness: the monitor's light sensor steers the brightness (VCP 0xE2), with a
/// sensitivity (0xE5) and a light meter on the screen (0xE3), all kept for each colour mode.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuABSetting : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool abSensorEnable READ abSensorEnable CONSTANT)
    Q_PROPERTY(int maxSensitivity READ maxSensitivity CONSTANT)
    Q_PROPERTY(int transitionStepInterval READ transitionStepInterval CONSTANT)
    Q_PROPERTY(bool currentAB READ currentAB WRITE setCurrentAB NOTIFY currentABChanged)
    Q_PROPERTY(
        bool lightMeterState READ lightMeterState WRITE setLightMeterState NOTIFY lightMeterStateChanged)
    Q_PROPERTY(int sensitivity READ sensitivity WRITE setSensitivity NOTIFY sensitivityChanged)

public:
    explicit LuABSetting(LuMonitorModel* model);
    ~LuABSetting() override;

    bool abSensorEnable() const { return m_abSensorEnable; }
    int maxSensitivity() const { return m_maxSensitivity; }
    /// Milliseconds in which the monitor moves its brightness by one step.
    int transitionStepInterval() const { return m_transitionStepInterval; }

    /// The setters post a job; what it writes is taken whether or not the monitor answers, and the next
    /// read-back corrects it.
    bool currentAB() const { return m_currentAB; }
    void setCurrentAB(bool on);

    bool lightMeterState() const { return m_lightMeterState; }
    /// Does nothing while the feature is off.
    void setLightMeterState(bool state);

    int sensitivity() const { return m_sensitivity; }
    void setSensitivity(int sensitivity);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void fireExitEvent() override;

Q_SIGNALS:
    void currentABChanged();
    void lightMeterStateChanged();
    void sensitivityChanged();

private:
    QString key(const QString& name) const;
    void writeState();
    void syncState(LuSyncTasks* tasks, bool firstConnection);
    void syncLightMeter();
    void syncSensitivity();
    void fireOnOff(LuDataCollection::TriggerSource source);

    bool m_abSensorEnable = false;
    int m_maxSensitivity = 10;
    int m_transitionStepInterval = 0;
    ZrShared<bool> m_currentAB{false};
    ZrShared<bool> m_lightMeterState{false};
    ZrShared<int> m_sensitivity{0};
    /// The state before the settings were loaded.
    bool m_previousAB = false;
};
