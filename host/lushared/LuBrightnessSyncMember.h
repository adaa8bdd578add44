// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <optional>

class LuMonitorModel;

/// One monitor that takes part in the brightness sync: tells a change that somebody made at it from the echo
/// of a value that the sync wrote. It knows the package's module by its properties only. GUI thread.
class LuBrightnessSyncMember : public QObject
{
    Q_OBJECT

public:
    /// Where a change came from.
    enum class Origin {
        Person, ///< The panel, a shortcut, a flow: set through the program.
        Device, ///< Read back: the monitor's own menu, its light sensor, the system.
    };

    /// Whether the monitor's brightness may be kept alike with others.
    static bool fits(LuMonitorModel* model);

    explicit LuBrightnessSyncMember(LuMonitorModel* model);

    LuMonitorModel* model() const { return m_model; }
    QString id() const;

    int brightness() const;
    /// Writes a brightness of 0 to 100 that the sync wants; what comes back of it is not reported.
    void follow(int brightness);
    int baseline() const;
    void setBaseline(int baseline);
    /// The baseline is that of the present group.
    bool isBased() const { return m_based; }
    void setBased(bool based) { m_based = based; }

    /// The monitor's light sensor moves its brightness.
    bool sensorIsOn() const;
    /// Its brightness may lead without a person: a built-in panel follows the system's own keys.
    bool leadsByItself() const;
    /// An overlay can darken this monitor below its lowest brightness.
    bool canDim() const;
    bool isDimming() const;
    void setDimming(bool on);

Q_SIGNALS:
    void moved(LuBrightnessSyncMember* member, LuBrightnessSyncMember::Origin origin, int before, int now);
    void sensorChanged(LuBrightnessSyncMember* member);
    void dimmingChanged(LuBrightnessSyncMember* member);

private Q_SLOTS:
    void takeBrightness(bool byUser);
    void takeSensor();
    void takeDimming();

private:
    bool wasAsked(int value);
    bool isEcho(int value);
    void watch(QObject* object, const char* property, const char* slot);

    LuMonitorModel* const m_model;
    QPointer<QObject> m_brightness;
    QPointer<QObject> m_dimming;
    int m_seen = 0;
    bool m_based = false;
    bool m_sensorWasOn = false;
    QList<int> m_asked;             ///< Written by the sync and not come back yet, oldest first.
    std::optional<int> m_lastAsked; ///< What the sync wrote last, until somebody else moves the monitor.
    std::optional<int> m_echoOf;    ///< Written last by anybody; the monitor may read it back a little off.
};
