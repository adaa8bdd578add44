// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

#include <atomic>

/// The monitor's presence sensing: it dims by itself when nobody has been in front of it for a chosen time
/// (VCP 0xE7). The sensor's reach (0xE9) and, on some models, whether the light behind the panel goes along
/// (0xE8) can be chosen.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuEcoPrivacy : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool ecoPrivacyEnable READ ecoPrivacyEnable CONSTANT)
    Q_PROPERTY(bool state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(ActiveTime activeTime READ activeTime WRITE setActiveTime NOTIFY activeTimeChanged)
    Q_PROPERTY(SensorSensitivity sensorSensitivity READ sensorSensitivity WRITE setSensorSensitivity NOTIFY
                   sensorSensitivityChanged)
    Q_PROPERTY(EcoPrivacyType type READ type CONSTANT)
    Q_PROPERTY(EcoPrivacyMode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(QList<ActiveTime> activeTimeList READ activeTimeList CONSTANT)

public:
    /// Values of 0xE7: seconds up to a minute, then codes. Another number that a monitor reports is kept.
    enum ActiveTime : int {
        Off = 0,
        FiveSecs = 5,
        TenSecs = 10,
        TwentySecs = 20,
        ThirtySecs = 30,
        SixtySecs = 60,
        FiveMins = 80,
        TenMins = 160,
    };
    Q_ENUM(ActiveTime)

    enum SensorSensitivity : int {
        Near = 1,
        Middle = 2,
        Far = 3,
    };
    Q_ENUM(SensorSensitivity)

    enum EcoPrivacyType : int {
        Normal = 1,
        BackGlow = 2, ///< The light behind the panel can go along.
    };
    Q_ENUM(EcoPrivacyType)

    /// What dims.
    enum EcoPrivacyMode : int {
        DisplayAndBackGlow = 1,
        Display = 2,
    };
    Q_ENUM(EcoPrivacyMode)

    explicit LuEcoPrivacy(LuMonitorModel* model);
    ~LuEcoPrivacy() override;

    bool ecoPrivacyEnable() const { return m_ecoPrivacyEnable; }

    /// The setters post a job; what it writes is taken whether or not the monitor answers, and the next
    /// read-back corrects it.
    bool state() const { return m_state; }
    void setState(bool state);

    /// Time without anyone until it dims; never Off while the monitor reports a time.
    ActiveTime activeTime() const { return m_activeTime; }
    /// Writes at once, on the caller's thread: the value is on the wire when it returns, unless the monitor
    /// rests; then the queue writes it. While the state is off this switches the feature on at the monitor.
    void setActiveTime(ActiveTime time);

    SensorSensitivity sensorSensitivity() const { return m_sensorSensitivity; }
    void setSensorSensitivity(SensorSensitivity sensitivity);

    EcoPrivacyType type() const { return m_type; }

    EcoPrivacyMode mode() const { return m_mode; }
    /// Writes also the present mode; does nothing on a model of the normal type.
    void setMode(EcoPrivacyMode mode);

    /// The times that the model offers, in its order.
    QList<ActiveTime> activeTimeList() const { return m_activeTimeList; }

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void registerShortcutActions() override;
    void fireExitEvent() override;

Q_SIGNALS:
    void stateChanged();
    void activeTimeChanged();
    void sensorSensitivityChanged();
    void modeChanged();

private:
    void restoreTime();
    // Both: false if the caller may not wait until the monitor can be asked.
    bool sendTime(int time);
    bool writeTime(int time);
    void syncTime(bool firstConnection);
    void syncSensitivity();
    void syncMode();
    void fireOnOff(LuDataCollection::TriggerSource source);

    bool m_ecoPrivacyEnable = false;
    EcoPrivacyType m_type = Normal;
    QList<ActiveTime> m_activeTimeList;
    ZrShared<bool> m_state{false};
    ZrShared<ActiveTime> m_activeTime{TenSecs};
    ZrShared<SensorSensitivity> m_sensorSensitivity{Near};
    ZrShared<EcoPrivacyMode> m_mode{Display};
    /// Direct writes begun and ended: odd while one is under way.
    std::atomic<int> m_directWrites{0};
    /// The state before the settings were loaded.
    bool m_previousState = false;
};
