// SPDX-License-Identifier: Apache-2.0
#include "LuBrightnessSyncMember.h"

#include <LuShared/LuMonitorModel.h>

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>

#include <cstdlib>

namespace {

constexpr const char* Brightness = "displayBrightness";
constexpr const char* Baseline = "syncBaseline";
constexpr const char* DimmingState = "state";

// Steps of a monitor that look the same are read back as one of them.
constexpr int EchoTolerance = 5;
constexpr qsizetype LongestMemory = 64;

struct Sensor
{
    const char* module;
    const char* property;
};
constexpr Sensor Sensors[] = {{"abPlus", "state"}, {"abSetting", "currentAB"}};

QObject* objectOf(const QObject* owner, const char* property)
{
    return owner ? owner->property(property).value<QObject*>() : nullptr;
}

} // namespace

bool LuBrightnessSyncMember::fits(LuMonitorModel* model)
{
    const QObject* module = objectOf(model, "brightness");
    return module && module->property("brightnessSyncEnable").toBool();
}

LuBrightnessSyncMember::LuBrightnessSyncMember(LuMonitorModel* model)
    : m_model(model), m_brightness(objectOf(model, "brightness")), m_seen(brightness())
{
    connect(m_brightness, SIGNAL(displayBrightnessChanged(bool)), this, SLOT(takeBrightness(bool)));
    for (const Sensor& sensor : Sensors)
        watch(objectOf(model, sensor.module), sensor.property, "takeSensor()");
    m_sensorWasOn = sensorIsOn();
    m_dimming = objectOf(m_brightness, "softwareDimming");
    watch(m_dimming, DimmingState, "takeDimming()");
}

// Signals may come from the monitor's queue; the slots run on the GUI thread.
void LuBrightnessSyncMember::watch(QObject* object, const char* property, const char* slot)
{
    const int index = object ? object->metaObject()->indexOfProperty(property) : -1;
    if (index < 0)
        return;
    const QMetaMethod notify = object->metaObject()->property(index).notifySignal();
    if (notify.isValid())
        connect(object, notify, this, metaObject()->method(metaObject()->indexOfSlot(slot)));
}

QString LuBrightnessSyncMember::id() const
{
    return m_model->id();
}

int LuBrightnessSyncMember::brightness() const
{
    return m_brightness ? m_brightness->property(Brightness).toInt() : 0;
}

void LuBrightnessSyncMember::follow(int brightness)
{
    if (!m_brightness)
        return;
    if (brightness == this->brightness()) {
        // Drops what is on its way to another value; nothing comes back of that.
        m_asked.clear();
    } else if (m_asked.size() < LongestMemory && m_lastAsked != brightness) {
        m_asked.append(brightness);
    }
    m_lastAsked = brightness;
    m_echoOf = brightness;
    m_brightness->setProperty(Brightness, brightness);
}

int LuBrightnessSyncMember::baseline() const
{
    return m_brightness ? m_brightness->property(Baseline).toInt() : 0;
}

void LuBrightnessSyncMember::setBaseline(int baseline)
{
    if (m_brightness)
        m_brightness->setProperty(Baseline, baseline);
    m_based = true;
}

bool LuBrightnessSyncMember::sensorIsOn() const
{
    for (const Sensor& sensor : Sensors) {
        const QObject* module = objectOf(m_model, sensor.module);
        if (module && module->property(sensor.property).toBool())
            return true;
    }
    return false;
}

bool LuBrightnessSyncMember::leadsByItself() const
{
    return m_model->isModelBuiltIn();
}

bool LuBrightnessSyncMember::canDim() const
{
    return m_dimming && m_model->isModelSupported();
}

bool LuBrightnessSyncMember::isDimming() const
{
    return m_dimming && m_dimming->property(DimmingState).toBool();
}

void LuBrightnessSyncMember::setDimming(bool on)
{
    if (m_dimming)
        m_dimming->setProperty(DimmingState, on);
}

void LuBrightnessSyncMember::takeBrightness(bool byUser)
{
    const int before = m_seen;
    const int now = brightness();
    m_seen = now;
    if (byUser ? wasAsked(now) : isEcho(now))
        return;
    if (now == before)
        return;
    m_asked.clear();
    m_lastAsked.reset();
    if (byUser)
        m_echoOf = now;
    Q_EMIT moved(this, byUser ? Origin::Person : Origin::Device, before, now);
}

// Of several values on their way the monitor may show any, and its queue drops those that a newer one
// replaces.
bool LuBrightnessSyncMember::wasAsked(int value)
{
    const qsizetype at = m_asked.indexOf(value);
    if (at >= 0)
        m_asked.remove(0, at + 1);
    return at >= 0 || m_lastAsked == value;
}

bool LuBrightnessSyncMember::isEcho(int value)
{
    const bool echo = m_echoOf && std::abs(value - *m_echoOf) <= EchoTolerance && !sensorIsOn();
    m_echoOf.reset();
    return echo;
}

void LuBrightnessSyncMember::takeSensor()
{
    const bool on = sensorIsOn();
    if (on == m_sensorWasOn)
        return;
    m_sensorWasOn = on;
    Q_EMIT sensorChanged(this);
}

void LuBrightnessSyncMember::takeDimming()
{
    Q_EMIT dimmingChanged(this);
}
