// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <LuShared/LuModelModuleInterface.h>
#include <ZrCore/ZrShared.h>

#include <QtQml/qqmlregistration.h>

#include <atomic>

/// The light behind the panel: its state, angle and non-stop mode packed in VCP 0xD7, its brightness and
/// colour temperature in 0xD9, all kept for each colour mode.
///
/// Without the feature in the schema the object is inactive: its setters do nothing.
class LuBackLight : public LuModelModuleInterface
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Internal class")
    Q_PROPERTY(bool backLightEnable READ backLightEnable CONSTANT)
    Q_PROPERTY(BackLightState state READ state WRITE setState NOTIFY stateChanged)
    Q_PROPERTY(int brightness READ brightness WRITE setBrightness NOTIFY brightnessChanged)
    Q_PROPERTY(
        int colorTemperature READ colorTemperature WRITE setColorTemperature NOTIFY colorTemperatureChanged)
    Q_PROPERTY(BackLightAngle angle READ angle WRITE setAngle NOTIFY angleChanged)
    Q_PROPERTY(bool nonStopMode READ nonStopMode WRITE setNonStopMode NOTIFY nonStopModeChanged)

public:
    /// The upper half of the low byte of 0xD7. Another number that a monitor reports is kept as it is.
    enum BackLightState : int {
        Auto = 48, ///< Dimmed by the monitor's light sensor.
        On = 32,
        Off = 16,
    };
    Q_ENUM(BackLightState)

    /// The high byte of 0xD7.
    enum BackLightAngle : int {
        Angle_270 = 1,
        Angle_360 = 2,
    };
    Q_ENUM(BackLightAngle)

    /// The lower half of the low byte of 0xD7: the light stays on while the monitor sleeps.
    enum BackLightNonStop : int {
        NonStopOn = 1,
        NonStopOff = 0,
    };
    Q_ENUM(BackLightNonStop)

    explicit LuBackLight(LuMonitorModel* model);
    ~LuBackLight() override;

    bool backLightEnable() const { return m_backLightEnable; }

    BackLightState state() const { return m_state; }
    /// Writes at once, on the caller's thread: the value is on the wire when it returns, unless the monitor
    /// rests; then the queue writes it. It is taken whether or not the monitor answers.
    void setState(BackLightState state);

    /// 1 to 10 on the monitors of the series; 0 while none was ever read or set. The setters post a job that
    /// writes the pair as it is when the job runs. A number that does not fit into a byte is refused with a
    /// warning.
    int brightness() const { return m_brightness; }
    void setBrightness(int brightness);

    /// 1 to 7 on the monitors of the series, from warm to cold; 0 while none was ever read or set.
    int colorTemperature() const { return m_colorTemperature; }
    void setColorTemperature(int colorTemperature);

    BackLightAngle angle() const { return m_angle; }
    void setAngle(BackLightAngle angle);

    bool nonStopMode() const { return m_nonStopMode; }
    void setNonStopMode(bool on);

    void readSchema(const QByteArray& schema) override;
    LuSyncTasks* syncPeriodically() override;
    void loadSettings() override;
    void applyValues() override;
    void onFireUpdateSettingEventRequested(const QHash<QString, QVariant>& parameters,
                                           LuDataCollection::TriggerSource source) override;
    void fireExitEvent() override;
    /// "270_degree" or "360_degree".
    QList<QString> parametersStrings() const override;

Q_SIGNALS:
    void stateChanged();
    void brightnessChanged();
    void colorTemperatureChanged();
    void angleChanged();
    void nonStopModeChanged();

private:
    QString key(const QString& name) const;
    bool isKnown(const QString& name, int value, int maximum) const;
    int packedState() const;
    void writeLight();
    void writeState();
    /// False if the caller may not wait until the monitor can be asked.
    bool sendState();
    template <class T>
    void post(const QString& job, ZrShared<T>& member, T value, const QString& name,
              void (LuBackLight::*write)(), void (LuBackLight::*changed)(), std::function<void()> after = {});
    void syncLight();
    void syncState(bool firstConnection);
    void fireState(LuDataCollection::TriggerSource source);
    void fireNonStop(LuDataCollection::TriggerSource source);
    void fireUpdate(LuDataCollection::TriggerSource source);
    void keepStartTime();

    bool m_backLightEnable = false;
    ZrShared<BackLightState> m_state{Off};
    ZrShared<int> m_brightness{0};
    ZrShared<int> m_colorTemperature{0};
    ZrShared<BackLightAngle> m_angle{Angle_270};
    ZrShared<bool> m_nonStopMode{false};
    /// Direct writes begun and ended: odd while one is under way.
    std::atomic<int> m_directWrites{0};
    /// The state before the settings were loaded.
    BackLightState m_previousState = Off;
};
